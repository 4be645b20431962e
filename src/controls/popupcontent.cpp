#include "controls/popupcontent.h"

#include "platform/systemlog.h"

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
