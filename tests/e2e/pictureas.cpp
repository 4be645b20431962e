// Writes a picture anew, in the format that the new file's name tells.

#include <QtGui/QImage>
#include <QtGui/QImageReader>

#include <cstdio>

int main(int argc, char **argv)
{
    // A sheet of many pictures is larger than what the toolkit takes for harmless.
    QImageReader::setAllocationLimit(0);
    // Of a picture with loss: letters of ten points stay clean.
    constexpr int quality = 82;
    if (argc == 3 && QImage(QString::fromLocal8Bit(argv[1]))
                         .save(QString::fromLocal8Bit(argv[2]), nullptr, quality))
        return 0;
    std::fprintf(stderr, "usage: pictureas PICTURE NEW\n");
    return 1;
}
