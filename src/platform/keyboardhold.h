#pragma once

class QWidget;

/// Has all keys come to `window`, the desktop's own shortcuts included, until it is let go or the
/// window hides; and has a key that is held down sent as presses only, without releases between
/// them. Where the display does not offer that, what the desktop leaves comes as it is.
void holdKeyboard(QWidget &window, bool hold);
