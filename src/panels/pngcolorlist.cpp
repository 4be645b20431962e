#include "panels/pngcolorlist.h"

#include <algorithm>
#include <cmath>

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

void pngcolorlist::drawRect(Canvas &canvas)
{
    canvas.drawImage(colorImage);
    if (!m_showsCross)
        return;
    // Black in white: to be seen on any colour.
    const UpPoint middle = UpHost(colorImage.size().height()).up(m_cross);
    const auto frame = [middle](int size) {
        return UpRect{middle.x - size / 2, middle.y - 1 - size / 2, size, size};
    };
    canvas.outline(frame(kCrossSize), kWhite);
    canvas.outline(frame(kCrossSize - 2), Qt::black);
}

/// The picture keeps its clicks to itself.
void pngcolorlist::mouseDown(const ViewMouseEvent & /*event*/) {}
void pngcolorlist::mouseDragged(const ViewMouseEvent & /*event*/) {}

void pngcolorlist::mouseUp(const ViewMouseEvent &event)
{
    PopupContent::mouseUp(event);
    pick(event.event->position());
}

/// `place` in points, y downwards; outside the picture there is nothing to pick.
void pngcolorlist::pick(QPointF place)
{
    const QPointF pixel = place * colorImage.pixmap().devicePixelRatio();
    const QPoint at(static_cast<int>(std::floor(pixel.x())),
                    static_cast<int>(std::floor(pixel.y())));
    if (!m_pixels.valid(at))
        return;
    // The picture's own levels are the components times 255.
    const QRgb colour = m_pixels.pixel(at);
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
        return pick(m_cross);
    default:
        return PopupContent::keyDown(event);
    }
}

void pngcolorlist::moveCross(QPoint by)
{
    const QPoint to = m_cross + by;
    const QSize size = colorImage.size();
    m_cross = {std::clamp(to.x(), 0, std::max(0, size.width() - 1)),
               std::clamp(to.y(), 0, std::max(0, size.height() - 1))};
    m_showsCross = true;
    update();
}
