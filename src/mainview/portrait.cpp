#include "mainview/portrait.h"

#include "platform/files.h"

#include <QtCore/QBuffer>
#include <QtCore/QFuture>
#include <QtCore/QPromise>
#include <QtCore/QThreadPool>
#include <QtGui/QImageReader>

#include <algorithm>
#include <array>

namespace {

constexpr std::size_t kMostBytes = 8U << 20U;
constexpr qint64 kMostPixelBytes = 64 << 20;
constexpr int kMegabyte = 1 << 20;
constexpr qint64 kBytesAPixel = 4;

/// Decoding this many pixels takes about ten milliseconds.
constexpr qint64 kPixelsAtOnce = 1 << 19;

/// Pictures made of pixels: a drawing could ask for anything.
bool isPortraitFormat(const QByteArray &format)
{
    constexpr std::array formats = {"jpeg", "png", "gif", "bmp", "webp"};
    return std::ranges::any_of(formats, [&](const char *known) { return format == known; });
}

qint64 pixelsOf(QSize size)
{
    return qint64{size.width()} * size.height();
}

QByteArray contentOf(const std::string &path)
{
    std::string bytes;
    readFile(path, kMostBytes, bytes);
    return QByteArray::fromStdString(bytes);
}

qint64 pixelsIn(QByteArray bytes)
{
    QBuffer buffer(&bytes);
    return pixelsOf(QImageReader(&buffer).size());
}

} // namespace

QImage decodePortrait(const QByteArray &bytes, QSize pixels)
{
    QByteArray content = bytes;
    QBuffer buffer(&content);
    buffer.open(QIODevice::ReadOnly);
    const QByteArray format = QImageReader::imageFormat(&buffer);
    if (!isPortraitFormat(format))
        return {};
    QImageReader reader(&buffer, format);
    if (pixelsOf(reader.size()) * kBytesAPixel > kMostPixelBytes)
        return {};
    const QImage image = reader.read();
    return image.isNull() ? image
                          : image.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

Portrait::Portrait(std::function<void()> changed) : m_changed(std::move(changed))
{
    // For what does not say its size before it is decoded.
    QImageReader::setAllocationLimit(static_cast<int>(kMostPixelBytes / kMegabyte));
}

const SkinImage &Portrait::at(const std::string &path, qreal scale)
{
    if (path != m_path || scale != m_scale)
        load(path, scale);
    return m_picture;
}

void Portrait::forget()
{
    m_path.clear();
}

void Portrait::load(const std::string &path, qreal scale)
{
    m_path = path;
    m_scale = scale;
    const QSize pixels = (QSizeF(kPortraitWidth, kPortraitHeight) * scale).toSize();
    const QByteArray bytes = contentOf(path);
    const unsigned number = ++m_loads;
    if (pixelsIn(bytes) <= kPixelsAtOnce)
        return show(decodePortrait(bytes, pixels));

    show({});
    auto promise = std::make_shared<QPromise<QImage>>();
    promise->future().then(this, [this, number](const QImage &image) {
        if (number != m_loads)
            return; // another one has been asked for
        show(image);
        m_changed();
    });
    QThreadPool::globalInstance()->start([promise, bytes, pixels] {
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
