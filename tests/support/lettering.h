#pragma once

#include "platform/canvas.h"

#include <QtGui/QFontMetricsF>

/// Writes a line in the skin's letters, at one pixel a point: its capitals in the
/// middle of `place`, the odd pixel below them.
inline void writeLine(QPainter &painter, const QString &text, QRect place, int size,
                      int align = Qt::AlignLeft)
{
    painter.setFont(systemFont(size));
    const QFontMetricsF metrics(painter.font());
    const int capitals = qRound(metrics.tightBoundingRect(QStringLiteral("H")).height());
    const int baseline = place.top() + (place.height() - capitals) / 2 + capitals;
    const qreal free = place.width() - metrics.horizontalAdvance(text);
    const qreal share = align & Qt::AlignHCenter ? 0.5 : align & Qt::AlignRight ? 1 : 0;
    painter.drawText(QPointF(place.left() + free * share, baseline), text);
}
