#include "mainview/imagehead.h"

#include <QtCore/QtEndian>

#include <algorithm>
#include <array>
#include <cstdlib>

namespace {

constexpr char kPngMark[] = "\x89PNG\r\n\x1a\n";
constexpr qsizetype kPngMarkSize = 8;
constexpr qsizetype kPngChunkFrame = 12; ///< length, name and check sum around the data

/// Reads numbers out of bytes; beyond them 0.
class Reader
{
public:
    explicit Reader(const QByteArray &bytes) : m_bytes(bytes) {}

    qsizetype size() const { return m_bytes.size(); }
    bool has(qsizetype at, qsizetype count) const
    {
        return at >= 0 && count >= 0 && at <= size() && count <= size() - at;
    }
    std::int64_t byte(qsizetype at) const
    {
        return has(at, 1) ? static_cast<unsigned char>(m_bytes[at]) : 0;
    }
    template <class Number>
    std::int64_t big(qsizetype at) const
    {
        return has(at, sizeof(Number)) ? qFromBigEndian<Number>(m_bytes.constData() + at) : 0;
    }
    template <class Number>
    std::int64_t little(qsizetype at) const
    {
        return has(at, sizeof(Number)) ? qFromLittleEndian<Number>(m_bytes.constData() + at) : 0;
    }
    qsizetype find(char byte, qsizetype from) const { return m_bytes.indexOf(byte, from); }
    qsizetype count(QByteArrayView bytes) const { return m_bytes.count(bytes); }
    QByteArrayView part(qsizetype at, qsizetype count) const
    {
        return has(at, count) ? QByteArrayView(m_bytes).sliced(at, count) : QByteArrayView();
    }

private:
    const QByteArray &m_bytes;
};

ImageHead headOf(const char *format, std::int64_t width, std::int64_t height, int passes = 1)
{
    // Both are of 32 bits with their sign, so that the product fits.
    const std::int64_t pixels = std::abs(width * height);
    return pixels > 0 ? ImageHead{format, pixels, passes} : ImageHead{};
}

ImageHead pngHead(const Reader &file)
{
    constexpr qsizetype widthAt = 16;
    constexpr qsizetype heightAt = 20;
    return headOf("png", file.big<qint32>(widthAt), file.big<qint32>(heightAt));
}

ImageHead bmpHead(const Reader &file)
{
    constexpr qsizetype widthAt = 18;
    constexpr qsizetype heightAt = 22; // negative from the top down
    return headOf("bmp", file.little<qint32>(widthAt), file.little<qint32>(heightAt));
}

/// Where the parts of an extension, which begin at `at`, are over.
qsizetype afterParts(const Reader &file, qsizetype at)
{
    while (file.byte(at) != 0)
        at += 1 + static_cast<qsizetype>(file.byte(at));
    return at + 1;
}

/// The screen, and the first picture on it, which may have another size; the rest is not decoded.
ImageHead gifHead(const Reader &file)
{
    constexpr qsizetype screenAt = 6;
    constexpr qsizetype flagsAt = 10;
    constexpr int extension = 0x21;
    constexpr int picture = 0x2C;
    qsizetype at = 13;
    if (file.byte(flagsAt) & 0x80) // a table of colours
        at += qsizetype{3} << ((file.byte(flagsAt) & 7) + 1);
    while (file.byte(at) == extension)
        at = afterParts(file, at + 2);
    const bool hasPicture = file.byte(at) == picture;
    const std::int64_t width = hasPicture ? file.little<quint16>(at + 5) : 0;
    const std::int64_t height = hasPicture ? file.little<quint16>(at + 7) : 0;
    return headOf("gif", std::max(width, file.little<quint16>(screenAt)),
                  std::max(height, file.little<quint16>(screenAt + 2)));
}

bool isFrame(std::int64_t marker)
{
    constexpr std::array<int, 3> others = {0xC4, 0xC8, 0xCC};
    return marker >= 0xC0 && marker <= 0xCF && std::ranges::find(others, marker) == others.end();
}

bool hasSegment(std::int64_t marker)
{
    return marker > 0x01 && marker != 0xFF && (marker < 0xD0 || marker > 0xD9);
}

/// The size stands in the frame's segment; a scan begins wherever its marker stands.
ImageHead jpegHead(const Reader &file)
{
    const int scans = static_cast<int>(file.count("\xFF\xDA"));
    for (qsizetype at = file.find('\xFF', 2); at >= 0;) {
        const std::int64_t marker = file.byte(at + 1);
        if (isFrame(marker))
            return headOf("jpeg", file.big<quint16>(at + 7), file.big<quint16>(at + 5),
                          std::max(scans, 1));
        const qsizetype segment = static_cast<qsizetype>(file.big<quint16>(at + 2));
        at = file.find('\xFF', hasSegment(marker) ? at + 2 + segment : at + 1);
    }
    return {};
}

struct Kind
{
    QByteArrayView mark;
    ImageHead (*head)(const Reader &file) = nullptr;
};

bool isPng(const QByteArray &bytes)
{
    return bytes.startsWith(QByteArrayView(kPngMark, kPngMarkSize));
}

bool makesPixels(QByteArrayView chunk)
{
    constexpr std::array names = {"IHDR", "PLTE", "tRNS", "IDAT", "IEND"};
    return std::ranges::any_of(names, [&](const char *name) { return chunk == name; });
}

} // namespace

ImageHead imageHead(const QByteArray &bytes)
{
    const Kind kinds[] = {
        {{kPngMark, kPngMarkSize}, pngHead},
        {"\xFF\xD8\xFF", jpegHead},
        {"GIF8", gifHead},
        {"BM", bmpHead},
    };
    for (const Kind &kind : kinds) {
        if (bytes.startsWith(kind.mark))
            return kind.head(Reader(bytes));
    }
    return {};
}

QByteArray pixelsOnly(const QByteArray &png)
{
    if (!isPng(png))
        return png;
    const Reader file(png);
    QByteArray kept = png.first(kPngMarkSize);
    for (qsizetype at = kPngMarkSize; file.has(at, kPngChunkFrame);) {
        const auto length = static_cast<qsizetype>(file.big<quint32>(at));
        const qsizetype whole = length + kPngChunkFrame;
        if (makesPixels(file.part(at + 4, 4)))
            kept += file.part(at, std::min(whole, file.size() - at));
        at += whole;
    }
    return kept;
}
