#pragma once

#include <QtCore/QPointer>

class QWidget;

/// Runs a window modally: the program's other windows take no input until the run is over. Runs
/// nest; an inner one ends before the outer one goes on.
class ModalRun
{
public:
    ModalRun() = default;
    /// Ends the run: whoever owns it may go while it runs.
    ~ModalRun();
    ModalRun(const ModalRun &) = delete;
    ModalRun &operator=(const ModalRun &) = delete;

    /// Shows `window` application-modal, gives it the keyboard, and handles events until the run is
    /// stopped, the window is hidden, closed or destroyed, or the program ends. The window, and
    /// whoever owns this object, may be gone afterwards. Otherwise the window stays as it is: still
    /// shown after stop(), and in the way of the others until it is hidden. Does nothing while it
    /// runs already.
    void run(QWidget &window);
    /// Ends the run, as soon as the runs inside it have ended. Without a run it does nothing.
    void stop();

private:
    class Loop;
    QPointer<Loop> m_loop; ///< lives in run(), which may outlive this object
};
