#include "platform/packedpicture.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <optional>
#include <utility>

namespace {

constexpr qsizetype kBytesPerPixel = 4;

/// Reads a packed picture from its beginning.
class Reader
{
public:
    explicit Reader(const QByteArray &packed) : m_at(packed.constData()), m_left(packed.size()) {}

    bool isAtEnd() const { return m_left == 0; }

    /// So many bytes to `to`; false, and none, where fewer are left.
    bool read(void *to, qsizetype count)
    {
        const char *const from = skip(count);
        if (!from)
            return false;
        std::memcpy(to, from, static_cast<std::size_t>(count));
        return true;
    }

    /// Where so many bytes lie, and goes past them; null where fewer are left.
    const char *skip(qsizetype count)
    {
        if (count > m_left)
            return nullptr;
        m_left -= count;
        return std::exchange(m_at, m_at + count);
    }

private:
    const char *m_at;
    qsizetype m_left;
};

std::optional<PackedHead> readHead(Reader &reader)
{
    PackedHead head;
    if (!reader.read(&head, sizeof head) || head.width <= 0 || head.height <= 0)
        return {};
    return head;
}

bool isWithin(const PackedSpan &span, qsizetype pixels)
{
    return span.start >= 0 && span.count > 0 && span.start <= pixels - span.count;
}

/// Draws so many pixels at `line` of a picture, from that column of it on, into the part.
void putLine(QImage &into, const QRect &part, int line, int column, const char *pixels, int count)
{
    if (line < part.top() || line > part.bottom())
        return;
    const int from = std::max(column, part.left());
    const int to = std::min(column + count, part.right() + 1);
    if (from < to)
        std::memcpy(into.scanLine(line - part.top()) + (from - part.left()) * kBytesPerPixel,
                    pixels + (from - column) * kBytesPerPixel,
                    static_cast<std::size_t>((to - from) * kBytesPerPixel));
}

/// A span may go on at the next lines.
void putSpan(QImage &into, const QRect &part, int width, PackedSpan span, const char *pixels)
{
    while (span.count > 0) {
        const int column = span.start % width;
        const int count = std::min(span.count, width - column);
        putLine(into, part, span.start / width, column, pixels, count);
        pixels += count * kBytesPerPixel;
        span = {span.start + count, span.count - count};
    }
}

/// False as soon as a span is wrong.
bool putSpans(QImage &into, const QRect &part, Reader &reader, QSize whole)
{
    const qsizetype pixels = qsizetype(whole.width()) * whole.height();
    while (!reader.isAtEnd()) {
        PackedSpan span;
        if (!reader.read(&span, sizeof span) || !isWithin(span, pixels))
            return false;
        const char *const bytes = reader.skip(span.count * kBytesPerPixel);
        if (!bytes)
            return false;
        putSpan(into, part, whole.width(), span, bytes);
    }
    return true;
}

/// Shares the pixels of the whole.
QImage partOf(const QImage &whole, const QRect &part)
{
    if (part == whole.rect())
        return whole;
    auto *const owner = new QImage(whole);
    return {owner->constScanLine(part.y()) + part.x() * kBytesPerPixel,
            part.width(),
            part.height(),
            owner->bytesPerLine(),
            owner->format(),
            [](void *image) { delete static_cast<QImage *>(image); },
            owner};
}

} // namespace

QSize packedSize(const QByteArray &packed)
{
    Reader reader(packed);
    const auto head = readHead(reader);
    return head ? QSize(head->width, head->height) : QSize();
}

QByteArray packedBase(const QByteArray &packed)
{
    Reader reader(packed);
    const auto head = readHead(reader);
    if (!head)
        return {};
    const char *const end = std::find(std::begin(head->base), std::end(head->base), '\0');
    return {head->base, end - head->base};
}

QImage unpackedWhole(const QByteArray &packed)
{
    Reader reader(packed);
    const auto head = readHead(reader);
    if (!head || !packedBase(packed).isEmpty())
        return {};
    const qsizetype lineBytes = head->width * kBytesPerPixel;
    const qsizetype pixelBytes = packed.size() - qsizetype(sizeof *head);
    if (pixelBytes % lineBytes != 0 || pixelBytes / lineBytes != head->height)
        return {};
    // The image shares the bytes and lets them go with its last copy.
    auto *const owner = new QByteArray(packed);
    const auto *const pixels = reinterpret_cast<const uchar *>(owner->constData()) + sizeof *head;
    const QImage picture(
        pixels, head->width, head->height, lineBytes, QImage::Format_ARGB32_Premultiplied,
        [](void *bytes) { delete static_cast<QByteArray *>(bytes); }, owner);
    const bool isAligned = reinterpret_cast<std::uintptr_t>(pixels) % alignof(QRgb) == 0;
    return isAligned ? picture : picture.copy();
}

QImage unpackedPart(const QImage &base, const QByteArray &over, const QRect &part)
{
    if (part.isEmpty() || !base.rect().contains(part))
        return {};
    if (over.isEmpty())
        return partOf(base, part);
    Reader reader(over);
    const auto head = readHead(reader);
    if (!head || base.size() != QSize(head->width, head->height) ||
        base.format() != QImage::Format_ARGB32_Premultiplied)
        return {};
    QImage picture = base.copy(part);
    return putSpans(picture, part, reader, base.size()) ? picture : QImage();
}
