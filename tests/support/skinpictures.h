#pragma once

#include <QtGui/QPainter>
#include <QtGui/QPixmap>
#include <QtWidgets/QApplication>

/// A picture of the skin as it was drawn, not as the program packs it.
inline QPixmap skin(const char *name)
{
    return QPixmap(QStringLiteral(SKIN_FOLDER "/%1.png").arg(QLatin1String(name)));
}

/// A part of a picture, y downwards, with golden text of that size written from its top.
inline QImage withText(QPixmap picture, const QString &text, QRect place, int size,
                       int align = Qt::AlignLeft)
{
    QPainter painter(&picture);
    QFont font = QApplication::font();
    font.setPixelSize(size);
    painter.setFont(font);
    painter.setPen(QColor(255, 180, 0));
    painter.drawText(place, align | Qt::AlignTop, text);
    return picture.toImage().copy(place).convertToFormat(QImage::Format_ARGB32);
}
