#pragma once

#include "platform/uprect.h"

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

struct ControlRow
{
    ControlId id = {};
    const char *name = ""; ///< the control's object name
    ControlKind kind = {};
    UpRect frame;
    int tag = 0;
    const char *caption = "";     ///< written on it; empty where the skin or the profile says it
    const char *description = ""; ///< what it is called for assistive technology
};

// clang-format off
inline constexpr ControlRow kControlTable[] = {
    {ControlId::Button1, "Button1", ControlKind::Check, {234, 443, 97, 27}, 0x1000, "", "Mouse button 1"},
    {ControlId::Button2, "Button2", ControlKind::Check, {347, 443, 97, 27}, 0x1001, "", "Mouse button 2"},
    {ControlId::Button3, "Button3", ControlKind::Check, {459, 443, 97, 27}, 0x1002, "", "Mouse button 3"},
    {ControlId::Button4, "Button4", ControlKind::Check, {234, 415, 97, 27}, 0x1003, "", "Mouse button 4"},
    {ControlId::Button5, "Button5", ControlKind::Check, {347, 415, 97, 27}, 0x1004, "", "Mouse button 5"},
    {ControlId::Button6, "Button6", ControlKind::Check, {459, 415, 97, 27}, 0x1005, "", "Mouse button 6"},
    {ControlId::Button7, "Button7", ControlKind::Check, {234, 357, 97, 27}, 0x1006, "", "Mouse button 7"},
    {ControlId::Button8, "Button8", ControlKind::Check, {347, 357, 97, 27}, 0x1007, "", "Mouse button 8"},
    {ControlId::Button9, "Button9", ControlKind::Check, {459, 357, 97, 27}, 0x1008, "", "Mouse button 9"},
    {ControlId::Button10, "Button10", ControlKind::Check, {234, 328, 97, 27}, 0x1009, "", "Mouse button 10"},
    {ControlId::Button11, "Button11", ControlKind::Check, {347, 328, 97, 27}, 0x100A, "", "Mouse button 11"},
    {ControlId::Button12, "Button12", ControlKind::Check, {459, 328, 97, 27}, 0x100B, "", "Mouse button 12"},
    {ControlId::Button13, "Button13", ControlKind::Check, {234, 271, 97, 27}, 0x100C, "", "Mouse button 13"},
    {ControlId::Button14, "Button14", ControlKind::Check, {347, 271, 97, 27}, 0x100D, "", "Mouse button 14"},
    {ControlId::ButtonOK, "ButtonOK", ControlKind::Push, {458, 289, 117, 31}, 0x1011, "OK", "OK"},
    {ControlId::ButtonCancel, "ButtonCancel", ControlKind::Push, {458, 255, 117, 31}, 0x1012, "CANCEL", "Cancel"},
    {ControlId::ButtonApply, "ButtonApply", ControlKind::Push, {458, 220, 117, 31}, 0x1013, "APPLY", "Apply"},
    {ControlId::ButtonRestore, "ButtonRestore", ControlKind::Push, {214, 221, 117, 31}, 0x1031, "Restore Defaults", "Restore Defaults"},
    {ControlId::ButtonSaveToDevice, "ButtonSaveToDevice", ControlKind::Push, {74, 305, 117, 31}, 0x1032, "Save On Board", "Save On Board"},
    // The spacing is irregular on purpose: the skin's keys stand like that.
    {ControlId::BtnProfile1, "BtnProfile1", ControlKind::Check, {164, 512, 42, 35}, 0x1014, "", "Profile 1"},
    {ControlId::BtnProfile2, "BtnProfile2", ControlKind::Check, {205, 512, 42, 35}, 0x1015, "", "Profile 2"},
    {ControlId::BtnProfile3, "BtnProfile3", ControlKind::Check, {245, 512, 42, 35}, 0x1016, "", "Profile 3"},
    {ControlId::BtnProfile4, "BtnProfile4", ControlKind::Check, {284, 512, 42, 35}, 0x1017, "", "Profile 4"},
    {ControlId::BtnProfile5, "BtnProfile5", ControlKind::Check, {324, 512, 42, 35}, 0x1018, "", "Profile 5"},
    {ControlId::BtnProfile6, "BtnProfile6", ControlKind::Check, {364, 512, 42, 35}, 0x1019, "", "Profile 6"},
    {ControlId::BtnProfile7, "BtnProfile7", ControlKind::Check, {404, 512, 42, 35}, 0x101A, "", "Profile 7"},
    {ControlId::BtnProfile8, "BtnProfile8", ControlKind::Check, {444, 512, 42, 35}, 0x101B, "", "Profile 8"},
    {ControlId::BtnProfile9, "BtnProfile9", ControlKind::Check, {484, 512, 42, 35}, 0x101C, "", "Profile 9"},
    {ControlId::BtnProfile10, "BtnProfile10", ControlKind::Check, {524, 512, 42, 35}, 0x101D, "", "Profile 10"},
    {ControlId::BtnMin, "BtnMin", ControlKind::Push, {524, 586, 23, 23}, 0x1024, "", "Minimise"},
    {ControlId::BtnHelp, "BtnHelp", ControlKind::Push, {551, 586, 23, 23}, 0x1026, "", "User guide"},
    {ControlId::BtnClose, "BtnClose", ControlKind::Push, {575, 586, 23, 23}, 0x1025, "", "Close"},
    {ControlId::BtnProfileMenu, "BtnProfileMenu", ControlKind::Push, {65, 550, 60, 20}, 0x1027, "Profile", "Profile menu"},
    {ControlId::BtnToolsMenu, "BtnToolsMenu", ControlKind::Push, {130, 550, 60, 20}, 0x1028, "Tools", "Tools menu"},
    {ControlId::BtnHelpMenu, "BtnHelpMenu", ControlKind::Push, {195, 550, 60, 20}, 0x1029, "Help", "Help menu"},
    {ControlId::chkGameMode, "chkGameMode", ControlKind::Check, {56, 398, 17, 17}, 0x1030, "", "Enable in-game mode"},
    {ControlId::MSMemoryUsageBar, "MSMemoryUsageBar", ControlKind::ProgressBar, {60, 350, 90, 18}, 0x102A, "", "Mouse memory usage"},
};
// clang-format on

inline constexpr std::size_t kControlCount = std::size(kControlTable);

constexpr const ControlRow &controlRow(ControlId id)
{
    return kControlTable[static_cast<std::size_t>(id)];
}

consteval bool controlTableHolds()
{
    for (std::size_t i = 0; i < kControlCount; ++i) {
        const ControlRow &row = kControlTable[i];
        const UpRect &box = row.frame;
        if (row.id != static_cast<ControlId>(i))
            return false;
        if (box.x < 0 || box.y < 0 || box.x + box.width > kMainViewWidth ||
            box.y + box.height > kMainViewHeight)
            return false;
        if (std::ranges::count(kControlTable, row.tag, &ControlRow::tag) != 1)
            return false;
    }
    return true;
}
static_assert(controlTableHolds(), "rows in the order of ControlId, inside the view, tags unique");
