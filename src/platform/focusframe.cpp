#include "platform/focusframe.h"

#include <QtGui/QFocusEvent>
#include <QtWidgets/QWidget>

void FocusFrame::focusIn(const QFocusEvent &event)
{
    const Qt::FocusReason reason = event.reason();
    if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason)
        m_byKey = reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason;
}

bool FocusFrame::isShown(const QWidget &view) const
{
    return view.hasFocus() && m_byKey;
}
