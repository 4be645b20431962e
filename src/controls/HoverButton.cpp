#include "controls/HoverButton.h"

#include "controls/wholetext.h"
#include "platform/numbers.h"

#include <QtCore/QMimeData>
#include <QtGui/QContextMenuEvent>
#include <QtGui/QHelpEvent>

namespace {

constexpr int kCaptionSize = 10;
constexpr int kCaptionMargin = 8; // clear of the lamps that light up in the pressed face
constexpr int kDropFrameWidth = 2;

/// Broad and bright, so that it shows beside the picture that is dragged.
void drawDropFrame(Canvas &canvas)
{
    UpRect frame = canvas.bounds();
    for (int line = 0; line < kDropFrameWidth; ++line) {
        canvas.outline(frame, kGoldBright);
        frame = {frame.x + 1, frame.y + 1, frame.width - 2, frame.height - 2};
    }
}

} // namespace

HoverButton::HoverButton(QWidget *parent, UpRect frame) : ViewOf(parent)
{
    setFrame(frame);
    setAcceptDrops(true);
    // Clicks leave the keyboard where it is; the tab key reaches every button.
    setFocusPolicy(Qt::TabFocus);
    // A press on a button, also on a disabled one, is never a press on the window behind it.
    setAttribute(Qt::WA_NoMousePropagation);
    connect(this, &QAbstractButton::clicked, this, [this] { m_action.send(this); });
}

void HoverButton::setNormalImage(const SkinImage &image)
{
    NormalImage = image;
    showFace(NormalImage);
}

void HoverButton::setHoverImage(const SkinImage &image)
{
    HoverImage = image;
}

void HoverButton::setAlternateImage(const SkinImage &image)
{
    AlternateImage = image;
    update();
}

void HoverButton::setDisableImage(const SkinImage &image)
{
    DisableImage = image;
}

void HoverButton::setCaptionText(const QString &text)
{
    m_caption = text;
    setAccessibleDescription(text);
    update();
}

void HoverButton::setArrowWidth(int width)
{
    m_arrowWidth = width;
    update();
}

UpRect HoverButton::captionRect() const
{
    return {kCaptionMargin, 0, width() - m_arrowWidth - 2 * kCaptionMargin, height()};
}

void HoverButton::setAction(const Action<HoverButton *> &action)
{
    m_action = action;
}

void HoverButton::setRightAction(const Action<HoverButton *> &action)
{
    if (!m_bEnableDisable)
        RightAction = action;
}

void HoverButton::enableDragDrop(const Action<HoverButton *> &action)
{
    bCanDragDrop = true;
    GetDragAction = action;
}

void HoverButton::setDisable(bool disable)
{
    // Disabling passes the keyboard on as the tab key would, and with it the frame that shows where
    // it is: not before a player has asked for that.
    if (disable && hasFocus() && !showsKeyboard())
        clearFocus();
    m_bEnableDisable = disable;
    setEnabled(!disable);
    if (!disable)
        showFace(NormalImage);
    else if (!DisableImage.isNull())
        showFace(DisableImage);
}

void HoverButton::drawRect(Canvas &canvas)
{
    const bool showsDisabled = m_bEnableDisable && !DisableImage.isNull();
    const bool pressed = isPressedOrOn() && !showsDisabled;
    canvas.drawImage(pressed && !AlternateImage.isNull() ? AlternateImage : m_shown);
    const QColor colour = m_bEnableDisable ? kFaint : pressed ? kWhite : kGold;
    canvas.drawLine(m_caption, captionRect(), colour, TextAlign::Centre, kCaptionSize);
    if (showsKeyboard())
        canvas.outline(canvas.bounds(), kGold);
    if (m_isDropTarget)
        drawDropFrame(canvas);
}

void HoverButton::rightMouseDown(const ViewMouseEvent &event)
{
    const QPointer<HoverButton> alive(this);
    if (!m_bEnableDisable)
        RightAction.send(this);
    if (alive)
        ViewOf::rightMouseDown(event);
}

void HoverButton::focusInEvent(QFocusEvent *event)
{
    m_focusFrame.focusIn(*event);
    ViewOf::focusInEvent(event);
}

void HoverButton::contextMenuEvent(QContextMenuEvent *event)
{
    // By mouse the press has done it already.
    if (event->reason() == QContextMenuEvent::Keyboard && !m_bEnableDisable)
        RightAction.send(this);
}

void HoverButton::enterEvent(QEnterEvent *event)
{
    ViewOf::enterEvent(event);
    showHover();
}

void HoverButton::leaveEvent(QEvent *event)
{
    ViewOf::leaveEvent(event);
    showNormal();
}

void HoverButton::dragEnterEvent(QDragEnterEvent *event)
{
    if (m_bEnableDisable || !bCanDragDrop || event->source() == this ||
        !event->mimeData()->hasFormat(QStringLiteral("text/plain")))
        return;
    event->setDropAction(Qt::CopyAction);
    event->accept();
    setDropTarget(true);
}

void HoverButton::dragLeaveEvent(QDragLeaveEvent * /*event*/)
{
    setDropTarget(false);
}

void HoverButton::dropEvent(QDropEvent *event)
{
    m_DropIndex = leadingInteger(event->mimeData()->text().toStdString());
    event->setDropAction(Qt::CopyAction);
    event->accept();
    setDropTarget(false);
    GetDragAction.send(this);
}

bool HoverButton::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return ViewOf::event(event);
    showWholeText(*static_cast<QHelpEvent *>(event), *this, m_caption,
                  QFontMetrics(systemFont(kCaptionSize)), captionRect().width);
    return true;
}

void HoverButton::showFace(const SkinImage &image)
{
    m_shown = image;
    update();
}

void HoverButton::showHover()
{
    if (!m_bEnableDisable)
        showFace(HoverImage.isNull() ? NormalImage : HoverImage);
}

void HoverButton::setDropTarget(bool isTarget)
{
    m_isDropTarget = isTarget;
    isTarget ? showHover() : showNormal();
}

void HoverButton::showNormal()
{
    if (!m_bEnableDisable)
        showFace(NormalImage);
}
