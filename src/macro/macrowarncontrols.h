#pragma once

#include "controls/buttonrow.h"
#include "dialogs/dialogtags.h"

/// The controls of the question before a macro is deleted.
namespace macrowarn {

inline constexpr int kWidth = 387;
inline constexpr int kHeight = 176;

inline constexpr ButtonRow kButtons[] = {
    {"ButtonClose", {354, 145, 27, 27}, kDialogCloseTag, "", "Close"},
    {"ButtonOK", {114, 6, 81, 38}, kDialogOKTag, "OK", "OK"},
    {"ButtonCancel", {194, 6, 81, 38}, kDialogCancelTag, "Cancel", "Cancel"},
};

inline constexpr const char *kDontShow = "Don't show it again.";
/// It has pictures of its own.
inline constexpr ButtonRow kCheckBox{"CheckButtonDel", {17, 66, 18, 18}, 4099, "", kDontShow};

} // namespace macrowarn
