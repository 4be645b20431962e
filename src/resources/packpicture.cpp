// Turns a rendered picture into the form that the program loads, see platform/packedpicture.h: it
// is used as it lies there, where a PNG would take milliseconds to decode. A picture that shows the
// same as another in another state is packed as what differs from that one, so that the grounds are
// in the program once.

#include "platform/packedpicture.h"

#include <QtCore/QFile>

#include <cstdio>
#include <cstring>
#include <utility>

namespace {

/// So many pixels that agree between two that differ are packed with them: a span of its own would
/// take as much.
constexpr qint32 kBridged = 4;

struct Base
{
    QString path;
    QByteArray name;
};

QImage rendered(const QString &path)
{
    return QImage(path).convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

const QRgb *pixelsOf(const QImage &picture)
{
    return reinterpret_cast<const QRgb *>(picture.constBits());
}

QByteArray head(const QImage &picture, const QByteArray &base)
{
    PackedHead head{picture.width(), picture.height()};
    std::memcpy(head.base, base.constData(), static_cast<std::size_t>(base.size()));
    return {reinterpret_cast<const char *>(&head), sizeof head};
}

void appendSpan(QByteArray &packed, const QRgb *pixels, PackedSpan span)
{
    packed.append(reinterpret_cast<const char *>(&span), sizeof span);
    packed.append(reinterpret_cast<const char *>(pixels + span.start),
                  span.count * qsizetype(sizeof(QRgb)));
}

QByteArray spans(const QImage &picture, const QImage &base)
{
    const QRgb *const pixels = pixelsOf(picture);
    const QRgb *const others = pixelsOf(base);
    const qint32 count = picture.width() * picture.height();
    QByteArray packed;
    PackedSpan span;
    for (qint32 at = 0; at < count; ++at) {
        if (pixels[at] == others[at])
            continue;
        if (span.count > 0 && at - (span.start + span.count) > kBridged)
            appendSpan(packed, pixels, std::exchange(span, {}));
        if (span.count == 0)
            span.start = at;
        span.count = at + 1 - span.start;
    }
    if (span.count > 0)
        appendSpan(packed, pixels, span);
    return packed;
}

QByteArray packedWhole(const QImage &picture)
{
    return head(picture, {}) +
           QByteArray(reinterpret_cast<const char *>(picture.constBits()), picture.sizeInBytes());
}

/// Empty where the two do not fit.
QByteArray packedOver(const Base &base, const QImage &picture)
{
    const QImage other = rendered(base.path);
    if (other.size() != picture.size() || base.name.size() > qsizetype(sizeof PackedHead::base))
        return {};
    return head(picture, base.name) + spans(picture, other);
}

bool pack(const QString &from, const QString &to, const Base &base)
{
    const QImage picture = rendered(from);
    if (picture.isNull())
        return false;
    const QByteArray packed =
        base.name.isEmpty() ? packedWhole(picture) : packedOver(base, picture);
    QFile file(to);
    return !packed.isEmpty() && file.open(QIODevice::WriteOnly) &&
           file.write(packed) == packed.size();
}

} // namespace

int main(int argc, char **argv)
{
    constexpr int plain = 3;
    constexpr int withBase = 5;
    const auto path = [argv](int index) { return QString::fromLocal8Bit(argv[index]); };
    if ((argc == plain && pack(path(1), path(2), {})) ||
        (argc == withBase && pack(path(1), path(2), {path(3), argv[4]})))
        return 0;
    std::fprintf(stderr, "usage: packpicture PICTURE.png PACKED [BASE.png NAME_OF_BASE]\n");
    return 1;
}
