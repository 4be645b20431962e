#pragma once

#include "controls/custumwindow.h"
#include "mainview/environment.h"

#include <memory>

class MainView;

/// The description of the interface: the windows, their places and what fills them.
class Interface
{
public:
    /// Makes the main window in the middle of the screen with the main view in it, shows it and
    /// wakes the view up.
    explicit Interface(const Environment &environment);

    custumwindow &mainWindow() const { return *m_mainWindow; }
    MainView &mainView() const { return *m_mainView; }

private:
    std::unique_ptr<custumwindow> m_mainWindow;
    MainView *m_mainView; ///< owned by the window
};
