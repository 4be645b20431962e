#pragma once

#include "platform/skincolours.h"
#include "platform/skinimage.h"
#include "platform/uprect.h"

#include <QtGui/QFont>
#include <QtGui/QPainter>

class QWidget;

/// The system's paragraph alignments, by their numbers.
enum class TextAlign { Left = 0, Right = 1, Centre = 2 };

/// The colour of these levels, 0..255 each; one beyond counts as the nearest.
QColor colourOf(double red, double green, double blue);

/// The skin's letters in the toolkit's own size. Where they are not installed, and for scripts that
/// they lack, the toolkit's own take their place.
QFont skinFont();
/// The skin's letters at a size in points of the view, that is in pixels at scale 1.
QFont systemFont(int size);

/// Draws a line of one point just inside `rect`, at every scale.
void outlineInside(QPainter &painter, const QRectF &rect, const QBrush &brush);

/// The surface of a view while it draws itself, in upward coordinates.
class Canvas
{
public:
    /// `exposed` is the part of the view, y downwards, that is to be drawn.
    Canvas(QWidget &view, const QRect &exposed);

    UpRect bounds() const { return m_bounds; }
    /// Whether anything of `rect` is to be drawn: what is not need not be drawn either.
    bool isExposed(UpRect rect) const { return m_host.down(rect).intersects(m_exposed); }

    /// Makes the whole view transparent.
    void clear();
    /// Fills a rectangle, or draws its one-point edge inside it.
    void fill(UpRect rect, const QColor &colour);
    void outline(UpRect rect, const QColor &colour);
    /// The edge in light from above: from one colour at its top to another at its bottom.
    void outline(UpRect rect, const QColor &top, const QColor &bottom);
    /// Draws `image` over what is there, its lower left corner at `origin`.
    void drawImage(const SkinImage &image, UpPoint origin = {}, qreal opacity = 1.0);
    /// Draws all of `image`, stretched or shrunk into `rect`.
    void drawImageScaled(const SkinImage &image, UpRect rect);
    /// Draws the lower left `size` of `image`, unscaled, at `origin`.
    void drawImagePart(const SkinImage &image, UpPoint origin, QSize size);
    /// Draws one line of text, cut with an ellipsis at its end where it is too long. The middle of
    /// its capitals is the middle of `rect`, or half a pixel above.
    void drawLine(const QString &text, UpRect rect, const QColor &colour, TextAlign align,
                  int fontSize);
    /// Draws `text` from the top of `textRect` downwards, wrapped at words; not clipped below.
    void DrawMyTextwithColor(const QString &text, UpRect textRect, const QColor &textColor,
                             TextAlign textAlign, int fontSize);

private:
    QPainter m_painter;
    UpRect m_bounds;
    UpHost m_host;
    QRect m_exposed;
};
