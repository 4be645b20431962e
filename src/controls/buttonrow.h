#pragma once

#include "platform/uprect.h"

/// A button of a window, or a bar, as a row of the window's table.
struct ButtonRow
{
    const char *name = ""; ///< the button's object name
    UpRect frame;
    int tag = 0;
    const char *caption = "";     ///< written on it; empty where the skin says it
    const char *description = ""; ///< what it is called for assistive technology
    int arrowWidth = 0;           ///< of the field of an arrow at its right
};

/// The field of the arrow on a button that shows a value and opens a list.
inline constexpr int kArrowField = 20;
