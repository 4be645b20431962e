#pragma once

#include <QtCore/QPointer>

class custumwindow;

/// The application's delegate. It refers to the main window and does not own it.
class KyrGMAppDelegate
{
public:
    /// The main window; null when none was set or it is gone.
    custumwindow *window() const;
    void setWindow(custumwindow *window);

    /// Nothing: all start-up work is done by the views as they wake up.
    void applicationDidFinishLaunching() {}

private:
    QPointer<custumwindow> m_window;
};
