#pragma once

#include "controls/buttonrow.h"

#include <algorithm>
#include <array>
#include <iterator>

/// The controls of the main view, in the order in which they are made. Everything that knows a
/// place, a tag or a caption of the main view reads it from here.

inline constexpr int kMainViewWidth = 654;
inline constexpr int kMainViewHeight = 640;

enum class ControlKind { Check, Push, ProgressBar };

enum class ControlId {
    Button1,
    Button2,
    Button3,
    Button4,
    Button5,
    Button6,
    Button7,
    Button8,
    Button9,
    Button10,
    Button11,
    Button12,
    Button13,
    Button14,
    ButtonOK,
    ButtonCancel,
    ButtonApply,
    ButtonRestore,
    ButtonSaveToDevice,
    BtnProfile1,
    BtnProfile2,
    BtnProfile3,
    BtnProfile4,
    BtnProfile5,
    BtnProfile6,
    BtnProfile7,
    BtnProfile8,
    BtnProfile9,
    BtnProfile10,
    BtnMin,
    BtnHelp,
    BtnClose,
    BtnProfileMenu,
    BtnToolsMenu,
    BtnHelpMenu,
    chkGameMode,
    MSMemoryUsageBar,
};

inline constexpr int kFirstButtonTag = 0x1000;
inline constexpr int kLastButtonTag = 0x100D;
inline constexpr int kFirstProfileTag = 0x1014;
inline constexpr int kLastProfileTag = 0x101D;

struct ControlRow : ButtonRow
{
    ControlId id = {};
    ControlKind kind = {};
};

// clang-format off
inline constexpr ControlRow kControlTable[] = {
    {{"Button1", {234, 443, 97, 27}, 0x1000, "", "Mouse button 1"}, ControlId::Button1, ControlKind::Check},
    {{"Button2", {347, 443, 97, 27}, 0x1001, "", "Mouse button 2"}, ControlId::Button2, ControlKind::Check},
    {{"Button3", {459, 443, 97, 27}, 0x1002, "", "Mouse button 3"}, ControlId::Button3, ControlKind::Check},
    {{"Button4", {234, 415, 97, 27}, 0x1003, "", "Mouse button 4"}, ControlId::Button4, ControlKind::Check},
    {{"Button5", {347, 415, 97, 27}, 0x1004, "", "Mouse button 5"}, ControlId::Button5, ControlKind::Check},
    {{"Button6", {459, 415, 97, 27}, 0x1005, "", "Mouse button 6"}, ControlId::Button6, ControlKind::Check},
    {{"Button7", {234, 357, 97, 27}, 0x1006, "", "Mouse button 7"}, ControlId::Button7, ControlKind::Check},
    {{"Button8", {347, 357, 97, 27}, 0x1007, "", "Mouse button 8"}, ControlId::Button8, ControlKind::Check},
    {{"Button9", {459, 357, 97, 27}, 0x1008, "", "Mouse button 9"}, ControlId::Button9, ControlKind::Check},
    {{"Button10", {234, 328, 97, 27}, 0x1009, "", "Mouse button 10"}, ControlId::Button10, ControlKind::Check},
    {{"Button11", {347, 328, 97, 27}, 0x100A, "", "Mouse button 11"}, ControlId::Button11, ControlKind::Check},
    {{"Button12", {459, 328, 97, 27}, 0x100B, "", "Mouse button 12"}, ControlId::Button12, ControlKind::Check},
    {{"Button13", {234, 271, 97, 27}, 0x100C, "", "Mouse button 13"}, ControlId::Button13, ControlKind::Check},
    {{"Button14", {347, 271, 97, 27}, 0x100D, "", "Mouse button 14"}, ControlId::Button14, ControlKind::Check},
    {{"ButtonOK", {458, 289, 117, 31}, 0x1011, "OK", "OK"}, ControlId::ButtonOK, ControlKind::Push},
    {{"ButtonCancel", {458, 255, 117, 31}, 0x1012, "CANCEL", "Cancel"}, ControlId::ButtonCancel, ControlKind::Push},
    {{"ButtonApply", {458, 220, 117, 31}, 0x1013, "APPLY", "Apply"}, ControlId::ButtonApply, ControlKind::Push},
    {{"ButtonRestore", {214, 221, 117, 31}, 0x1031, "Restore Defaults", "Restore Defaults"}, ControlId::ButtonRestore, ControlKind::Push},
    {{"ButtonSaveToDevice", {74, 305, 117, 31}, 0x1032, "Save On Board", "Save On Board"}, ControlId::ButtonSaveToDevice, ControlKind::Push},
    // The spacing is irregular on purpose: the skin's keys stand like that.
    {{"BtnProfile1", {164, 512, 42, 35}, 0x1014, "", "Profile 1"}, ControlId::BtnProfile1, ControlKind::Check},
    {{"BtnProfile2", {205, 512, 42, 35}, 0x1015, "", "Profile 2"}, ControlId::BtnProfile2, ControlKind::Check},
    {{"BtnProfile3", {245, 512, 42, 35}, 0x1016, "", "Profile 3"}, ControlId::BtnProfile3, ControlKind::Check},
    {{"BtnProfile4", {284, 512, 42, 35}, 0x1017, "", "Profile 4"}, ControlId::BtnProfile4, ControlKind::Check},
    {{"BtnProfile5", {324, 512, 42, 35}, 0x1018, "", "Profile 5"}, ControlId::BtnProfile5, ControlKind::Check},
    {{"BtnProfile6", {364, 512, 42, 35}, 0x1019, "", "Profile 6"}, ControlId::BtnProfile6, ControlKind::Check},
    {{"BtnProfile7", {404, 512, 42, 35}, 0x101A, "", "Profile 7"}, ControlId::BtnProfile7, ControlKind::Check},
    {{"BtnProfile8", {444, 512, 42, 35}, 0x101B, "", "Profile 8"}, ControlId::BtnProfile8, ControlKind::Check},
    {{"BtnProfile9", {484, 512, 42, 35}, 0x101C, "", "Profile 9"}, ControlId::BtnProfile9, ControlKind::Check},
    {{"BtnProfile10", {524, 512, 42, 35}, 0x101D, "", "Profile 10"}, ControlId::BtnProfile10, ControlKind::Check},
    {{"BtnMin", {524, 586, 23, 23}, 0x1024, "", "Minimise"}, ControlId::BtnMin, ControlKind::Push},
    {{"BtnHelp", {551, 586, 23, 23}, 0x1026, "", "User guide"}, ControlId::BtnHelp, ControlKind::Push},
    {{"BtnClose", {575, 586, 23, 23}, 0x1025, "", "Close"}, ControlId::BtnClose, ControlKind::Push},
    {{"BtnProfileMenu", {65, 550, 60, 20}, 0x1027, "Profile", "Profile menu"}, ControlId::BtnProfileMenu, ControlKind::Push},
    {{"BtnToolsMenu", {130, 550, 60, 20}, 0x1028, "Tools", "Tools menu"}, ControlId::BtnToolsMenu, ControlKind::Push},
    {{"BtnHelpMenu", {195, 550, 60, 20}, 0x1029, "Help", "Help menu"}, ControlId::BtnHelpMenu, ControlKind::Push},
    {{"chkGameMode", {56, 398, 17, 17}, 0x1030, "", "Enable in-game mode"}, ControlId::chkGameMode, ControlKind::Check},
    {{"MSMemoryUsageBar", {60, 350, 90, 18}, 0x102A, "", "Mouse memory usage"}, ControlId::MSMemoryUsageBar, ControlKind::ProgressBar},
};
// clang-format on

