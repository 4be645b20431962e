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

} // namespace

/// A part of a packed picture, or pixels that the program has made.
struct SkinImage::Picture
{
    QByteArray base;
    QByteArray over; ///< what differs from the base; empty where that is the picture
    QRect part;      ///< in pixels
    qreal scale = 1.0;
    QPixmap pixmap = {}; ///< null until it is asked for
};

SkinImage::SkinImage(Picture picture) : m_picture(std::make_shared<Picture>(std::move(picture))) {}

SkinImage SkinImage::named(const char *name)
{
    QByteArray packed = packedPicture(name);
    const QRect whole({}, packedSize(packed));
    if (whole.isEmpty()) {
        systemLog("no skin image %s", name);
        return {};
    }
    const QByteArray base = packedBase(packed);
    if (base.isEmpty())
        return SkinImage({std::move(packed), {}, whole, qreal(resolution())});
    return SkinImage({packedPicture(base), std::move(packed), whole, qreal(resolution())});
}

SkinImage SkinImage::of(const QPixmap &pixmap)
{
    if (pixmap.isNull())
        return {};
    return SkinImage({{}, {}, pixmap.rect(), pixmap.devicePixelRatio(), pixmap});
}

QSize SkinImage::size() const
{
    return m_picture ? (QSizeF(m_picture->part.size()) / m_picture->scale).toSize() : QSize(0, 0);
}

qreal SkinImage::scale() const
{
    return m_picture ? m_picture->scale : 1.0;
}

const QPixmap &SkinImage::pixmap() const
{
    static const QPixmap none;
    if (!m_picture)
        return none;
    if (m_picture->pixmap.isNull()) {
        // Its pixel ratio stays 1: setting that would copy what lies in the program.
        m_picture->pixmap = QPixmap::fromImage(
            unpackedPart(unpackedWhole(m_picture->base), m_picture->over, m_picture->part));
    }
    return m_picture->pixmap;
}

SkinImage SkinImage::CopyImagefromrect(const SkinImage &source, UpRect srcRect)
{
    if (source.isNull())
        return {};
    const Picture &from = *source.m_picture;
    const QRect part = UpHost(source.size().height()).down(srcRect);
    const QRectF exact(QPointF(part.topLeft()) * from.scale, QSizeF(part.size()) * from.scale);
    const QRect pixels = exact.toRect().translated(from.part.topLeft());
    if (!from.base.isEmpty() && from.part.contains(pixels))
        return SkinImage({from.base, from.over, pixels, from.scale});
    // QPixmap::copy() would cut off what lies outside the source.
    QPixmap copy(exact.size().toSize());
    copy.fill(Qt::transparent);
    QPainter painter(&copy);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawPixmap(QRectF({}, exact.size()), source.pixmap(), exact);
    painter.end();
    copy.setDevicePixelRatio(from.scale);
    return of(copy);
}
