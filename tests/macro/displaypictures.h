#pragma once

#include "macro/keymapevents.h"
#include "macro/textcells.h"
#include "support/skinpictures.h"

#include <vector>

/// Events enough for some lines.
inline std::vector<KeymapEvent> someLines()
{
    std::vector<KeymapEvent> events;
    for (std::uint32_t code = 96; code < 127; ++code)
        events.push_back({code, code % 2 + 1, code % 3});
    return events;
}

/// A recording view as it is to look with that text, in pixels: `scale` of them to a point.
inline QImage displayPicture(const QString &text, QSize size, const QColor &ground, int scale = 1)
{
    QImage image(size * scale, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(ground);
    const QPixmap down = skin(scale == 1 ? "down" : "down@2x");
    const QPixmap up = skin(scale == 1 ? "up" : "up@2x");
    QPainter painter(&image);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setFont(systemFont(11));
    for (const TextCell &cell : layOutCells(text, size.height(), 15)) {
        const QRect place = UpHost(size.height()).down(cell.place);
        if (cell.character == u'|')
            painter.drawPixmap(place, down);
        else if (cell.character == u'^')
            painter.drawPixmap(place, up);
        else
            painter.drawText(place, Qt::AlignLeft | Qt::AlignTop | Qt::TextDontClip,
                             cell.character);
    }
    painter.end();
    return image.convertToFormat(QImage::Format_ARGB32);
}
