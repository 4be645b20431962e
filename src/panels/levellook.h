#pragma once

#include "controls/buttonrow.h"
#include "model/settings.h"

#include <span>

/// What tells one LevelChoice from another.
struct LevelLook
{
    ButtonRow button;
    int listTag = 0;
    std::span<const char *const> texts; ///< by code
    std::uint32_t ProfileInfo::*field = nullptr;
    const char *logLine = ""; ///< with the row of a choice as "%d"
};
