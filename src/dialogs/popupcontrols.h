#pragma once

#include "controls/buttonrow.h"

/// The bar of the progress window.
namespace popup {

inline constexpr int kWidth = 256;
inline constexpr int kHeight = 74;

inline constexpr ButtonRow kBar{
    "WriteToDeviceBar", {20, 18, 180, 16}, 0, "", "Progress of the on-board write"};

} // namespace popup
