#include "platform/modalrun.h"

#include "platform/keywindow.h"

#include <QtCore/QEvent>
#include <QtCore/QEventLoop>
#include <QtWidgets/QWidget>

/// Ends when its window is hidden, as it also is when it is closed or destroyed; also before it was
/// run.
class ModalRun::Loop : public QEventLoop
{
public:
    explicit Loop(QWidget &window) { window.installEventFilter(this); }

    void end()
    {
        m_over = true;
        exit();
    }
    void runToItsEnd()
    {
        if (!m_over)
            exec();
    }

protected:
    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        // The desktop hides a window, too, when it is minimised: that is not an end.
        if (event->type() == QEvent::Hide && !event->spontaneous())
            end();
        return false;
    }

private:
    bool m_over = false;
};

ModalRun::~ModalRun()
{
    stop();
}

void ModalRun::run(QWidget &window)
{
    if (m_loop)
        return;
    // A window that is shown already would not become modal.
    if (!window.isModal())
        window.hide();
    window.setWindowModality(Qt::ApplicationModal);
    Loop loop(window);
    m_loop = &loop;
    makeKeyAndOrderFront(window);
    loop.runToItsEnd();
}

void ModalRun::stop()
{
    if (m_loop)
        m_loop->end();
}
