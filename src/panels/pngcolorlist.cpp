#include "panels/pngcolorlist.h"

#include "panels/colorbutton.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr int kStep = 4;      ///< of the cross, in points
constexpr int kCrossSize = 9; ///< odd: it has a middle

} // namespace

pngcolorlist::pngcolorlist(QWidget *parent, UpRect frame)
    : PopupContent(parent),
      colorImage(SkinImage::named("Color")),
      m_pixels(colorImage.pixmap().toImage()),
      m_cross(colorImage.size().width() / 2, colorImage.size().height() / 2)
{
    setFrame(frame);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::CrossCursor);
}

void pngcolorlist::drawContent(Canvas &canvas)
{
    canvas.drawImage(colorImage);
    if (!m_showsCross)
        return;
    // Black in white: to be seen on any colour.
    const UpPoint middle = UpHost(colorImage.size().height()).up(m_cross);
    const auto frame = [middle](int size) {
        // A point's own rectangle begins one below its upper edge.
        return UpRect{middle.x - size / 2, middle.y - 1 - size / 2, size, size};
    };
    canvas.outline(frame(kCrossSize), kWhite);
    canvas.outline(frame(kCrossSize - 2), Qt::black);
}

void pngcolorlist::mouseDown(const ViewMouseEvent &event)
{
    // The second press of a double click on the button that has opened the picture is no pick.
    m_isPressed = event.clickCount == 1;
}

/// The picture is no background to drag its window by.
void pngcolorlist::mouseDragged(const ViewMouseEvent & /*event*/) {}

void pngcolorlist::mouseUp(const ViewMouseEvent &event)
{
    PopupContent::mouseUp(event);
    // The picture lies at the lower left corner.
    const QPoint corner(0, height() - colorImage.size().height());
    // The toolkit rounds the place in the view; the one in the window has the fractions of a point.
    if (std::exchange(m_isPressed, false))
        pick(mapFrom(window(), event.event->scenePosition()) - corner);
}

/// The pixel at a place of the picture, in points from its upper left corner; transparent where
/// there is none.
QRgb pngcolorlist::colourAt(QPointF place) const
{
    const QPointF pixel = place * colorImage.scale();
    const QPoint at(static_cast<int>(std::floor(pixel.x())),
                    static_cast<int>(std::floor(pixel.y())));
    return m_pixels.valid(at) ? m_pixels.pixel(at) : qRgba(0, 0, 0, 0);
}

void pngcolorlist::pick(QPointF place)
{
    const QRgb colour = colourAt(place);
    if (qAlpha(colour) == 0)
        return;
    // The picture's own levels are the components times 255.
    _red = static_cast<std::uint32_t>(qRed(colour));
    _green = static_cast<std::uint32_t>(qGreen(colour));
    _blue = static_cast<std::uint32_t>(qBlue(colour));
    changeAction.send(this);
}

void pngcolorlist::keyDown(QKeyEvent *event)
{
    const int step = event->modifiers() & Qt::ShiftModifier ? 1 : kStep;
    switch (event->key()) {
    case Qt::Key_Left:
        return moveCross({-step, 0});
    case Qt::Key_Right:
        return moveCross({step, 0});
    case Qt::Key_Up:
        return moveCross({0, -step});
    case Qt::Key_Down:
        return moveCross({0, step});
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return m_showsCross ? pick(m_cross) : moveCross({});
    default:
        return PopupContent::keyDown(event);
    }
}

void pngcolorlist::moveCross(QPoint by)
{
    const QSize size = colorImage.size();
    const QPoint to = m_showsCross ? m_cross + by : m_cross;
    m_cross = {std::clamp(to.x(), 0, std::max(0, size.width() - 1)),
               std::clamp(to.y(), 0, std::max(0, size.height() - 1))};
    m_showsCross = true;
    const QRgb colour = colourAt(m_cross);
    setAccessibleDescription(colorInWords(static_cast<std::uint32_t>(qRed(colour)),
                                          static_cast<std::uint32_t>(qGreen(colour)),
                                          static_cast<std::uint32_t>(qBlue(colour))));
    update();
}
