#include "app/firstpainting.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtGui/QWindow>
#include <QtWidgets/QWidget>

#include <utility>

namespace {

/// Waits for one painting and is gone.
class FirstPainting : public QObject
{
public:
    FirstPainting(QWindow &window, std::function<void()> rest)
        : QObject(&window), m_rest(std::move(rest))
    {
        window.installEventFilter(this);
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::Paint)
            return false;
        watched->removeEventFilter(this);
        deleteLater();
        // Painted in here: one that was set to wait before this one is called in here, too.
        QCoreApplication::sendEvent(watched, event);
        m_rest();
        return true;
    }

private:
    std::function<void()> m_rest;
};

} // namespace

void afterFirstPainting(QWidget &window, std::function<void()> rest)
{
    new FirstPainting(*window.windowHandle(), std::move(rest));
}
