#include "platform/windowshape.h"

#include "platform/x11connection.h"

#include <QtGui/QImage>
#include <QtWidgets/QWidget>

#include <algorithm>
#include <vector>

#ifdef Q_OS_LINUX
#include <xcb/shape.h>
#include <xcb/xcb.h>
#endif

namespace {

struct Span
{
    int start;
    int end; ///< one past the last pixel

    bool operator==(const Span &) const = default;
};

using Spans = std::vector<Span>;

bool isOpaque(QRgb pixel)
{
    constexpr int half = 128;
    return qAlpha(pixel) >= half;
}

void findSpans(const QRgb *row, int width, Spans &spans)
{
    spans.clear();
    const QRgb *const end = row + width;
    for (const QRgb *at = std::find_if(row, end, isOpaque); at != end;) {
        const QRgb *const past = std::find_if_not(at, end, isOpaque);
        spans.push_back({static_cast<int>(at - row), static_cast<int>(past - row)});
        at = std::find_if(past, end, isOpaque);
    }
}

/// Rows that are alike are one band of rectangles, which is the form that a region has inside.
QRegion opaqueRegion(const QImage &picture)
{
    std::vector<QRect> rects;
    Spans above;
    Spans spans;
    for (int y = 0; y < picture.height(); ++y) {
        findSpans(reinterpret_cast<const QRgb *>(picture.constScanLine(y)), picture.width(), spans);
        if (spans == above) {
            std::for_each(rects.end() - static_cast<std::ptrdiff_t>(spans.size()), rects.end(),
                          [](QRect &rect) { rect.setHeight(rect.height() + 1); });
            continue;
        }
        for (const Span &span : spans)
            rects.emplace_back(span.start, y, span.end - span.start, 1);
        std::swap(above, spans);
    }
    QRegion region;
    region.setRects(rects.data(), static_cast<int>(rects.size()));
    return region;
}

} // namespace

QRegion opaqueShape(const SkinImage &picture, qreal scale)
{
    const QPixmap &pixmap = picture.pixmap();
    if (!pixmap.hasAlphaChannel())
        return {};
    const QSize size = (QSizeF(picture.size()) * scale).toSize();
    QImage pixels = pixmap.toImage();
    if (pixels.size() != size)
        pixels = pixels.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    pixels.convertTo(QImage::Format_ARGB32_Premultiplied);
    const QRegion region = opaqueRegion(pixels);
    return region == QRegion(pixels.rect()) ? QRegion() : region;
}

#ifdef Q_OS_LINUX

void shapeWindow(const QWidget &window, const QRegion &shape)
{
    xcb_connection_t *const connection = x11Connection();
    if (!connection)
        return;
    const auto id = static_cast<xcb_window_t>(window.winId());
    if (shape.isEmpty()) {
        xcb_shape_mask(connection, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_BOUNDING, id, 0, 0,
                       XCB_PIXMAP_NONE);
        return;
    }
    std::vector<xcb_rectangle_t> rects;
    for (const QRect &rect : shape)
        rects.push_back({static_cast<int16_t>(rect.x()), static_cast<int16_t>(rect.y()),
                         static_cast<uint16_t>(rect.width()),
                         static_cast<uint16_t>(rect.height())});
    xcb_shape_rectangles(connection, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_BOUNDING,
                         XCB_CLIP_ORDERING_YX_BANDED, id, 0, 0, static_cast<uint32_t>(rects.size()),
                         rects.data());
}

#else

void shapeWindow(const QWidget & /*window*/, const QRegion & /*shape*/) {}

#endif
