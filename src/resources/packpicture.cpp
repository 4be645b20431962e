// Turns a rendered picture into the form that the program loads: width and height as 32-bit
// numbers, then the pixels as the toolkit paints them (32 bits, premultiplied). The resource
// compiler compresses the result; unpacking it at start takes a fifth of the time that decoding a
// PNG takes.

#include <QtCore/QFile>
#include <QtGui/QImage>

#include <cstdio>

namespace {

bool pack(const QString &from, const QString &to)
{
    const QImage picture = QImage(from).convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QFile file(to);
    if (picture.isNull() || !file.open(QIODevice::WriteOnly))
        return false;
    const qint32 size[] = {picture.width(), picture.height()};
    const qint64 pixels = picture.sizeInBytes();
    return file.write(reinterpret_cast<const char *>(size), sizeof size) == sizeof size &&
           file.write(reinterpret_cast<const char *>(picture.constBits()), pixels) == pixels;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc == 3 && pack(QString::fromLocal8Bit(argv[1]), QString::fromLocal8Bit(argv[2])))
        return 0;
    std::fprintf(stderr, "usage: packpicture PICTURE.png PACKED\n");
    return 1;
}
