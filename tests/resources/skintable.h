#pragma once

#include "platform/skinimage.h"

#include <QtCore/QFile>
#include <QtCore/QTextStream>
#include <QtGui/QImage>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>

#include <algorithm>
#include <vector>

/// A row of the table that the skin is built from.
struct PictureRow
{
    QString name;
    QString drawing;
    QString state;
    QSize size;
};

/// All of them, as the build writes them down.
inline std::vector<PictureRow> pictureRows()
{
    QFile file(QStringLiteral(SKIN_FOLDER "/pictures.txt"));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no table of pictures");
    QTextStream text(&file);
    std::vector<PictureRow> rows;
    for (QString line = text.readLine(); !line.isEmpty(); line = text.readLine()) {
        const QStringList fields = line.simplified().split(u' ');
        if (fields.size() < 5)
            qFatal("not a row of the table: %s", qPrintable(line));
        rows.push_back({fields[0], fields[1], fields[2], {fields[3].toInt(), fields[4].toInt()}});
    }
    return rows;
}

/// A picture of the skin in pixels, as the program has it on this screen.
inline QImage skinPixels(const QString &name)
{
    return SkinImage::named(qPrintable(name))
        .pixmap()
        .toImage()
        .convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

/// How far two pixels differ in one of the three colours.
inline int stepBetween(QRgb one, QRgb other)
{
    return std::max({std::abs(qRed(one) - qRed(other)), std::abs(qGreen(one) - qGreen(other)),
                     std::abs(qBlue(one) - qBlue(other))});
}

/// Whether it shows nothing: one colour all over, or none.
inline bool isBlank(const QImage &picture)
{
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixel(x, y) != picture.pixel(0, 0))
                return false;
        }
    }
    return true;
}
