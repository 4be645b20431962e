#pragma once

#include "support/lettering.h"

#include <QtGui/QPixmap>

/// A picture of the skin as it was drawn, not as the program packs it.
inline QPixmap skin(const char *name)
{
    return QPixmap(QStringLiteral(SKIN_FOLDER "/%1.png").arg(QLatin1String(name)));
}

/// A part of a picture, y downwards, with a golden line of that size in its middle.
inline QImage withLine(QPixmap picture, const QString &text, QRect place, int size)
{
    QPainter painter(&picture);
    painter.setPen(kGold);
    writeLine(painter, text, place, size);
    return picture.toImage().copy(place).convertToFormat(QImage::Format_ARGB32);
}

/// A part of a picture, y downwards, with golden text of that size written from its top.
inline QImage withText(QPixmap picture, const QString &text, QRect place, int size,
                       int align = Qt::AlignLeft)
{
    QPainter painter(&picture);
    painter.setFont(systemFont(size));
    painter.setPen(kGold);
    painter.drawText(place, align | Qt::AlignTop, text);
    return picture.toImage().copy(place).convertToFormat(QImage::Format_ARGB32);
}
