#pragma once

#include "platform/skinimage.h"

#include <QtCore/QObject>
#include <QtCore/QThreadPool>
#include <QtGui/QImage>

#include <functional>
#include <string>

/// The place of the portrait in the main view, in points.
inline constexpr int kPortraitWidth = 68;
inline constexpr int kPortraitHeight = 65;

/// A character's portrait as the main view shows it. It is read once, and again only when it is
/// asked for at another place or was forgotten; where there is no valid picture it is "unkown".
class Portrait : public QObject
{
public:
    /// `changed` is called when a picture has come that was not waited for, because decoding it
    /// takes long; until then "unkown" stands in for it.
    explicit Portrait(std::function<void()> changed);

    /// The picture in the file at `path`, at `scale` pixels a point.
    const SkinImage &at(const std::string &path, qreal scale);
    /// The file may hold another picture now.
    void forget() { m_path.clear(); }

private:
    void load(const std::string &path, qreal scale);
    void decodeLater(const QByteArray &bytes, QSize pixels);
    void show(const QImage &image);

    const std::function<void()> m_changed;
    std::string m_path; ///< of what is shown; empty for nothing
    qreal m_scale = 1;
    unsigned m_loads = 0;
    SkinImage m_picture;
    QThreadPool
        m_pool; ///< one thread; its end waits for a picture under way, a few seconds at most
};

/// The picture in the bytes of an image file, scaled to `pixels`. Null where they are no image of a
/// kind that portraits have, one of more than 64 MiB of pixels, or one made to take long. Any
/// thread.
QImage decodePortrait(const QByteArray &bytes, QSize pixels);
