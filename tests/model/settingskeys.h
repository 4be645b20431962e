#pragma once

#include "model/settings.h"
#include "support/plistxml.h"

#include <span>
#include <vector>

/// The keys of the settings file beside the members they stand for, written out a second time: the
/// program's own table must not be its own judge.

enum class Level { Root, Profile, Character, Macro };
enum class Holds { Integer, Text, Events };

struct Key
{
    const char *name;
    Level level;
    Holds holds;
    std::size_t offset; ///< in the struct of its level
    std::size_t size;   ///< in bytes
};

/// Which profile and which macro, 0-based; what a level does not need is not looked at.
struct Place
{
    unsigned profile = 0;
    unsigned macro = 0;
};

constexpr Key buttonKey(const char *name, std::size_t number)
{
    return {name, Level::Profile, Holds::Integer, offsetof(ProfileInfo, BUTTON) + (number - 1) * 4,
            4};
}

#define KEY(name, level, holds, record, member)                                                    \
    Key                                                                                            \
    {                                                                                              \
        name, Level::level, Holds::holds, offsetof(record, member), sizeof(record::member)         \
    }
inline const std::vector<Key> kSettingsKeys = {
    KEY("PROFILE_ID", Root, Integer, ConfigData, PROFILE_ID),
    KEY("POLLING_RATE", Root, Integer, ConfigData, POLLING_RATE),
    KEY("MACRODEL_CONFIRM", Root, Integer, ConfigData, MACRODEL_CONFIRM),
    KEY("GAME_MODE", Root, Integer, ConfigData, GAME_MODE),
    KEY("DPI_VALUE", Profile, Integer, ProfileInfo, DPI_VALUE),
    KEY("DBCLICK_SPEED", Profile, Integer, ProfileInfo, DBCLICK_SPEED),
    KEY("SCROLL_SPEED", Profile, Integer, ProfileInfo, SCROLL_SPEED),
    KEY("SENSITIVITY", Profile, Integer, ProfileInfo, SENSITIVITY),
    KEY("ADVANCED_SEN_X", Profile, Integer, ProfileInfo, ADVANCED_SEN_X),
    KEY("ADVANCED_SEN_Y", Profile, Integer, ProfileInfo, ADVANCED_SEN_Y),
    KEY("LED_COLOR_R", Profile, Integer, ProfileInfo, LED_COLOR_R),
    KEY("LED_COLOR_G", Profile, Integer, ProfileInfo, LED_COLOR_G),
    KEY("LED_COLOR_B", Profile, Integer, ProfileInfo, LED_COLOR_B),
    KEY("LED_INTENSITY", Profile, Integer, ProfileInfo, LED_INTENSITY),
    KEY("LED_PULSATION", Profile, Integer, ProfileInfo, LED_PULSATION),
    buttonKey("BUTTON_1", 1),
    buttonKey("BUTTON_2", 2),
    buttonKey("BUTTON_3", 3),
    buttonKey("BUTTON_4", 4),
    buttonKey("BUTTON_5", 5),
    buttonKey("BUTTON_6", 6),
    buttonKey("BUTTON_7", 7),
    buttonKey("BUTTON_8", 8),
    buttonKey("BUTTON_9", 9),
    buttonKey("BUTTON_10", 10),
    buttonKey("BUTTON_11", 11),
    buttonKey("BUTTON_12", 12),
    buttonKey("BUTTON_13", 13),
    buttonKey("BUTTON_14", 14),
    KEY("REGION", Character, Integer, CharacterInfo, REGION),
    KEY("SERVER", Character, Text, CharacterInfo, SERVER),
    KEY("NAME", Character, Text, CharacterInfo, NAME),
    KEY("LEVEL", Character, Integer, CharacterInfo, LEVEL),
    KEY("CLASS", Character, Text, CharacterInfo, CLASS),
    KEY("RACE", Character, Text, CharacterInfo, RACE),
    KEY("MACRO_NAME", Macro, Text, MacroInfo, MACRO_NAME),
    KEY("MODE", Macro, Integer, MacroInfo, MODE),
    KEY("MACRO_LOOP", Macro, Integer, MacroInfo, MACRO_LOOP),
    KEY("bSTARTKEY", Macro, Integer, MacroInfo, bSTARTKEY),
    KEY("bSENDKEY", Macro, Integer, MacroInfo, bSENDKEY),
    KEY("bLOOP", Macro, Integer, MacroInfo, bLOOP),
    KEY("COPY_PASTER", Macro, Text, MacroInfo, COPY_PASTER),
    KEY("KEYMAP", Macro, Events, MacroInfo, KEYMAP),
    KEY("STARTKEY", Macro, Events, MacroInfo, STARTKEY),
    KEY("SENDKEY", Macro, Events, MacroInfo, SENDKEY),
};

#undef KEY

inline char *structAt(ConfigData &config, Level level, Place place)
{
    ProfileInfo &profile = config.PROFILE[place.profile];
    switch (level) {
    case Level::Root:
        return reinterpret_cast<char *>(&config);
    case Level::Profile:
        return reinterpret_cast<char *>(&profile);
    case Level::Character:
        return reinterpret_cast<char *>(&profile.CHARACTER_INFO);
    case Level::Macro:
        break;
    }
    return reinterpret_cast<char *>(&profile.MACRO[place.macro]);
}

/// The bytes of the member that `key` stands for.
inline std::span<char> memberAt(ConfigData &config, const Key &key, Place place)
{
    return {structAt(config, key.level, place) + key.offset, key.size};
}

inline QByteArray numbered(const char *name, unsigned index)
{
    return name + QByteArray::number(index + 1);
}

/// `entries` at their level, wrapped into the dictionaries that they stand in.
inline QByteArray plistAt(Level level, Place place, QByteArray entries)
{
    if (level == Level::Macro)
        entries = plistEntry(numbered("MACRO_", place.macro), plistDictionary(entries));
    if (level == Level::Character)
        entries = plistEntry("CHARACTER_INFO", plistDictionary(entries));
    if (level != Level::Root)
        entries = plistEntry(numbered("PROFILE_", place.profile), plistDictionary(entries));
    return plistOf(entries);
}
