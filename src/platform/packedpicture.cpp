#include "platform/packedpicture.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <optional>

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
        if (count > m_left)
            return false;
        std::memcpy(to, m_at, static_cast<std::size_t>(count));
        m_at += count;
        m_left -= count;
        return true;
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

/// False as soon as a span is wrong.
bool readSpans(Reader &reader, uchar *pixels, qsizetype count)
{
    while (!reader.isAtEnd()) {
        PackedSpan span;
        if (!reader.read(&span, sizeof span) || !isWithin(span, count) ||
            !reader.read(pixels + span.start * kBytesPerPixel, span.count * kBytesPerPixel))
            return false;
    }
    return true;
}

} // namespace

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

QImage unpackedOver(const QImage &base, const QByteArray &packed)
{
    Reader reader(packed);
    const auto head = readHead(reader);
    if (!head || base.size() != QSize(head->width, head->height) ||
        base.format() != QImage::Format_ARGB32_Premultiplied)
        return {};
    QImage picture = base.copy();
    const qsizetype pixels = picture.sizeInBytes() / kBytesPerPixel;
    return readSpans(reader, picture.bits(), pixels) ? picture : QImage();
}
