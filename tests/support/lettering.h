#pragma once

#include "platform/canvas.h"

#include <QtGui/QFontMetricsF>

/// Writes a line in the skin's letters: its capitals in the middle of `place`, the odd pixel below
/// them.
inline void writeLine(QPainter &painter, const QString &text, QRect place, int size,
                      int align = Qt::AlignLeft)
{
    painter.setFont(systemFont(size));
    const QFontMetricsF metrics(painter.font());
    const qreal scale = painter.device()->devicePixelRatioF();
    const qreal height = scale > 1.0 ? metrics.capHeight() * scale
                                     : metrics.tightBoundingRect(QStringLiteral("H")).height();
    const int capitals = qRound(height);
    const int above = (qRound(place.height() * scale) - capitals) / 2;
    const qreal baseline = place.top() + (above + capitals) / scale;
    const qreal free = place.width() - metrics.horizontalAdvance(text);
    const qreal share = align & Qt::AlignHCenter ? 0.5 : align & Qt::AlignRight ? 1 : 0;
    painter.drawText(QPointF(place.left() + free * share, baseline), text);
}
