#pragma once

class QWidget;

/// Keeps a window that belongs to another one out of the desktop's task switcher and task bar. To
/// be called each time before it comes to the screen; on desktops that have no such request, or
/// that leave such windows out by themselves, it does nothing.
void keepOutOfTaskSwitcher(const QWidget &window);
