#pragma once

#include "controls/buttonrow.h"
#include "dialogs/dialogtags.h"

/// The controls of the about box.
namespace about {

inline constexpr int kWidth = 258;
inline constexpr int kHeight = 176;

inline constexpr ButtonRow kButtons[] = {
    {"ButtonClose", {225, 144, 23, 23}, kDialogCloseTag, "", "Close"},
};

} // namespace about
