#include "platform/skinimage.h"

#include "platform/packedpicture.h"
#include "platform/systemlog.h"

#include <QtCore/QResource>
#include <QtGui/QGuiApplication>
#include <QtGui/QPainter>

namespace {

/// Two resolutions are made; anything finer than 1x is served by the finer one.
int resolution()
{
    return qApp->devicePixelRatio() > 1.0 ? 2 : 1;
}

/// Not a copy: the pictures lie in the program as they are.
QByteArray packedPicture(const QByteArray &name)
{
    const auto suffix = resolution() == 2 ? QLatin1String("@2x") : QLatin1String();
    return QResource(QLatin1String(":/skin/") + QLatin1String(name) + suffix).uncompressedData();
}

QImage picture(const QByteArray &name)
{
    const QByteArray packed = packedPicture(name);
    const QByteArray base = packedBase(packed);
    return base.isEmpty() ? unpackedWhole(packed)
                          : unpackedOver(unpackedWhole(packedPicture(base)), packed);
}

} // namespace

SkinImage SkinImage::named(const char *name)
{
    QImage image = picture(name);
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
