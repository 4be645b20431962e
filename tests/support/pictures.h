#pragma once

#include "platform/skinimage.h"

#include <QtGui/QPainter>
#include <QtWidgets/QWidget>

/// A skin picture of one colour.
inline SkinImage plainPicture(QSize size, const QColor &colour)
{
    QPixmap pixmap(size);
    pixmap.fill(colour);
    return SkinImage::of(pixmap);
}

/// A skin picture of one colour with a rectangle, y downwards, of another.
inline SkinImage markedPicture(QSize size, const QColor &colour, QRect mark, const QColor &marked)
{
    QPixmap pixmap(size);
    pixmap.fill(colour);
    QPainter(&pixmap).fillRect(mark, marked);
    return SkinImage::of(pixmap);
}

inline QImage shown(QWidget &widget)
{
    return widget.grab().toImage().convertToFormat(QImage::Format_ARGB32);
}

inline QColor shownAt(QWidget &widget, QPoint at)
{
    return shown(widget).pixelColor(at);
}

namespace detail {

template <class Wanted>
QRect extentWhere(const QImage &image, Wanted wanted)
{
    QRect extent;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (wanted(image.pixelColor(x, y)))
                extent |= QRect(x, y, 1, 1);
        }
    }
    return extent;
}

} // namespace detail

/// The smallest rectangle around all pixels of exactly this colour; empty when there are none.
inline QRect extentOf(const QImage &image, const QColor &colour)
{
    return detail::extentWhere(image, [&](const QColor &pixel) { return pixel == colour; });
}

/// The smallest rectangle around all pixels of another colour; empty when there are none.
inline QRect extentOfOther(const QImage &image, const QColor &colour)
{
    return detail::extentWhere(image, [&](const QColor &pixel) { return pixel != colour; });
}

/// The brightest pixel: of smooth text on black the one that comes nearest to the text's colour.
inline QColor brightest(const QImage &image)
{
    QColor found = Qt::black;
    detail::extentWhere(image, [&](const QColor &pixel) {
        if (pixel.value() > found.value())
            found = pixel;
        return false;
    });
    return found;
}
