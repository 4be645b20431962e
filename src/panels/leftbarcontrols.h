#pragma once

#include "panels/levellook.h"

#include <algorithm>

/// The controls of the left bar.
namespace leftbar {

inline constexpr UpRect kInside{0, 0, 202, 452};

/// The blank belongs to the text.
inline constexpr const char *kDpiTexts[] = {" 800", " 1600", " 2400", " 3200", " 4000", " 5000"};
inline constexpr int kDpiTag = 0x2001;
inline constexpr LevelLook kDpi{
    .button = {"btnDPI", {97, 358, 101, 27}, kDpiTag, "", "CPI value", kArrowField},
    .listTag = 0x4000,
    .texts = kDpiTexts,
    .field = &ProfileInfo::DPI_VALUE,
    .logLine = "IDC_LISTBOX_DPI:%d"};

inline constexpr int kHorizontal = 1;
inline constexpr int kVertical = 2;
inline constexpr double kLeastLevel = 1;
inline constexpr double kMostLevel = 10;

/// A bar and the level of the profile that it edits.
struct LevelRow
{
    ButtonRow bar;
    int dirStyle = kHorizontal;
    std::uint32_t ProfileInfo::*field = nullptr;
    const char *logLine = "";
};

// clang-format off
inline constexpr LevelRow kLevels[] = {
    {{"dbClickSpeedBar", {42, 303, 124, 16}, 0x3000, "", "Double-click speed"}, kHorizontal,
     &ProfileInfo::DBCLICK_SPEED,  "IDC_PROGRESSBAR_DBCLICK"},
    {{"scrollSpeedBar",  {42, 260, 124, 16}, 0x3001, "", "Scroll speed"}, kHorizontal,
     &ProfileInfo::SCROLL_SPEED,   "IDC_PROGRESSBAR_SCROLLSPEED"},
    {{"pointSpeedBar",   {42, 222, 124, 16}, 0x3002, "", "Pointer speed"}, kHorizontal,
     &ProfileInfo::SENSITIVITY,    "IDC_PROGRESSBAR_POINTSPEED"},
    {{"advSensXBar",     {70, 62, 16, 112},  0x3003, "", "Sensitivity, X axis"}, kVertical,
     &ProfileInfo::ADVANCED_SEN_X, "IDC_PROGRESSBAR_ADVSENSX"},
    {{"advSensYBar",     {130, 62, 16, 112}, 0x3004, "", "Sensitivity, Y axis"}, kVertical,
     &ProfileInfo::ADVANCED_SEN_Y, "IDC_PROGRESSBAR_ADVSENSY"},
};
// clang-format on

consteval bool tableHolds()
{
    int tag = kLevels[0].bar.tag;
    return kInside.holds(kDpi.button.frame) &&
           std::ranges::all_of(kLevels, [&tag](const LevelRow &row) {
               return row.bar.tag == tag++ && kInside.holds(row.bar.frame);
           });
}
static_assert(tableHolds(), "controls inside the bar, levels in the order of their tags");

} // namespace leftbar
