#include "macro/keynames.h"

#include <array>

namespace {

struct KeyName
{
    std::uint8_t keycode;
    const char *name;
};

/// F12 and the keypad's Enter are left without a name on purpose, as are the keys that a player has
/// no use for.
constexpr KeyName kNames[] = {
    {0, "A"},         {1, "S"},          {2, "D"},        {3, "F"},        {4, "H"},
    {5, "G"},         {6, "Z"},          {7, "X"},        {8, "C"},        {9, "V"},
    {11, "B"},        {12, "Q"},         {13, "W"},       {14, "E"},       {15, "R"},
    {16, "Y"},        {17, "T"},         {18, "1"},       {19, "2"},       {20, "3"},
    {21, "4"},        {22, "6"},         {23, "5"},       {24, "="},       {25, "9"},
    {26, "7"},        {27, "-"},         {28, "8"},       {29, "0"},       {30, "]"},
    {31, "O"},        {32, "U"},         {33, "["},       {34, "I"},       {35, "P"},
    {36, "Enter"},    {37, "L"},         {38, "J"},       {39, "'"},       {40, "K"},
    {41, ";"},        {42, "\\"},        {43, ","},       {44, "/"},       {45, "N"},
    {46, "M"},        {47, "."},         {48, "Tab"},     {49, "Space"},   {50, "`"},
    {51, "Delete"},   {53, "ESC"},       {54, "Command"}, {55, "Command"}, {56, "Shift"},
    {57, "Capslock"}, {58, "Alt"},       {59, "Control"}, {60, "Shift"},   {61, "Alt"},
    {62, "Control"},  {63, "Fn"},        {64, "F17"},     {65, "(.)"},     {67, "(*)"},
    {69, "(+)"},      {71, "clear"},     {75, "(/)"},     {78, "(-)"},     {79, "F18"},
    {80, "F19"},      {81, "(=)"},       {82, "(0)"},     {83, "(1)"},     {84, "(2)"},
    {85, "(3)"},      {86, "(4)"},       {87, "(5)"},     {88, "(6)"},     {89, "(7)"},
    {91, "(8)"},      {92, "(9)"},       {96, "F5"},      {97, "F6"},      {98, "F7"},
    {99, "F3"},       {100, "F8"},       {101, "F9"},     {103, "F11"},    {105, "F13"},
    {106, "F16"},     {107, "F14"},      {109, "F10"},    {113, "F15"},    {114, "Ins"},
    {115, "Home"},    {116, "Pageup"},   {117, "Del"},    {118, "F4"},     {119, "End"},
    {120, "F2"},      {121, "Pagedown"}, {122, "F1"},     {123, "Left"},   {124, "Right"},
    {125, "Down"},    {126, "Up"},
};

constexpr auto kNameOfCode = [] {
    std::array<const char *, 256> names{};
    names.fill("");
    for (const KeyName &row : kNames)
        names.at(row.keycode) = row.name;
    return names;
}();

} // namespace

const char *keyName(std::uint8_t keycode)
{
    return kNameOfCode.at(keycode);
}
