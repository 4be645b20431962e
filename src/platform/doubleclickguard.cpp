#include "platform/doubleclickguard.h"

#include <QtGui/QCursor>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QApplication>

void DoubleClickGuard::arm(quint64 clickedAt)
{
    m_place = QCursor::pos();
    m_clickedAt = clickedAt;
    m_keepsRelease = false;
    qApp->installEventFilter(this);
}

bool DoubleClickGuard::eventFilter(QObject *watched, QEvent *event)
{
    // The window below sees the event first, before any view in it.
    if (!watched->isWindowType())
        return false;
    // The toolkit tells of a second press twice: as a press, then as a double click.
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick)
        m_keepsRelease = isSecondPress(*static_cast<QMouseEvent *>(event));
    else if (event->type() != QEvent::MouseButtonRelease || !m_keepsRelease)
        return false;
    if (!m_keepsRelease || event->type() == QEvent::MouseButtonRelease)
        qApp->removeEventFilter(this);
    return m_keepsRelease;
}

bool DoubleClickGuard::isSecondPress(const QMouseEvent &event) const
{
    const QPoint way = event.globalPosition().toPoint() - m_place;
    // The events' own time: a busy program may come to them late.
    const auto since = event.timestamp() - m_clickedAt;
    return event.button() == Qt::LeftButton &&
           since < static_cast<quint64>(QApplication::doubleClickInterval()) &&
           way.manhattanLength() < QApplication::startDragDistance();
}
