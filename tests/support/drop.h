#pragma once

#include <QtCore/QMimeData>
#include <QtGui/QDragEnterEvent>
#include <QtGui/QDragLeaveEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

/// Brings a drag with `data` over the middle of `target`. True when the target takes it.
inline bool dragOver(QWidget &target, const QMimeData &data)
{
    QDragEnterEvent enter(target.rect().center(), Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&target, &enter);
    return enter.isAccepted();
}

inline void dragAway(QWidget &target)
{
    QDragLeaveEvent leave;
    QApplication::sendEvent(&target, &leave);
}

/// Drags `data` onto the middle of `target` and lets go. True when the target took it; like a real
/// drag, one that was refused on its way in is never dropped.
inline bool dropOn(QWidget &target, const QMimeData &data)
{
    if (!dragOver(target, data))
        return false;
    QDropEvent drop(target.rect().center(), Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&target, &drop);
    return drop.isAccepted();
}

inline bool dropText(QWidget &target, const QString &text)
{
    QMimeData data;
    data.setText(text);
    return dropOn(target, data);
}
