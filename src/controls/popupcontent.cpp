#include "controls/popupcontent.h"

#include "platform/systemlog.h"

void PopupContent::setFramed(bool framed)
{
    m_isFramed = framed;
    update();
}

UpRect PopupContent::insideFrame(UpRect place) const
{
    const UpHost host(height());
    const int width = m_isFramed ? kPopupFrame : 0;
    return host.up(host.down(place).intersected(rect().adjusted(width, width, -width, -width)));
}

void PopupContent::drawRect(Canvas &canvas)
{
    drawContent(canvas);
    if (!m_isFramed)
        return;
    const UpRect whole = canvas.bounds();
    canvas.outline(whole, kRim);
    canvas.outline({1, 1, whole.width - 2, whole.height - 2}, kGoldLight, kGoldDark);
}

void PopupContent::observeWindowKeyChangeStart(const Action<PopupContent *> &action)
{
    FocusChangeAction = action;
    m_keyWatch.start(window(), [this] { windowKeyChange(); });
}

void PopupContent::observeWindowKeyChangeStop()
{
    m_keyWatch.stop();
    FocusChangeAction = {};
}

void PopupContent::windowKeyChange()
{
    systemLog("windowKeyChange");
    FocusChangeAction.send(this);
}

void PopupContent::mouseUp(const ViewMouseEvent &event)
{
    m_releasedAt = event.event->timestamp();
}

void PopupContent::keyDown(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        return FocusChangeAction.send(this);
    View::keyDown(event);
}
