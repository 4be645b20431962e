#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>

/// The settings record: flat, of fixed size, without pointers. Its fields are named after the keys
/// of the settings file. Whole arrays are cleared and copied as blocks, so order and widths count.
/// User-interface thread only.

inline constexpr unsigned kProfileCount = 10;
inline constexpr unsigned kButtonCount = 14;
inline constexpr unsigned kMacroCount = 50;
inline constexpr unsigned kEventCount = 500;

/// What a mouse button does; see functions/functioncodes.h.
using FunctionCode = std::uint32_t;

/// The kinds of a keyboard event; 0 marks an empty slot, which ends the list.
inline constexpr std::uint32_t kKeyPress = 1;
inline constexpr std::uint32_t kKeyRelease = 2;

/// One keyboard event of a macro.
struct KeymapEvent
{
    std::uint32_t keycode; ///< the platform's virtual key code
    std::uint32_t kind;
    std::uint32_t delay; ///< pause after the event, in units of 50 ms
};

/// What playing a macro sends.
enum MacroMode : std::uint32_t {
    kModeCopyPaste,   ///< the start keys, the text, the send keys; by the driver process only
    kModeText,        ///< the events, with delays that the player of the macro chooses
    kModeRecordDelay, ///< the events with their delays
    kModeNoDelay,     ///< the events without delays
};

struct MacroInfo
{
    char MACRO_NAME[100];
    std::uint32_t MODE;              ///< a MacroMode; a file may hold any number
    KeymapEvent KEYMAP[kEventCount]; ///< ends before the first event of kind 0, or is full
    std::uint32_t bSTARTKEY;         ///< 0 or 1: the start keys are in use
    KeymapEvent STARTKEY[2];
    std::uint32_t bSENDKEY; ///< 0 or 1: the send keys are in use
    KeymapEvent SENDKEY[2];
    char COPY_PASTER[260];
    std::uint32_t bLOOP;
    std::uint32_t MACRO_LOOP;
};

/// The game character linked to a profile.
struct CharacterInfo
{
    std::uint32_t REGION; ///< 0..4
    char SERVER[200];
    char NAME[200];
    std::uint32_t LEVEL;
    char CLASS[200];
    char RACE[200]; ///< despite its name the path of the downloaded portrait
};

struct ProfileInfo
{
    CharacterInfo CHARACTER_INFO;
    std::uint32_t DPI_VALUE;
    std::uint32_t DBCLICK_SPEED;
    std::uint32_t SCROLL_SPEED;
    std::uint32_t SENSITIVITY;
    std::uint32_t ADVANCED_SEN_X;
    std::uint32_t ADVANCED_SEN_Y;
    std::uint32_t LED_COLOR_R; ///< 0..255, as green and blue
    std::uint32_t LED_COLOR_G;
    std::uint32_t LED_COLOR_B;
    std::uint32_t LED_INTENSITY;
    std::uint32_t LED_PULSATION;
    FunctionCode BUTTON[kButtonCount];
    MacroInfo MACRO[kMacroCount];
};

struct ConfigData
{
    std::uint32_t PROFILE_ID;   ///< the current profile, 0-based; see CurrentProfile()
    std::uint32_t POLLING_RATE; ///< 1 = 1000 Hz, 2 = 500 Hz, 3 = 250 Hz
    std::uint32_t MACRODEL_CONFIRM;
    std::uint32_t GAME_MODE; ///< 0 or 1
    ProfileInfo PROFILE[kProfileCount];
};

static_assert(sizeof(KeymapEvent) == 12);
static_assert(sizeof(MacroInfo) == 6428);
static_assert(sizeof(CharacterInfo) == 808);
static_assert(sizeof(ProfileInfo) == 322308);
static_assert(sizeof(ConfigData) == 3223096);
static_assert(std::is_trivially_copyable_v<ConfigData> && std::is_standard_layout_v<ConfigData>);

/// The one record of the process, zero-filled at start.
extern ConfigData m_Config;

/// The profile at a 0-based index from outside; the first one for an index above 9.
ProfileInfo &ProfileAt(std::uint32_t index);
/// The profile that PROFILE_ID names, bounded in the same way, and its index.
ProfileInfo &CurrentProfile();
std::uint32_t CurrentProfileIndex();
/// The macro in a slot from outside; an empty macro for a slot above 49.
const MacroInfo &MacroAt(const ProfileInfo &profile, std::uint32_t slot);
