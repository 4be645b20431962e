#include "platform/doubleclickguard.h"

#include <QtGui/QCursor>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QApplication>

void DoubleClickGuard::arm(quint64 clickedAt)
{
    m_place = QCursor::pos();
    m_clickedAt = clickedAt;
    qApp->installEventFilter(this);
}

bool DoubleClickGuard::eventFilter(QObject *watched, QEvent *event)
{
    const bool press = event->type() == QEvent::MouseButtonPress;
    const bool doubleClick = event->type() == QEvent::MouseButtonDblClick;
    // The window below sees the event first, before any view in it.
    if ((!press && !doubleClick) || !watched->isWindowType())
        return false;
    const bool second = isSecondPress(*static_cast<QMouseEvent *>(event));
    // The toolkit tells of a second press twice: as a press, then as a double click.
    if (doubleClick || !second)
        qApp->removeEventFilter(this);
    return second;
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
