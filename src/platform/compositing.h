#pragma once

#include <QtCore/QEvent>

/// Whether what is behind the see-through parts of a window shows. On an X display it does while a
/// compositing manager runs, elsewhere always.
bool isComposited();

/// The event that every window of the program gets when that has changed. It is sent once someone
/// has asked whether.
QEvent::Type compositingChangedEvent();
