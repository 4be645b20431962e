#pragma once

#include <functional>

class QWidget;

/// Calls `rest` as soon as `window`, which has been shown, has been painted for the first time and
/// the picture is on its way to the screen: what need not be there before must not hold it up.
/// Nothing else that happens to the program comes between. Of several calls for a window the first
/// comes first.
void afterFirstPainting(QWidget &window, std::function<void()> rest);
