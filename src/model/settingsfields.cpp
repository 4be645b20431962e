#include "model/settingsfields.h"

namespace {

template <std::uint32_t... Values>
constexpr std::uint32_t kValues[] = {Values...};

// On purpose not the same: a first start gives plain buttons, "Restore Defaults" the factory
// layout.
constexpr std::uint32_t kFirstStartButtons[kButtonCount] = {1, 2, 9, 9, 9, 9, 9,
                                                            9, 9, 9, 9, 9, 9, 9};
constexpr std::uint32_t kFactoryButtons[kButtonCount] = {0x0001, 0x0002, 0x0006, 0x4010, 0x5007,
                                                         0x5011, 0x4001, 0x0005, 0x0004, 0x4003,
                                                         0x400F, 0x4014, 0x5014, 0x4005};

// offsetof wants the struct and the member by name, and the key is the member's name: a macro says
// it once.
#define INTEGER(record, member) #member, FieldKind::Integer, offsetof(record, member), 1, 0
#define TEXT(record, member)                                                                       \
#member, FieldKind::Text, offsetof(record, member), 1, sizeof(record::member), nullptr, nullptr
#define EVENTS(kind, record, member)                                                               \
#member, FieldKind::kind, offsetof(record, member), 1,                                         \
        sizeof(record::member) / sizeof(KeymapEvent), nullptr, nullptr

constexpr Field kRootFields[] = {
    {INTEGER(ConfigData, PROFILE_ID), kValues<0>, nullptr},
    {INTEGER(ConfigData, POLLING_RATE), kValues<1>, nullptr},
    {INTEGER(ConfigData, MACRODEL_CONFIRM), kValues<0>, nullptr},
    {INTEGER(ConfigData, GAME_MODE), kValues<0>, nullptr},
};

constexpr Field kProfileFields[] = {
    {INTEGER(ProfileInfo, DPI_VALUE), kValues<2>, kValues<2>},
    {INTEGER(ProfileInfo, DBCLICK_SPEED), kValues<10>, kValues<10>},
    {INTEGER(ProfileInfo, SCROLL_SPEED), kValues<3>, kValues<3>},
    {INTEGER(ProfileInfo, SENSITIVITY), kValues<6>, kValues<6>},
    {INTEGER(ProfileInfo, ADVANCED_SEN_X), kValues<10>, kValues<10>},
    {INTEGER(ProfileInfo, ADVANCED_SEN_Y), kValues<10>, kValues<10>},
    {INTEGER(ProfileInfo, LED_COLOR_R), kValues<255>, kValues<255>},
    {INTEGER(ProfileInfo, LED_COLOR_G), kValues<60>, kValues<60>},
    {INTEGER(ProfileInfo, LED_COLOR_B), kValues<0>, kValues<0>},
    {INTEGER(ProfileInfo, LED_INTENSITY), kValues<1>, kValues<1>},
    {INTEGER(ProfileInfo, LED_PULSATION), kValues<1>, kValues<1>},
    {"BUTTON_%d", FieldKind::Integer, offsetof(ProfileInfo, BUTTON), kButtonCount, 0,
     kFirstStartButtons, kFactoryButtons},
};

constexpr Field kCharacterFields[] = {
    {INTEGER(CharacterInfo, REGION), nullptr, nullptr},
    {TEXT(CharacterInfo, SERVER)},
    {TEXT(CharacterInfo, NAME)},
    {INTEGER(CharacterInfo, LEVEL), nullptr, nullptr},
    {TEXT(CharacterInfo, CLASS)},
    {TEXT(CharacterInfo, RACE)},
};

constexpr Field kMacroFields[] = {
    {TEXT(MacroInfo, MACRO_NAME)},
    {INTEGER(MacroInfo, MODE), nullptr, nullptr},
    {INTEGER(MacroInfo, MACRO_LOOP), nullptr, nullptr},
    {INTEGER(MacroInfo, bSTARTKEY), nullptr, nullptr},
    {INTEGER(MacroInfo, bSENDKEY), nullptr, nullptr},
    {INTEGER(MacroInfo, bLOOP), nullptr, nullptr},
    {TEXT(MacroInfo, COPY_PASTER)},
    {EVENTS(UsedEvents, MacroInfo, KEYMAP)},
    {EVENTS(AllEvents, MacroInfo, STARTKEY)},
    {EVENTS(AllEvents, MacroInfo, SENDKEY)},
};

#undef INTEGER
#undef TEXT
#undef EVENTS

} // namespace

std::span<const Field> rootFields()
{
    return kRootFields;
}

std::span<const Field> profileFields()
{
    return kProfileFields;
}

std::span<const Field> characterFields()
{
    return kCharacterFields;
}

std::span<const Field> macroFields()
{
    return kMacroFields;
}