inline constexpr std::size_t kControlCount = std::size(kControlTable);

constexpr const ControlRow &controlRow(ControlId id)
{
    return kControlTable[static_cast<std::size_t>(id)];
}

/// The order in which the tab key goes through the controls: that of reading, block by block.
inline constexpr ControlId kTabOrder[] = {
    ControlId::BtnMin,         ControlId::BtnHelp,      ControlId::BtnClose,
    ControlId::BtnProfileMenu, ControlId::BtnToolsMenu, ControlId::BtnHelpMenu,
    ControlId::BtnProfile1,    ControlId::BtnProfile2,  ControlId::BtnProfile3,
    ControlId::BtnProfile4,    ControlId::BtnProfile5,  ControlId::BtnProfile6,
    ControlId::BtnProfile7,    ControlId::BtnProfile8,  ControlId::BtnProfile9,
    ControlId::BtnProfile10,   ControlId::chkGameMode,  ControlId::ButtonSaveToDevice,
    ControlId::Button1,        ControlId::Button2,      ControlId::Button3,
    ControlId::Button4,        ControlId::Button5,      ControlId::Button6,
    ControlId::Button7,        ControlId::Button8,      ControlId::Button9,
    ControlId::Button10,       ControlId::Button11,     ControlId::Button12,
    ControlId::Button13,       ControlId::Button14,     ControlId::ButtonRestore,
    ControlId::ButtonOK,       ControlId::ButtonCancel, ControlId::ButtonApply,
};

consteval bool controlTableHolds()
{
    for (std::size_t i = 0; i < kControlCount; ++i) {
        const ControlRow &row = kControlTable[i];
        if (row.id != static_cast<ControlId>(i))
            return false;
        if (!UpRect{0, 0, kMainViewWidth, kMainViewHeight}.holds(row.frame))
            return false;
        if (std::ranges::count(kControlTable, row.tag, &ControlRow::tag) != 1)
            return false;
    }
    return true;
}
static_assert(controlTableHolds(), "rows in the order of ControlId, inside the view, tags unique");

consteval bool tabOrderHolds()
{
    return std::ranges::all_of(kControlTable, [](const ControlRow &row) {
        const auto times = std::ranges::count(kTabOrder, row.id);
        return times == (row.kind == ControlKind::ProgressBar ? 0 : 1);
    });
}
static_assert(tabOrderHolds(), "the tab key reaches every button, once");
