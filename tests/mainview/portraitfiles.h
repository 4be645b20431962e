#pragma once

#include "support/pictures.h"

#include <QtCore/QBuffer>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

/// The four quarters of a portrait, from the upper left one row by row.
inline constexpr QColor kQuarters[] = {QColor(200, 0, 0), QColor(0, 200, 0), QColor(0, 0, 200),
                                       QColor(200, 0, 200)};

/// A picture of four plain quarters; all of one colour where that is given.
inline QImage portraitPicture(QSize size, const QColor &all = {})
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(all.isValid() ? all : kQuarters[0]);
    if (all.isValid())
        return image;
    const QSize half = size / 2;
    QPainter painter(&image);
    painter.fillRect(half.width(), 0, size.width(), half.height(), kQuarters[1]);
    painter.fillRect(0, half.height(), half.width(), size.height(), kQuarters[2]);
    painter.fillRect(half.width(), half.height(), size.width(), size.height(), kQuarters[3]);
    return image;
}

/// The file of a picture; `format` as the toolkit calls it.
inline QByteArray fileOf(const QImage &image, const char *format = "png")
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (!buffer.open(QIODevice::WriteOnly) || !image.save(&buffer, format))
        qFatal("no %s file can be made", format);
    return bytes;
}

/// A folder for portraits.
class PortraitFiles
{
public:
    std::string path(const char *name) const
    {
        return m_folder.filePath(QString::fromLatin1(name)).toStdString();
    }
    /// Writes a file; its path.
    std::string put(const char *name, const QByteArray &bytes) const
    {
        QFile file(QString::fromStdString(path(name)));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write %s", name);
        return path(name);
    }
    std::string put(const char *name, const QImage &image) const
    {
        return put(name, fileOf(image));
    }

private:
    QTemporaryDir m_folder;
};

/// Files in which there is no portrait, as rows of a test's data; a null one is missing.
inline void unreadablePortraitRows()
{
    QTest::addColumn<QByteArray>("file");
    const QByteArray png = fileOf(portraitPicture({68, 65}));
    QTest::newRow("missing") << QByteArray();
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("text") << QByteArray("this is no picture");
    QTest::newRow("a drawing") << QByteArray(
        R"(<svg xmlns="http://www.w3.org/2000/svg" width="68" height="65"><rect width="68" )"
        R"(height="65" fill="red"/></svg>)");
    QTest::newRow("a kind that portraits do not have") << fileOf(portraitPicture({68, 65}), "ppm");
    QTest::newRow("cut off") << png.left(png.size() / 2);
    QTest::newRow("cut off in its head") << png.left(20);
}
