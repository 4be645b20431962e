#include "controls/custumwindow.h"

#include "controls/shapedcontent.h"
#include "platform/compositing.h"
#include "platform/keywindow.h"
#include "platform/taskswitcher.h"
#include "platform/windowshape.h"

#include <QtGui/QCloseEvent>
#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>

#include <algorithm>
#include <utility>

namespace {

/// The screen that the pointer is on; the window's own where it is on none.
const QScreen &screenOf(const QWidget &window, QPoint pointer)
{
    const QScreen *const under = QGuiApplication::screenAt(pointer);
    return under ? *under : *window.screen();
}

/// A start for something of size `length` in the middle of a span, kept inside `bounds` where it
/// fits there.
int centred(int start, int span, int length, int boundsStart, int boundsSpan)
{
    const int most = std::max(boundsStart, boundsStart + boundsSpan - length);
    return std::clamp(start + (span - length) / 2, boundsStart, most);
}

} // namespace

UpRect visibleFrame(const QWidget &window, const QScreen &screen)
{
    return hostOf(window).up(screen.availableGeometry());
}

UpPoint draggedOrigin(UpRect frame, UpPoint location, UpPoint initialLocation, UpRect visible)
{
    const int x = frame.x + (location.x - initialLocation.x);
    const int y = frame.y + (location.y - initialLocation.y);
    return {x, std::min(y, visible.y + visible.height - frame.height)};
}

custumwindow::custumwindow(UpRect contentRect, QWidget *owner, Qt::WindowType type)
    : View(owner, Qt::FramelessWindowHint | (owner ? type : Qt::Window))
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

void custumwindow::showEvent(QShowEvent *event)
{
    if (windowType() == Qt::Tool && !event->spontaneous())
        keepOutOfTaskSwitcher(*this);
    takeShape();
    View::showEvent(event);
}

void custumwindow::resizeEvent(QResizeEvent *event)
{
    View::resizeEvent(event);
    if (m_contentView)
        m_contentView->setFrame({0, 0, width(), height()});
    takeShape();
}

/// In pixels of the screen; none where the content has no shape or has not come yet.
QRegion custumwindow::contentShape() const
{
    const auto *const content = dynamic_cast<const ShapedContent *>(m_contentView.data());
    if (!content || content->background().isNull() || isComposited())
        return {};
    const SkinImage &picture = content->background();
    const QSize size = picture.size();
    const UpPoint origin = content->backgroundOrigin();
    const QPoint corner =
        UpHost(height()).down(UpRect{origin.x, origin.y, size.width(), size.height()}).topLeft();
    const qreal scale = devicePixelRatio();
    return opaqueShape(picture, scale).translated((QPointF(corner) * scale).toPoint());
}

void custumwindow::takeShape()
{
    if (!isVisible())
        return;
    const QRegion shape = contentShape();
    if (shape.isEmpty() && !m_isCutOut)
        return;
    shapeWindow(*this, shape);
    m_isCutOut = !shape.isEmpty();
}

void custumwindow::center()
{
    const QWidget *const owner = parentWidget();
    const UpRect visible = visibleFrame(*this, owner ? *owner->screen() : *screen());
    setFrame({visible.x + (visible.width - width()) / 2,
              visible.y + (visible.height - height()) / 2, width(), height()});
}

void custumwindow::centerOver(const QWidget &other)
{
    const UpRect under = hostOf(other).up(other.geometry());
    const UpRect visible = visibleFrame(other, *other.screen());
    setFrame({centred(under.x, under.width, width(), visible.x, visible.width),
              centred(under.y, under.height, height(), visible.y, visible.height), width(),
              height()});
}

void custumwindow::mouseDown(const ViewMouseEvent &event)
{
    m_initialLocation = event.windowPosition;
}

void custumwindow::mouseDragged(const ViewMouseEvent &event)
{
    if (!m_bCanDragWindow)
        return;
    // Taken from the screen: the position within the window is that of a moment ago, when the
    // window still stood elsewhere.
    const QPoint there = event.event->globalPosition().toPoint();
    const UpPoint pointer = hostOf(*this).up(there);
    const UpRect own = frame();
    custumwindow &moved = m_dragMoves ? *m_dragMoves : *this;
    const UpRect now = moved.frame();
    const UpPoint origin =
        draggedOrigin(now, {pointer.x - own.x, pointer.y - own.y}, m_initialLocation,
                      visibleFrame(*this, screenOf(*this, there)));
    moved.setFrame({origin.x, origin.y, now.width, now.height});
}

void custumwindow::closeEvent(QCloseEvent *event)
{
    if (!m_closeRequest)
        return View::closeEvent(event);
    event->ignore();
    m_closeRequest.send();
}

void custumwindow::setTabNeighbours(custumwindow *previous, custumwindow *next)
{
    m_tabPrevious = previous;
    m_tabNext = next;
}

std::vector<QWidget *> custumwindow::tabStops() const
{
    std::vector<QWidget *> stops;
    for (QWidget *at = nextInFocusChain(); at && at != this; at = at->nextInFocusChain()) {
        if (at->window() == this && at->isVisible() && at->isEnabled() &&
            (at->focusPolicy() & Qt::TabFocus))
            stops.push_back(at);
    }
    return stops;
}

/// Gives the keyboard to the first control, or by the way back to the last; false where none takes
/// it.
bool custumwindow::enterByTab(Qt::FocusReason reason)
{
    const std::vector<QWidget *> stops = tabStops();
    if (stops.empty())
        return false;
    makeKeyFor(reason == Qt::TabFocusReason ? *stops.front() : *stops.back(), reason);
    return true;
}

void custumwindow::makeKeyFor(QWidget &control, Qt::FocusReason reason)
{
    control.setFocus(Qt::OtherFocusReason);
    // Why it has the keyboard can be told it only once the window is active.
    m_entry = reason;
    makeKeyAndOrderFront(*this);
}

bool custumwindow::event(QEvent *event)
{
    if (event->type() == QEvent::WindowActivate && m_entry && focusWidget())
        focusWidget()->setFocus(*std::exchange(m_entry, {}));
    if (event->type() == compositingChangedEvent())
        takeShape();
    return View::event(event);
}

bool custumwindow::focusNextPrevChild(bool next)
{
    const std::vector<QWidget *> stops = tabStops();
    const bool atEnd = !stops.empty() && focusWidget() == (next ? stops.back() : stops.front());
    const auto beside = [next](const custumwindow &window) {
        return (next ? window.m_tabNext : window.m_tabPrevious).data();
    };
    const Qt::FocusReason reason = next ? Qt::TabFocusReason : Qt::BacktabFocusReason;
    // A window without a control to give the keyboard to is passed by.
    for (custumwindow *at = beside(*this); atEnd && at && at != this; at = beside(*at)) {
        if (at->isVisible() && at->enterByTab(reason))
            return true;
    }
    return View::focusNextPrevChild(next);
}
