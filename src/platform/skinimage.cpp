#include "platform/skinimage.h"

#include "platform/systemlog.h"

#include <QtGui/QGuiApplication>

namespace {

QString resourcePath(const char *name)
{
    // Two resolutions are made; anything finer than 1x is served by the finer one.
    const bool fine = qApp->devicePixelRatio() > 1.0;
    return QStringLiteral(":/skin/%1%2.png")
        .arg(QLatin1String(name), fine ? QLatin1String("@2x") : QLatin1String());
}

} // namespace

SkinImage SkinImage::named(const char *name)
{
    QPixmap pixmap(resourcePath(name));
    if (pixmap.isNull())
        systemLog("no skin image %s", name);
    return SkinImage(std::move(pixmap));
}

SkinImage SkinImage::CopyImagefromrect(const SkinImage &source, UpRect srcRect)
{
    if (source.isNull())
        return {};
    const qreal scale = source.m_pixmap.devicePixelRatio();
    const QRect part = UpHost(source.size().height()).down(srcRect);
    QPixmap copy = source.m_pixmap.copy(
        QRectF(QPointF(part.topLeft()) * scale, QSizeF(part.size()) * scale).toRect());
    copy.setDevicePixelRatio(scale);
    return SkinImage(std::move(copy));
}
