#pragma once

enum class Kind { Check, Push, Bar };

/// The controls of the main view as they are to stand, from the lower left corner, with the
/// captions of a first start. Written out, so that the program's own table is held against
/// something.
struct KnownControl
{
    const char *name;
    Kind kind;
    int x, y, width, height;
    int tag;
    const char *caption;
};

// clang-format off
inline constexpr KnownControl kKnownControls[] = {
    {"Button1", Kind::Check, 234, 443, 97, 27, 0x1000, "Left-Click"},
    {"Button2", Kind::Check, 347, 443, 97, 27, 0x1001, "Right-Click"},
    {"Button3", Kind::Check, 459, 443, 97, 27, 0x1002, "Disable/Clear"},
    {"Button4", Kind::Check, 234, 415, 97, 27, 0x1003, "Disable/Clear"},
    {"Button5", Kind::Check, 347, 415, 97, 27, 0x1004, "Disable/Clear"},
    {"Button6", Kind::Check, 459, 415, 97, 27, 0x1005, "Disable/Clear"},
    {"Button7", Kind::Check, 234, 357, 97, 27, 0x1006, "Disable/Clear"},
    {"Button8", Kind::Check, 347, 357, 97, 27, 0x1007, "Disable/Clear"},
    {"Button9", Kind::Check, 459, 357, 97, 27, 0x1008, "Disable/Clear"},
    {"Button10", Kind::Check, 234, 328, 97, 27, 0x1009, "Disable/Clear"},
    {"Button11", Kind::Check, 347, 328, 97, 27, 0x100A, "Disable/Clear"},
    {"Button12", Kind::Check, 459, 328, 97, 27, 0x100B, "Disable/Clear"},
    {"Button13", Kind::Check, 234, 271, 97, 27, 0x100C, "Disable/Clear"},
    {"Button14", Kind::Check, 347, 271, 97, 27, 0x100D, "Disable/Clear"},
    {"ButtonOK", Kind::Push, 458, 289, 117, 31, 0x1011, "OK"},
    {"ButtonCancel", Kind::Push, 458, 255, 117, 31, 0x1012, "CANCEL"},
    {"ButtonApply", Kind::Push, 458, 220, 117, 31, 0x1013, "APPLY"},
    {"ButtonRestore", Kind::Push, 214, 221, 117, 31, 0x1031, "Restore Defaults"},
    {"ButtonSaveToDevice", Kind::Push, 74, 305, 117, 31, 0x1032, "Save On Board"},
    {"BtnProfile1", Kind::Check, 164, 512, 42, 35, 0x1014, ""},
    {"BtnProfile2", Kind::Check, 205, 512, 42, 35, 0x1015, ""},
    {"BtnProfile3", Kind::Check, 245, 512, 42, 35, 0x1016, ""},
    {"BtnProfile4", Kind::Check, 284, 512, 42, 35, 0x1017, ""},
    {"BtnProfile5", Kind::Check, 324, 512, 42, 35, 0x1018, ""},
    {"BtnProfile6", Kind::Check, 364, 512, 42, 35, 0x1019, ""},
    {"BtnProfile7", Kind::Check, 404, 512, 42, 35, 0x101A, ""},
    {"BtnProfile8", Kind::Check, 444, 512, 42, 35, 0x101B, ""},
    {"BtnProfile9", Kind::Check, 484, 512, 42, 35, 0x101C, ""},
    {"BtnProfile10", Kind::Check, 524, 512, 42, 35, 0x101D, ""},
    {"BtnMin", Kind::Push, 524, 586, 23, 23, 0x1024, ""},
    {"BtnHelp", Kind::Push, 551, 586, 23, 23, 0x1026, ""},
    {"BtnClose", Kind::Push, 575, 586, 23, 23, 0x1025, ""},
    {"BtnProfileMenu", Kind::Push, 65, 550, 60, 20, 0x1027, "Profile"},
    {"BtnToolsMenu", Kind::Push, 130, 550, 60, 20, 0x1028, "Tools"},
    {"BtnHelpMenu", Kind::Push, 195, 550, 60, 20, 0x1029, "Help"},
    {"chkGameMode", Kind::Check, 56, 398, 17, 17, 0x1030, ""},
    {"MSMemoryUsageBar", Kind::Bar, 60, 350, 90, 18, 0x102A, ""},
};
// clang-format on
