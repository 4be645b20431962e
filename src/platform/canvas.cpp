#include "platform/canvas.h"

#include <QtGui/QGuiApplication>
#include <QtWidgets/QWidget>

#include <algorithm>
#include <cmath>

namespace {

constexpr QLatin1String kFontFamily("Lato");
// On dark ground and this small, the regular weight looks thin.
constexpr QFont::Weight kFontWeight = QFont::Medium;

Qt::Alignment horizontal(TextAlign align)
{
    switch (align) {
    case TextAlign::Right:
        return Qt::AlignRight;
    case TextAlign::Centre:
        return Qt::AlignHCenter;
    case TextAlign::Left:
        break;
    }
    return Qt::AlignLeft;
}

/// What breaks lines, or is no letter at all, becomes a blank.
QString asOneLine(QString text)
{
    for (QChar &character : text) {
        if (character.category() == QChar::Other_Control || character == QChar::LineSeparator ||
            character == QChar::ParagraphSeparator)
            character = u' ';
    }
    return text;
}

/// How many pixels the capitals are high. Only where a point is a pixel are they fitted to these.
qreal capitalsIn(const QFontMetricsF &metrics, qreal scale)
{
    return qFuzzyCompare(scale, 1.0) ? metrics.tightBoundingRect(QStringLiteral("H")).height()
                                     : std::round(metrics.capHeight() * scale);
}

qreal leftOf(qreal width, const QRectF &rect, TextAlign align)
{
    switch (align) {
    case TextAlign::Right:
        return rect.right() - width;
    case TextAlign::Centre:
        return rect.center().x() - width / 2;
    case TextAlign::Left:
        break;
    }
    return rect.left();
}

} // namespace

QColor colourOf(double red, double green, double blue)
{
    const auto component = [](double level) {
        return static_cast<float>(std::clamp(level / 255.0, 0.0, 1.0));
    };
    return QColor::fromRgbF(component(red), component(green), component(blue));
}

QFont skinFont()
{
    QFont font = QGuiApplication::font();
    QStringList families = font.families();
    if (!families.contains(kFontFamily))
        families.prepend(kFontFamily);
    font.setFamilies(families);
    font.setWeight(kFontWeight);
    return font;
}

QFont systemFont(int size)
{
    QFont font = skinFont();
    font.setPixelSize(size);
    return font;
}

void outlineInside(QPainter &painter, const QRectF &rect, const QBrush &brush)
{
    painter.setPen(QPen(brush, 1));
    painter.setBrush(Qt::NoBrush);
    // The pen is a point wide: its middle runs half a point inside.
    painter.drawRect(rect.adjusted(0.5, 0.5, -0.5, -0.5));
}

Canvas::Canvas(QWidget &view, const QRect &exposed)
    : m_painter(&view),
      m_bounds{0, 0, view.width(), view.height()},
      m_host(view.height()),
      m_exposed(exposed)
{
    // Between whole scales pictures are resampled.
    m_painter.setRenderHint(QPainter::SmoothPixmapTransform);
}

void Canvas::clear()
{
    m_painter.setCompositionMode(QPainter::CompositionMode_Clear);
    m_painter.fillRect(m_host.down(m_bounds), Qt::transparent);
    m_painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
}

void Canvas::fill(UpRect rect, const QColor &colour)
{
    m_painter.fillRect(m_host.down(rect), colour);
}

void Canvas::outline(UpRect rect, const QColor &colour)
{
    outlineInside(m_painter, m_host.down(rect), colour);
}

void Canvas::outline(UpRect rect, const QColor &top, const QColor &bottom)
{
    const QRectF place = m_host.down(rect);
    QLinearGradient light(place.topLeft(), place.bottomLeft());
    light.setColorAt(0, top);
    light.setColorAt(1, bottom);
    outlineInside(m_painter, place, light);
}

void Canvas::drawImage(const SkinImage &image, UpPoint origin, qreal opacity)
{
    if (image.isNull())
        return;
    const UpRect place{origin.x, origin.y, image.size().width(), image.size().height()};
    m_painter.setOpacity(opacity);
    m_painter.drawPixmap(m_host.down(place), image.pixmap(), image.pixmap().rect());
    m_painter.setOpacity(1.0);
}

void Canvas::drawImageScaled(const SkinImage &image, UpRect rect)
{
    if (!image.isNull())
        m_painter.drawPixmap(m_host.down(rect), image.pixmap(), image.pixmap().rect());
}

void Canvas::drawImagePart(const SkinImage &image, UpPoint origin, QSize size)
{
    const QSize shown = size.boundedTo(image.size());
    if (shown.isEmpty())
        return;
    const UpRect part{0, 0, shown.width(), shown.height()};
    const QRect source = UpHost(image.size().height()).down(part);
    const QRect target = m_host.down(UpRect{origin.x, origin.y, part.width, part.height});
    const qreal scale = image.scale();
    m_painter.drawPixmap(QRectF(target), image.pixmap(),
                         QRectF(QPointF(source.topLeft()) * scale, QSizeF(source.size()) * scale));
}

void Canvas::drawLine(const QString &text, UpRect rect, const QColor &colour, TextAlign align,
                      int fontSize)
{
    m_painter.setFont(systemFont(fontSize));
    m_painter.setPen(colour);
    const QFontMetricsF metrics(m_painter.fontMetrics());
    const QString line = metrics.elidedText(asOneLine(text), Qt::ElideRight, rect.width);
    const QRectF place = m_host.down(rect);
    // The baseline is found in pixels, on which the letters stand.
    const qreal scale = m_painter.deviceTransform().m22();
    const qreal capitals = capitalsIn(metrics, scale);
    const qreal above = std::floor((place.height() * scale - capitals) / 2);
    m_painter.drawText(QPointF(leftOf(metrics.horizontalAdvance(line), place, align),
                               place.top() + (above + capitals) / scale),
                       line);
}

void Canvas::DrawMyTextwithColor(const QString &text, UpRect textRect, const QColor &textColor,
                                 TextAlign textAlign, int fontSize)
{
    m_painter.setFont(systemFont(fontSize));
    m_painter.setPen(textColor);
    m_painter.drawText(m_host.down(textRect),
                       horizontal(textAlign) | Qt::AlignTop | Qt::TextWordWrap | Qt::TextDontClip,
                       text);
}
