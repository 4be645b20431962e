#pragma once

#include "platform/uprect.h"

#include <QtGui/QPixmap>

#include <memory>

/// A picture of the skin. A value: nothing changes what it shows. One of the program's resources
/// has its pixels put together when they are first asked for, which most faces of most controls
/// never are. User-interface thread only.
class SkinImage
{
public:
    /// No picture: draws nothing.
    SkinImage() = default;

    /// The picture of that name among the program's resources, at the resolution of the screen.
    /// An unknown name is logged and gives no picture.
    static SkinImage named(const char *name);
    /// A picture made by the program itself.
    static SkinImage of(const QPixmap &pixmap);

    bool isNull() const { return !m_picture; }
    /// Size in points.
    QSize size() const;
    /// Pixels a point.
    qreal scale() const;
    /// Its pixels. To be drawn by their own rectangle: only scale() tells how many are a point.
    const QPixmap &pixmap() const;

    /// A new picture of the rectangle's size, holding that part of `source`. What lies outside the
    /// source is transparent.
    static SkinImage CopyImagefromrect(const SkinImage &source, UpRect srcRect);

private:
    struct Picture;
    explicit SkinImage(Picture picture);

    std::shared_ptr<Picture> m_picture;
};
