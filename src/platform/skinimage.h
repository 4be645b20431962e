#pragma once

#include "platform/uprect.h"

#include <QtGui/QPixmap>

/// A picture of the skin. A value: every copy is a private one.
class SkinImage
{
public:
    /// No picture: draws nothing.
    SkinImage() = default;

    /// The picture of that name among the program's resources, at the resolution of the screen.
    /// An unknown name is logged and gives no picture.
    static SkinImage named(const char *name);
    /// A picture made by the program itself.
    static SkinImage of(const QPixmap &pixmap) { return SkinImage(pixmap); }

    bool isNull() const { return m_pixmap.isNull(); }
    /// Size in points.
    QSize size() const { return m_pixmap.deviceIndependentSize().toSize(); }
    const QPixmap &pixmap() const { return m_pixmap; }

    /// A new picture of the rectangle's size, holding that part of `source`. What lies outside the
    /// source is transparent.
    static SkinImage CopyImagefromrect(const SkinImage &source, UpRect srcRect);

private:
    explicit SkinImage(QPixmap pixmap) : m_pixmap(std::move(pixmap)) {}

    QPixmap m_pixmap;
};
