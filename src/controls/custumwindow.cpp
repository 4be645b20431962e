#include "controls/custumwindow.h"

#include <QtGui/QCloseEvent>
#include <QtGui/QScreen>

#include <algorithm>

UpPoint draggedOrigin(UpRect frame, UpPoint location, UpPoint initialLocation, UpRect visible)
{
    const int x = frame.x + (location.x - initialLocation.x);
    const int y = frame.y + (location.y - initialLocation.y);
    return {x, std::min(y, visible.y + visible.height - frame.height)};
}

custumwindow::custumwindow(UpRect contentRect, QWidget *owner)
    : View(owner, Qt::FramelessWindowHint | (owner ? Qt::Tool : Qt::Window))
{
    setAttribute(Qt::WA_TranslucentBackground);
    setFrame(contentRect);
}

void custumwindow::setContentView(View *view)
{
    m_contentView = view;
    view->setParent(this);
    view->setFrame({0, 0, width(), height()});
    view->show();
}

void custumwindow::resizeEvent(QResizeEvent *event)
{
    View::resizeEvent(event);
    if (m_contentView)
        m_contentView->setFrame({0, 0, width(), height()});
}

void custumwindow::center()
{
    const UpRect visible = visibleFrame();
    setFrame({visible.x + (visible.width - width()) / 2,
              visible.y + (visible.height - height()) / 2, width(), height()});
}

void custumwindow::mouseDown(const ViewMouseEvent &event)
{
    m_initialLocation = event.windowPosition;
}

void custumwindow::mouseDragged(const ViewMouseEvent &event)
{
    if (!m_bCanDragWindow)
        return;
    const UpRect now = frame();
    // Taken from the screen: the position within the window is that of a moment ago, when the
    // window still stood elsewhere.
    const UpPoint pointer = hostOf(*this).up(event.event->globalPosition().toPoint());
    const UpPoint origin = draggedOrigin(now, {pointer.x - now.x, pointer.y - now.y},
                                         m_initialLocation, visibleFrame());
    setFrame({origin.x, origin.y, now.width, now.height});
}

void custumwindow::closeEvent(QCloseEvent *event)
{
    if (!m_closeRequest)
        return View::closeEvent(event);
    event->ignore();
    m_closeRequest.send();
}

UpRect custumwindow::visibleFrame() const
{
    return hostOf(*this).up(screen()->availableGeometry());
}
