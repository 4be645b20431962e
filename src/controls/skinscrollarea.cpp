#include "controls/skinscrollarea.h"

SkinScrollArea::SkinScrollArea(QWidget *parent, int barWidth) : Framed(parent)
{
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    useSkinScrollBars(*this, barWidth);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

/// The toolkit's area, which is left out here, would show the middle of what gets the keyboard.
bool SkinScrollArea::focusNextPrevChild(bool next)
{
    return QWidget::focusNextPrevChild(next); // NOLINT(bugprone-parent-virtual-call)
}
