#include "platform/view.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>

UpHost hostOf(const QWidget &view)
{
    if (!view.isWindow())
        return UpHost(view.parentWidget()->height());
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    return UpHost(screen.y() + screen.height());
}

UpPoint onScreen(const QWidget &view, UpPoint point)
{
    const QPoint there = view.mapToGlobal(UpHost(view.height()).down(point));
    return hostOf(*view.window()).up(there);
}

void placeChildren(const QWidget &view)
{
    for (QObject *child : view.children()) {
        // A window among the children has its place on the screen.
        const auto *const widget = qobject_cast<QWidget *>(child);
        if (auto *placed = dynamic_cast<Placed *>(child); placed && !widget->isWindow())
            placed->place();
    }
}
