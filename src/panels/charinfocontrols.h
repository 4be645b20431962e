#pragma once

#include "controls/buttonrow.h"

#include <cstdint>

/// What ends the character dialog, by its buttons' tags.
inline constexpr std::int32_t kCharInfoClose = 0x1000;
inline constexpr std::int32_t kCharInfoOK = 0x1001;
inline constexpr std::int32_t kCharInfoCancel = 0x1002;

/// The controls of the character dialog whose faces its pictures show.
namespace charinfo {

inline constexpr int kWidth = 453;
inline constexpr int kHeight = 215;

inline constexpr int kRegionTag = 0x1003;

/// In the order of the tab key, which the fields head.
inline constexpr ButtonRow kButtons[] = {
    {"ButtonRegion", {294, 115, 150, 29}, kRegionTag, "", "Region", kArrowField},
    {"ButtonOK", {147, 7, 80, 35}, kCharInfoOK, "OK", "OK"},
    {"ButtonCancel", {226, 7, 80, 35}, kCharInfoCancel, "Cancel", "Cancel"},
    {"ButtonClose", {423, 187, 25, 25}, kCharInfoClose, "", "Close"},
};

} // namespace charinfo
