#pragma once

#include "controls/buttonrow.h"
#include "dialogs/dialogtags.h"

/// The controls of the question.
namespace warntwo {

inline constexpr int kWidth = 387;
inline constexpr int kHeight = 176;

inline constexpr ButtonRow kButtons[] = {
    {"ButtonClose", {354, 144, 23, 23}, kDialogCloseTag, "", "Close"},
    {"ButtonOK", {66, 16, 117, 31}, kDialogOKTag, "OK", "OK"},
    {"ButtonCancel", {204, 16, 117, 31}, kDialogCancelTag, "Cancel", "Cancel"},
};

} // namespace warntwo
