#pragma once

#include "model/settings.h"

#include <span>

/// The one table of the settings: which key of the file stands for which field of the record. The
/// reader, the writer, the defaults and the tests all walk it.

enum class FieldKind : std::uint8_t {
    Integer,
    Text,
    UsedEvents, ///< an event list whose text ends before the first empty slot
    AllEvents,  ///< an event list whose text always holds every slot
};

struct Field
{
    const char *key; ///< the key; "%d" stands for the 1-based number of a repeated field
    FieldKind kind;
    std::size_t offset; ///< of the (first) field in its struct
    unsigned count;     ///< Integer: how many follow each other
    unsigned capacity;  ///< Text: bytes, terminator included. Event lists: slots
    /// Integer: `count` values each; null where the defaults leave the field as it is.
    const std::uint32_t *firstStart; ///< the defaults of a first start
    const std::uint32_t *restored;   ///< the defaults of "Restore Defaults"
};

std::span<const Field> rootFields();      ///< of ConfigData, without the profiles
std::span<const Field> profileFields();   ///< of ProfileInfo, without character and macros
std::span<const Field> characterFields(); ///< of CharacterInfo
std::span<const Field> macroFields();     ///< of MacroInfo

/// Keys of the nested dictionaries.
inline constexpr char kProfileKey[] = "PROFILE_%d";
inline constexpr char kCharacterKey[] = "CHARACTER_INFO";
inline constexpr char kMacroKey[] = "MACRO_%d";
