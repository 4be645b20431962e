#include "controls/pngListBox.h"

#include "controls/rowdrag.h"
#include "controls/scrollbars.h"
#include "controls/wholetext.h"

#include <QtGui/QHelpEvent>

#include <algorithm>

namespace {

constexpr int kTextSize = 11;
constexpr int kTextInset = 3; ///< the text stands in the row's strip shortened by this
constexpr int kFrameGap = 4;  ///< between the texts and a pop-up's frame
constexpr int kMarkWidth = 2;
constexpr int kMarkInset = 4; ///< of the mark, from the ends of its row

} // namespace

pngListBox::pngListBox(QWidget *parent, UpRect frame) : PopupContent(parent)
{
    setFrame(frame);
    setFocusPolicy(Qt::StrongFocus);
    setAcceptDrops(true);
}

int pngListBox::AddString(const QString &text)
{
    pListArray.append(text);
    update();
    return getCount();
}

void pngListBox::setcursel(int row)
{
    _currentpos = row;
    setAccessibleDescription(stringAt(row));
    update();
}

void pngListBox::setTextColor(double red, double Green, double Blue)
{
    _textColorR = red;
    _textColorG = Green;
    _textColorB = Blue;
    update();
}

void pngListBox::setForeColor(double red, double Green, double Blue)
{
    _foreColorR = red;
    _foreColorG = Green;
    _foreColorB = Blue;
    update();
}

void pngListBox::setTextAlign(TextAlign align)
{
    _textAlign = align;
    update();
}

void pngListBox::setItemHeight(int height)
{
    m_ItemHeight = std::max(1, height);
    update();
}

void pngListBox::setRightMargin(int margin)
{
    m_rightMargin = margin;
    update();
}

void pngListBox::setDBClickAction(const Action<pngListBox *> &action)
{
    dbClickAction = action;
    bEnableDBClick = true;
}

FunctionCode pngListBox::getfunctionid(int row) const
{
    // The three lists stand for 16 and up, 32 and up, 256 and up.
    constexpr FunctionCode firstCode[] = {16, 32, 256};
    if (!hasFunctions())
        return 0;
    return firstCode[_tag - kCpiListTag] + static_cast<FunctionCode>(row);
}

UpRect pngListBox::strip(int row) const
{
    return {0, height() - (row + 1) * m_ItemHeight, width(), m_ItemHeight};
}

UpRect pngListBox::textPlace(int row) const
{
    const UpRect whole = strip(row);
    const int side = isFramed() ? kPopupFrame + kFrameGap : 0;
    return {whole.x + side, whole.y, whole.width - 2 * side - m_rightMargin,
            whole.height - kTextInset};
}

/// A light in a pop-up's edge: there the selected row alone would hardly show.
void pngListBox::drawMark(Canvas &canvas, int row) const
{
    const UpRect at = strip(row);
    if (isFramed())
        canvas.fill({at.x + kPopupFrame, at.y + kMarkInset, kMarkWidth, at.height - 2 * kMarkInset},
                    kMoonBody);
}

/// -1 where there is no row.
int pngListBox::rowAt(int fromTop) const
{
    const int row = fromTop / m_ItemHeight;
    return fromTop >= 0 && row < getCount() ? row : -1;
}

void pngListBox::drawContent(Canvas &canvas)
{
    canvas.fill(canvas.bounds(), Qt::black);
    for (int row = 0; row < getCount(); ++row) {
        if (row == _currentpos) {
            canvas.fill(strip(row), colourOf(_foreColorR, _foreColorG, _foreColorB));
            drawMark(canvas, row);
        }
        canvas.drawLine(pListArray[row], textPlace(row),
                        colourOf(_textColorR, _textColorG, _textColorB), _textAlign, kTextSize);
    }
    if (!m_focusFrame.isShown(*this))
        return;
    // Of a list that scrolls, only the selected row is sure to be in sight.
    const bool hasRow = _currentpos >= 0 && _currentpos < getCount();
    canvas.outline(insideFrame(hasRow ? strip(_currentpos) : canvas.bounds()), kGold);
}

bool pngListBox::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return PopupContent::event(event);
    const auto &help = *static_cast<QHelpEvent *>(event);
    showWholeText(help, *this, stringAt(rowAt(help.y())), QFontMetrics(systemFont(kTextSize)),
                  textPlace(0).width);
    return true;
}

void pngListBox::focusInEvent(QFocusEvent *event)
{
    m_focusFrame.focusIn(*event);
    PopupContent::focusInEvent(event);
}

void pngListBox::mouseDown(const ViewMouseEvent &event)
{
    m_isDragged = false;
    if (event.clickCount > 1) {
        if (bEnableDBClick)
            dbClickAction.send(this);
        return;
    }
    m_pressedAt = event.event->position().toPoint();
    const int fromTop = height() - event.position.y;
    const int row = rowAt(fromTop);
    if (row >= 0)
        setcursel(row);
    update();
}

void pngListBox::mouseUp(const ViewMouseEvent &event)
{
    PopupContent::mouseUp(event);
    // The toolkit may send the release that has ended a drag here too.
    if (!m_isDragged)
        changeAction.send(this);
}

void pngListBox::mouseDragged(const ViewMouseEvent &event)
{
    if (!bEnableDragDrop || !hasFunctions() || m_isDragged ||
        !isDrag(m_pressedAt, event.event->position().toPoint()))
        return;
    if (_currentpos < 0 || _currentpos >= getCount())
        return;
    m_isDragged = true;
    dragRow(*this, UpHost(height()).down(strip(_currentpos)), m_pressedAt,
            QString::number(getfunctionid(_currentpos)));
}

void pngListBox::keyDown(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Up:
        return moveSelection(-1);
    case Qt::Key_Down:
        return moveSelection(+1);
    case Qt::Key_PageUp:
        return moveSelection(-rowsInSight());
    case Qt::Key_PageDown:
        return moveSelection(+rowsInSight());
    case Qt::Key_Home:
        return moveSelection(-getCount());
    case Qt::Key_End:
        return moveSelection(+getCount());
    case Qt::Key_F2:
        return dbClickAction.send(this);
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return changeAction.send(this);
    default:
        return PopupContent::keyDown(event);
    }
}

int pngListBox::rowsInSight() const
{
    return std::max(1, visibleRegion().boundingRect().height() / m_ItemHeight);
}

void pngListBox::moveSelection(int by)
{
    if (getCount() == 0)
        return;
    setcursel(std::clamp(_currentpos + by, 0, getCount() - 1));
    scrollIntoView(*this, UpHost(height()).down(strip(_currentpos)));
}
