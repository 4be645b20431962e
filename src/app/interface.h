#pragma once

#include "controls/custumwindow.h"
#include "mainview/environment.h"

#include <memory>

class MainView;
class windowcontroll;

/// The description of the interface: the windows, their places, what fills them and who is linked
/// to whom.
class Interface
{
public:
    /// Makes the main window in the middle of the screen with the main view in it, shows it and
    /// wakes the view up. Once that has been painted come the three bars, closed, at its sides.
    explicit Interface(const Environment &environment);
    ~Interface();
    Interface(const Interface &) = delete;
    Interface &operator=(const Interface &) = delete;

    custumwindow &mainWindow() const { return *m_mainWindow; }
    MainView &mainView() const { return *m_mainView; }
    windowcontroll &controller() const { return *m_controll; }

private:
    void showMainWindow();
    void showBars();

    std::unique_ptr<custumwindow> m_mainWindow;
    MainView *m_mainView; ///< owned by the window, as are the bars, and by them their views
    custumwindow *m_leftBar;
    custumwindow *m_rightBar;
    custumwindow *m_bottomBar;
    std::unique_ptr<windowcontroll> m_controll;
};
