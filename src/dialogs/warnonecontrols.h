#pragma once

#include "controls/buttonrow.h"
#include "dialogs/dialogtags.h"

/// The controls of the warning.
namespace warnone {

inline constexpr int kWidth = 387;
inline constexpr int kHeight = 176;

inline constexpr ButtonRow kButtons[] = {
    {"ButtonClose", {354, 144, 23, 23}, kDialogCloseTag, "", "Close"},
    {"ButtonOK", {135, 16, 117, 31}, kDialogOKTag, "OK", "OK"},
};

} // namespace warnone
