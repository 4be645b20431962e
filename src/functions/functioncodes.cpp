#include "functions/functioncodes.h"

#include "model/fixedtext.h"

#include <algorithm>
#include <array>

namespace functions {

namespace {

constexpr BasicFunction kBasicFunctions[] = {
    {1, "Left-Click", 0},    {2, "Right-Click", 0},   {3, "Double Click", 10},
    {4, "Button 4", 0},      {5, "Button 5", 0},      {6, "Universal Scroll", 0},
    {9, "Disable/Clear", 0}, {11, "Scroll Up", 0},    {12, "Scroll Down", 0},
    {16, "CPI 800", 0},      {17, "CPI 1600", 0},     {18, "CPI 2400", 0},
    {19, "CPI 3200", 0},     {20, "CPI 4000", 0},     {21, "CPI 5000", 0},
    {22, "CPI UP", 0},       {23, "CPI DOWN", 0},     {32, "Profile 1", 0},
    {33, "Profile 2", 0},    {34, "Profile 3", 0},    {35, "Profile 4", 0},
    {36, "Profile 5", 0},    {37, "Profile 6", 0},    {38, "Profile 7", 0},
    {39, "Profile 8", 0},    {40, "Profile 9", 0},    {41, "Profile 10", 0},
    {42, "Profile UP", 0},   {43, "Profile DOWN", 0},
};

constexpr GameCommand kMovement[] = {
    {"Move and Steer", 0}, {"Move Forward", 4},
    {"Turn Left", 4},      {"Move Backward", 4},
    {"Turn Right", 4},     {"Strafe Left", 4},
    {"Strafe Right", 4},   {"Jump", 4},
    {"Sit/Stand", 4},      {"Sheath/Unsheath Weapon", 4},
    {"Toggle Autorun", 4}, {"Pitch Up", 4},
    {"Pitch Down", 4},     {"Toggle Run / Walk", 4},
};

constexpr GameCommand kChat[] = {
    {"Open Chat", 4},          {"Open Chat Slash", 4},      {"Chat Page Up", 4},
    {"Chat Page Down", 4},     {"Chat Bottom", 8},          {"Chat Reply", 4},
    {"Combat Log Page Up", 8}, {"Combat Log Page Down", 8}, {"Combat Log Bottom", 12},
    {"Toggle Combat Log", 8},
};

constexpr GameCommand kActionBar[] = {
    {"Action Button 1", 4},
    {"Action Button 2", 4},
    {"Action Button 3", 4},
    {"Action Button 4", 4},
    {"Action Button 5", 4},
    {"Action Button 6", 4},
    {"Action Button 7", 4},
    {"Action Button 8", 4},
    {"Action Button 9", 4},
    {"Action Button 10", 4},
    {"Action Button 11", 4},
    {"Action Button 12", 4},
    {"Self Action Button 1", 8},
    {"Self Action Button 2", 8},
    {"Self Action Button 3", 8},
    {"Self Action Button 4", 8},
    {"Self Action Button 5", 8},
    {"Self Action Button 6", 8},
    {"Self Action Button 7", 8},
    {"Self Action Button 8", 8},
    {"Self Action Button 9", 8},
    {"Self Action Button 10", 8},
    {"Self Action Button 11", 8},
    {"Self Action Button 12", 8},
    {"Special Action Button 1", 8},
    {"Special Action Button 2", 8},
    {"Special Action Button 3", 8},
    {"Special Action Button 4", 8},
    {"Special Action Button 5", 8},
    {"Special Action Button 6", 8},
    {"Special Action Button 7", 8},
    {"Special Action Button 8", 8},
    {"Special Action Button 9", 8},
    {"Special Action Button 10", 8},
    {"Secondary Action Button 1", 8},
    {"Secondary Action Button 2", 8},
    {"Secondary Action Button 3", 8},
    {"Secondary Action Button 4", 8},
    {"Secondary Action Button 5", 8},
    {"Secondary Action Button 6", 8},
    {"Secondary Action Button 7", 8},
    {"Secondary Action Button 8", 8},
    {"Secondary Action Button 9", 8},
    {"Secondary Action Button 10", 8},
    {"Action Page 1", 8},
    {"Action Page 2", 8},
    {"Action Page 3", 8},
    {"Action Page 4", 8},
    {"Action Page 5", 8},
    {"Action Page 6", 8},
    {"Previous Action Bar", 8},
    {"Next Action Bar", 8},
};

constexpr GameCommand kTargeting[] = {
    {"Target Nearest Enemy", 4},
    {"Target Previous Enemy", 8},
    {"Target Nearest Friend", 8},
    {"Target Previous Friend", 12},
    {"Target Self", 4},
    {"Target Party Member 1", 4},
    {"Target Party Member 2", 4},
    {"Target Party Member 3", 4},
    {"Target Party Member 4", 4},
    {"Target Pet", 8},
    {"Target Party Pet 1", 8},
    {"Target Party Pet 2", 8},
    {"Target Party Pet 3", 8},
    {"Target Party Pet 4", 8},
    {"Target Last Hostile", 4},
    {"Assist Target", 4},
    {"Show Enemy Name Plates", 4},
    {"Show Friendly Name Plates", 8},
    {"Show All Name Plates", 8},
    {"Attack Target", 4},
    {"Pet Attack", 8},
};

constexpr GameCommand kInterface[] = {
    {"Toggle Character Pane", 4},  {"Toggle Backpack", 4},       {"Toggle Bag 1", 4},
    {"Toggle Bag 2", 4},           {"Toggle Bag 3", 4},          {"Toggle Bag 4", 4},
    {"Open All Bags", 8},          {"Toggle Spellbook", 4},      {"Toggle Petbook", 8},
    {"Toggle Talent Pane", 4},     {"Toggle Honor Pane", 4},     {"Toggle Pet Pane", 8},
    {"Toggle Reputation Pane", 4}, {"Toggle Skill Pane", 4},     {"Toggle Quest Log", 4},
    {"Toggle Game Menu", 4},       {"Toggle World Map Pane", 4}, {"Toggle Social Pane", 4},
    {"Toggle Score Screen", 8},    {"Toggle Battle Map", 8},     {"Toggle Channel Pullout", 8},
};

constexpr GameCommand kCamera[] = {
    {"Next View", 4},
    {"Previous View", 4},
    {"Zoom In", 0},
    {"Zoom Out", 0},
};

constexpr GameCommand kMiscellaneous[] = {
    {"Minimap Zoom In", 4},       {"Minimap Zoom Out", 4},         {"Toggle Music", 8},
    {"Toggle Sound", 8},          {"Master Volume Up", 8},         {"Master Volume Down", 8},
    {"Toggle User Interface", 8}, {"Toggle Framerate Display", 8}, {"Screen Shot", 4},
};

constexpr GameCategory kCategories[] = {
    {"Movement Keys", kMovement},
    {"Chat Functions", kChat},
    {"Action Bar Functions", kActionBar},
    {"Targeting Functions", kTargeting},
    {"Interface Panel Functions", kInterface},
    {"Camera Functions", kCamera},
    {"Miscellaneous Functions", kMiscellaneous},
};

static_assert(std::ranges::is_sorted(kBasicFunctions, {}, &BasicFunction::code));

constexpr FunctionCode kFirstGameCode = 4097;
constexpr FunctionCode kEndOfGameCodes = 32768;

/// The command at a place, both numbers 0-based; null when there is none.
const GameCommand *commandAt(unsigned category, unsigned item)
{
    if (category >= std::size(kCategories) || item >= kCategories[category].commands.size())
        return nullptr;
    return &kCategories[category].commands[item];
}

QString nameOf(const GameCommand *command)
{
    return command ? QString::fromLatin1(command->name) : QString();
}

} // namespace

const BasicFunction *basicFunction(FunctionCode code)
{
    const auto *const found =
        std::ranges::lower_bound(kBasicFunctions, code, {}, &BasicFunction::code);
    return found != std::end(kBasicFunctions) && found->code == code ? found : nullptr;
}

std::span<const GameCategory> gameCategories()
{
    return kCategories;
}

const GameCommand *gameCommand(FunctionCode code)
{
    if (code < kFirstGameCode || code >= kEndOfGameCodes)
        return nullptr;
    // An item number of 0 wraps to the largest one and so names nothing.
    return commandAt((code >> 12U) - 1, (code & 0xFFFU) - 1);
}

std::optional<std::uint32_t> macroSlot(FunctionCode code)
{
    if (code < kFirstMacroCode || code >= kEndOfMacroCodes)
        return {};
    return code - kFirstMacroCode;
}

QString caption(FunctionCode code, const ProfileInfo &profile)
{
    if (const BasicFunction *basic = basicFunction(code))
        return QString::fromLatin1(basic->caption);
    if (const auto slot = macroSlot(code))
        return GetString(MacroAt(profile, *slot).MACRO_NAME);
    return nameOf(gameCommand(code));
}

} // namespace functions

QString GetTreeListName(FunctionCode code)
{
    return functions::nameOf(functions::gameCommand(code));
}

QString GetSubTitle(unsigned category, unsigned SubItem)
{
    return functions::nameOf(functions::commandAt(category, SubItem));
}
