#include "platform/skinimage.h"

#include "platform/systemlog.h"

#include <QtCore/QResource>
#include <QtGui/QGuiApplication>
#include <QtGui/QImage>
#include <QtGui/QPainter>

#include <cstring>

namespace {

/// Two resolutions are made; anything finer than 1x is served by the finer one.
int resolution()
{
    return qApp->devicePixelRatio() > 1.0 ? 2 : 1;
}

QString resourcePath(const char *name)
{
    const auto suffix = resolution() == 2 ? QLatin1String("@2x") : QLatin1String();
    return QLatin1String(":/skin/") + QLatin1String(name) + suffix;
}

/// Pixels as the build packs them: width and height as 32-bit numbers, then 32 bits a pixel,
/// premultiplied. A packed picture of another size is none.
QImage unpacked(const QByteArray &packed)
{
    qint32 size[2] = {};
    if (packed.size() < qsizetype(sizeof size))
        return {};
    std::memcpy(size, packed.constData(), sizeof size);
    constexpr qsizetype bytesPerPixel = 4;
    const qsizetype expected = size[0] * bytesPerPixel * size[1];
    if (size[0] <= 0 || size[1] <= 0 || packed.size() != qsizetype(sizeof size) + expected)
        return {};
    // The image shares the bytes and lets them go with its last copy.
    auto *const owner = new QByteArray(packed);
    const auto *const pixels = reinterpret_cast<const uchar *>(owner->constData()) + sizeof size;
    return {pixels,
            size[0],
            size[1],
            size[0] * bytesPerPixel,
            QImage::Format_ARGB32_Premultiplied,
            [](void *bytes) { delete static_cast<QByteArray *>(bytes); },
            owner};
}

} // namespace

SkinImage SkinImage::named(const char *name)
{
    QImage image = unpacked(QResource(resourcePath(name)).uncompressedData());
    if (image.isNull()) {
        systemLog("no skin image %s", name);
        return {};
    }
    image.setDevicePixelRatio(resolution());
    return SkinImage(QPixmap::fromImage(std::move(image)));
}

SkinImage SkinImage::CopyImagefromrect(const SkinImage &source, UpRect srcRect)
{
    if (source.isNull())
        return {};
    const qreal scale = source.m_pixmap.devicePixelRatio();
    const QRect part = UpHost(source.size().height()).down(srcRect);
    const QRectF pixels(QPointF(part.topLeft()) * scale, QSizeF(part.size()) * scale);
    // QPixmap::copy() would cut off what lies outside the source.
    QPixmap copy(pixels.size().toSize());
    copy.fill(Qt::transparent);
    QPainter painter(&copy);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawPixmap(QRectF({}, pixels.size()), source.m_pixmap, pixels);
    painter.end();
    copy.setDevicePixelRatio(scale);
    return SkinImage(std::move(copy));
}
