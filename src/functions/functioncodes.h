#pragma once

#include "model/settings.h"

#include <QtCore/QString>

#include <optional>
#include <span>

/// What the codes on the mouse's buttons mean. A code is read as a signed number: one with the top
/// bit set names nothing.
///
///     1-6, 9, 11, 12  mouse functions        256-4095    macro slot code - 256
///     16-23           CPI steps              4097-32767  game command:
///     32-43           profile changes                    (category + 1) << 12 | (item + 1)
namespace functions {

/// A mouse, CPI or profile function.
struct BasicFunction
{
    FunctionCode code;
    const char *caption;
    unsigned size; ///< bytes in the mouse's memory
};

struct GameCommand
{
    const char *name;
    unsigned size; ///< bytes in the mouse's memory
};

struct GameCategory
{
    const char *name;
    std::span<const GameCommand> commands;
};

inline constexpr FunctionCode kFirstMacroCode = 256;
inline constexpr FunctionCode kEndOfMacroCodes = 4096;

/// The basic function of a code; null when the code is none.
const BasicFunction *basicFunction(FunctionCode code);
/// The seven categories of game commands.
std::span<const GameCategory> gameCategories();
/// The number that the codes of a category's commands begin after; it names nothing itself.
constexpr FunctionCode codesBegin(unsigned category)
{
    return (category + 1) << 12U;
}
/// The code of a game command by its category and its place in it, both 0-based; whether there is
/// such a command is not looked at.
constexpr FunctionCode gameCode(unsigned category, unsigned item)
{
    return codesBegin(category) | (item + 1);
}
/// The game command of a code; null when the code names none.
const GameCommand *gameCommand(FunctionCode code);
/// The macro slot of a code, 0..3839 (only slots below 50 exist); nothing when it is no macro code.
std::optional<std::uint32_t> macroSlot(FunctionCode code);

/// The caption of a code in a profile: empty for a code without a meaning and for a macro without a
/// name or beyond the profile's slots.
QString caption(FunctionCode code, const ProfileInfo &profile);

} // namespace functions

/// The name of the game command of a code; empty when the code names none.
QString GetTreeListName(FunctionCode code);
/// The name of the command at a place (both 0-based); empty when there is none.
QString GetSubTitle(unsigned category, unsigned SubItem);
