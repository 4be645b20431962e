#include "panels/colorbutton.h"

namespace {

/// The swatch within a button of this size: the picture's frame and its arrow stay free.
UpRect swatch(UpRect bounds)
{
    return {4, 3, bounds.width - 28, bounds.height - 9};
}

} // namespace

QString colorInWords(std::uint32_t red, std::uint32_t green, std::uint32_t blue)
{
    return QStringLiteral("red %1, green %2, blue %3").arg(red).arg(green).arg(blue);
}

colorbutton::colorbutton(QWidget *parent, UpRect frame) : ViewOf(parent)
{
    setFrame(frame);
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_NoMousePropagation);
    connect(this, &QAbstractButton::pressed, this, [this] { LeftDownAction.send(this); });
}

void colorbutton::setFillColor(std::uint32_t Red, std::uint32_t Green, std::uint32_t Blue)
{
    _red = Red;
    _green = Green;
    _blue = Blue;
    setAccessibleDescription(colorInWords(Red, Green, Blue));
    update();
}

void colorbutton::setNormalImage(const SkinImage &image)
{
    NormalImage = image;
    update();
}

void colorbutton::setHoverImage(const SkinImage &image)
{
    HoverImage = image;
    update();
}

void colorbutton::drawRect(Canvas &canvas)
{
    canvas.drawImage(bHover ? HoverImage : NormalImage);
    canvas.fill(swatch(canvas.bounds()), colourOf(_red, _green, _blue));
    if (m_focusFrame.isShown(*this))
        canvas.outline(canvas.bounds(), kGold);
}

void colorbutton::focusInEvent(QFocusEvent *event)
{
    m_focusFrame.focusIn(*event);
    ViewOf::focusInEvent(event);
}

void colorbutton::enterEvent(QEnterEvent *event)
{
    ViewOf::enterEvent(event);
    setHover(true);
}

void colorbutton::leaveEvent(QEvent *event)
{
    ViewOf::leaveEvent(event);
    setHover(false);
}

void colorbutton::setHover(bool hover)
{
    bHover = hover;
    update();
}
