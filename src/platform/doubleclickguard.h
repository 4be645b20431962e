#pragma once

#include <QtCore/QObject>
#include <QtCore/QPoint>

class QMouseEvent;

/// Keeps the second press of a double click from whatever stands below a window that the first
/// click has closed.
class DoubleClickGuard : public QObject
{
public:
    /// Starts the guard at the pointer's place; `clickedAt` is the time stamp of the click's event,
    /// in milliseconds. The next press anywhere ends it; when it comes within the desktop's
    /// double-click time, at the same place, it reaches nobody.
    void arm(quint64 clickedAt);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool isSecondPress(const QMouseEvent &event) const;

    QPoint m_place;
    quint64 m_clickedAt = 0;
};
