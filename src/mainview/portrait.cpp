#include "mainview/portrait.h"

#include "mainview/imagehead.h"
#include "platform/files.h"

#include <QtCore/QBuffer>
#include <QtCore/QFuture>
#include <QtCore/QPromise>
#include <QtGui/QImageReader>

namespace {

constexpr std::size_t kMostBytes = 8U << 20U;
constexpr int kMostPixelMegabytes = 64;
constexpr std::int64_t kMostPixels = 16 << 20; // of four bytes
constexpr int kMostPasses = 100;

/// Decoding a portrait takes about ten milliseconds for this work, and seconds for that.
constexpr std::int64_t kWorkAtOnce = 1 << 19;
constexpr std::int64_t kMostWork = 1 << 28;

std::int64_t workOf(const ImageHead &head)
{
    return head.pixels * head.passes;
}

bool isPortrait(const ImageHead &head)
{
    return head.pixels > 0 && head.pixels <= kMostPixels && head.passes <= kMostPasses &&
           workOf(head) <= kMostWork;
}

QByteArray contentOf(const std::string &path)
{
    std::string bytes;
    readFile(path, kMostBytes, bytes);
    return QByteArray::fromStdString(bytes);
}

} // namespace

QImage decodePortrait(const QByteArray &bytes, QSize pixels)
{
    const ImageHead head = imageHead(bytes);
    if (!isPortrait(head))
        return {};
    QByteArray content = pixelsOnly(bytes);
    QBuffer buffer(&content);
    const QImage image = QImageReader(&buffer, head.format).read();
    return image.isNull() ? image
                          : image.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

Portrait::Portrait(std::function<void()> changed) : m_changed(std::move(changed))
{
    // For the whole program, which loads no other images that others have made. It also holds where
    // a pixel has more than four bytes.
    QImageReader::setAllocationLimit(kMostPixelMegabytes);
    m_pool.setMaxThreadCount(1);
}

const SkinImage &Portrait::at(const std::string &path, qreal scale)
{
    if (path != m_path || scale != m_scale)
        load(path, scale);
    return m_picture;
}

void Portrait::load(const std::string &path, qreal scale)
{
    m_path = path;
    m_scale = scale;
    ++m_loads;
    m_pool.clear();
    const QSize pixels = (QSizeF(kPortraitWidth, kPortraitHeight) * scale).toSize();
    const QByteArray bytes = contentOf(path);
    const ImageHead head = imageHead(bytes);
    const bool takesLong = isPortrait(head) && workOf(head) > kWorkAtOnce;
    show(takesLong ? QImage() : decodePortrait(bytes, pixels));
    if (takesLong)
        decodeLater(bytes, pixels);
}

void Portrait::decodeLater(const QByteArray &bytes, QSize pixels)
{
    const auto promise = std::make_shared<QPromise<QImage>>();
    promise->future().then(this, [this, number = m_loads](const QImage &image) {
        if (number != m_loads)
            return; // another one has been asked for
        show(image);
        m_changed();
    });
    m_pool.start([promise, bytes, pixels] {
        promise->start();
        promise->addResult(decodePortrait(bytes, pixels));
        promise->finish();
    });
}

void Portrait::show(const QImage &image)
{
    if (image.isNull()) {
        m_picture = SkinImage::named("unkown");
        return;
    }
    QPixmap pixmap = QPixmap::fromImage(image);
    pixmap.setDevicePixelRatio(m_scale);
    m_picture = SkinImage::of(pixmap);
}
