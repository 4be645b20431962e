#pragma once

#include "panels/levellook.h"

/// The controls of the bottom bar.
namespace bottombar {

enum Tag {
    kToggleTag = 4096,
    kIntensityTag,
    kPulsationTag,
    kIntensityListTag,
    kPulsationListTag,
    kColorButtonTag,
    kColorListTag,
};

inline constexpr UpRect kInside{0, 0, 466, 101};

inline constexpr const char *kIntensities[] = {"High", "Medium", "Low", "Off"};
inline constexpr const char *kPulsations[] = {"Fast", "Medium", "Low", "Off"};

/// In the order of Level.
inline constexpr LevelLook kLevels[] = {
    {{"btnIntensity", {167, 25, 122, 29}, kIntensityTag, "", "Intensity", kArrowField},
     kIntensityListTag,
     kIntensities,
     &ProfileInfo::LED_INTENSITY,
     "IDC_LISTBOX_INTENSITY:%d"},
    // Logged under the name of the intensity too, on purpose.
    {{"btnPulsation", {314, 25, 122, 29}, kPulsationTag, "", "Pulsation", kArrowField},
     kPulsationListTag,
     kPulsations,
     &ProfileInfo::LED_PULSATION,
     "IDC_LISTBOX_INTENSITY:%d"},
};

inline constexpr ButtonRow kColorButton{
    "btnColorButton", {20, 26, 122, 29}, kColorButtonTag, "", "Color"};

static_assert(kInside.holds(kColorButton.frame) && kInside.holds(kLevels[0].button.frame) &&
              kInside.holds(kLevels[1].button.frame));

} // namespace bottombar
