#include "mainview/imagehead.h"
#include "mainview/portrait.h"
#include "portraitfiles.h"
#include "support/suite.h"

#include <QtCore/QtEndian>
#include <QtGui/QImageWriter>

class tst_imagehead : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theHeadTellsFormatAndPixels_data();
    void theHeadTellsFormatAndPixels();
    void aPictureFromTheTopDownHasItsSize();
    void aGifIsAsLargeAsItsScreenOrItsFirstPicture_data();
    void aGifIsAsLargeAsItsScreenOrItsFirstPicture();
    void aJpegInSeveralPassesTellsThem();
    void aJpegOfVeryManyPassesIsNoPortrait();
    void manyPixelsTimesManyPassesIsNoPortrait();
    void whatIsNoImageHasNoHead_data();
    void whatIsNoImageHasNoHead();
    void anImageCutAnywhereIsReadWithinItsBytes_data();
    void anImageCutAnywhereIsReadWithinItsBytes();
    void ofAPngItsPixelsAreKept_data();
    void ofAPngItsPixelsAreKept();
    void anythingButAPngIsKept();
};

namespace {

QByteArray number(quint32 value)
{
    QByteArray bytes(4, '\0');
    qToBigEndian(value, bytes.data());
    return bytes;
}

QByteArray chunk(const char *name, const QByteArray &data)
{
    // The check sum does not matter to who only passes chunks by.
    return number(static_cast<quint32>(data.size())) + name + data + "sums";
}

QByteArray smallNumber(quint16 value)
{
    QByteArray bytes(2, '\0');
    qToLittleEndian(value, bytes.data());
    return bytes;
}

/// A GIF's beginning: its screen, `between`, and a picture's place and size.
QByteArray gif(QSize screen, const QByteArray &flags, const QByteArray &between, QSize picture)
{
    return "GIF89a" + smallNumber(static_cast<quint16>(screen.width())) +
           smallNumber(static_cast<quint16>(screen.height())) + flags + QByteArray(2, '\0') +
           between + ',' + QByteArray(4, '\0') +
           smallNumber(static_cast<quint16>(picture.width())) +
           smallNumber(static_cast<quint16>(picture.height())) + '\0';
}

/// The file of a picture that is shown coarse at first and finer then.
QByteArray inPasses(const QImage &image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QImageWriter writer(&buffer, "jpeg");
    writer.setProgressiveScanWrite(true);
    if (!writer.write(image))
        qFatal("no JPEG can be made");
    return bytes;
}

constexpr QSize kShown(68, 65);

} // namespace

void tst_imagehead::theHeadTellsFormatAndPixels_data()
{
    QTest::addColumn<QByteArray>("format");
    for (const char *format : {"png", "jpeg", "bmp"})
        QTest::newRow(format) << QByteArray(format);
}

void tst_imagehead::theHeadTellsFormatAndPixels()
{
    QFETCH(QByteArray, format);
    const QByteArray file = fileOf(portraitPicture({300, 70}), format.constData());
    const ImageHead head = imageHead(file);
    QCOMPARE(QByteArray(head.format), format);
    QCOMPARE(head.pixels, 21'000);
    QCOMPARE(head.passes, 1);
    QCOMPARE(decodePortrait(file, kShown).size(), kShown);
}

void tst_imagehead::aPictureFromTheTopDownHasItsSize()
{
    QByteArray file = fileOf(portraitPicture({5000, 4000}), "bmp");
    qToLittleEndian<qint32>(-4000, file.data() + 22);
    QCOMPARE(imageHead(file).pixels, 20'000'000);
    QVERIFY(decodePortrait(file, kShown).isNull());
}

void tst_imagehead::aGifIsAsLargeAsItsScreenOrItsFirstPicture_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<qint64>("pixels");
    const QByteArray plain(1, '\0');
    const QByteArray extension = QByteArray("!\xF9\x04") + "abcd" + '\0';
    const QSize small(10, 20);
    const QSize large(3000, 2000);
    QTest::newRow("screen") << gif(large, plain, {}, small) << qint64{6'000'000};
    QTest::newRow("picture") << gif(small, plain, {}, large) << qint64{6'000'000};
    QTest::newRow("one of each") << gif({10, 2000}, plain, {}, {3000, 20}) << qint64{6'000'000};
    QTest::newRow("after colours")
        << gif(small, "\x81", QByteArray(12, ','), large) << qint64{6'000'000};
    QTest::newRow("after extensions")
        << gif(small, plain, extension + extension, large) << qint64{6'000'000};
    QTest::newRow("after an extension in parts")
        << gif(small, plain, QByteArray("!\xFE\x02,,\x03,,,") + '\0', large) << qint64{6'000'000};
    QTest::newRow("no picture") << gif(small, plain, ";", large) << qint64{200};
}

void tst_imagehead::aGifIsAsLargeAsItsScreenOrItsFirstPicture()
{
    QFETCH(QByteArray, file);
    const ImageHead head = imageHead(file);
    QCOMPARE(QByteArray(head.format), QByteArray("gif"));
    QTEST(qint64{head.pixels}, "pixels");
}

void tst_imagehead::aJpegInSeveralPassesTellsThem()
{
    const QByteArray file = inPasses(portraitPicture({200, 100}));
    const ImageHead head = imageHead(file);
    QCOMPARE(head.pixels, 20'000);
    QVERIFY2(head.passes > 2 && head.passes < 20, qPrintable(QString::number(head.passes)));
    QCOMPARE(decodePortrait(file, kShown).size(), kShown);
}

void tst_imagehead::aJpegOfVeryManyPassesIsNoPortrait()
{
    const QByteArray file = fileOf(portraitPicture({200, 100}), "jpeg");
    const QByteArray scan("\xFF\xDA");
    QCOMPARE(decodePortrait(file + scan.repeated(99), kShown).size(), kShown);
    QCOMPARE(imageHead(file + scan.repeated(100)).passes, 101);
    QVERIFY(decodePortrait(file + scan.repeated(100), kShown).isNull());
}

void tst_imagehead::manyPixelsTimesManyPassesIsNoPortrait()
{
    const QByteArray file = fileOf(portraitPicture({4000, 4000}), "jpeg");
    QVERIFY(!decodePortrait(file, kShown).isNull());
    QVERIFY(decodePortrait(file + QByteArray("\xFF\xDA").repeated(20), kShown).isNull());
}

void tst_imagehead::whatIsNoImageHasNoHead_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("text") << QByteArray("some text");
    QTest::newRow("a drawing") << QByteArray("<svg xmlns='http://www.w3.org/2000/svg'/>");
    QTest::newRow("packed drawing") << QByteArray("\x1F\x8B\x08");
    QTest::newRow("a png's mark") << QByteArray("\x89PNG\r\n\x1a\n");
    QTest::newRow("a jpeg's mark") << QByteArray("\xFF\xD8\xFF");
    QTest::newRow("a jpeg without a frame") << QByteArray("\xFF\xD8\xFF\xD9");
    QTest::newRow("a gif without a size") << QByteArray("GIF89a");
    QTest::newRow("a bmp's mark") << QByteArray("BM");
}

void tst_imagehead::whatIsNoImageHasNoHead()
{
    QFETCH(QByteArray, file);
    QCOMPARE(QByteArray(imageHead(file).format), QByteArray());
    QVERIFY(decodePortrait(file, kShown).isNull());
}

void tst_imagehead::anImageCutAnywhereIsReadWithinItsBytes_data()
{
    QTest::addColumn<QByteArray>("file");
    for (const char *format : {"png", "jpeg", "bmp"})
        QTest::newRow(format) << fileOf(portraitPicture({30, 20}), format);
    QTest::newRow("gif") << gif({3, 2}, "\x87", QByteArray(768, '!'), {1, 1});
}

/// The sanitizers would tell of a byte read beyond the end: each part is of its own size.
void tst_imagehead::anImageCutAnywhereIsReadWithinItsBytes()
{
    QFETCH(QByteArray, file);
    for (qsizetype size = 0; size <= file.size(); ++size) {
        const std::unique_ptr<char[]> part(new char[static_cast<std::size_t>(size)]);
        std::copy_n(file.constData(), size, part.get());
        const QByteArray bytes = QByteArray::fromRawData(part.get(), size);
        QVERIFY(imageHead(bytes).pixels <= std::int64_t{768} * 768);
        QVERIFY(pixelsOnly(bytes).size() <= size);
    }
}

void tst_imagehead::ofAPngItsPixelsAreKept_data()
{
    QTest::addColumn<QByteArray>("more");
    for (const char *name : {"zTXt", "iTXt", "tEXt", "iCCP", "eXIf", "abCd"})
        QTest::newRow(name) << chunk(name, QByteArray(100, 'x'));
    QTest::newRow("several") << chunk("zTXt", {}) + chunk("zTXt", "x");
}

void tst_imagehead::ofAPngItsPixelsAreKept()
{
    QFETCH(QByteArray, more);
    constexpr qsizetype afterHead = 33;
    const QByteArray kept = number(13) + "IHDR" + QByteArray(13, 'h') + "sums" +
                            chunk("PLTE", "abc") + chunk("tRNS", "t") + chunk("IDAT", "data") +
                            chunk("IDAT", "more data") + chunk("IEND", {});
    const QByteArray file = QByteArray("\x89PNG\r\n\x1a\n") + kept;
    QCOMPARE(pixelsOnly(file), file);
    QByteArray longer = file;
    longer.insert(afterHead, more);
    QCOMPARE(pixelsOnly(longer), file);
    QCOMPARE(pixelsOnly(file + more), file);
}

void tst_imagehead::anythingButAPngIsKept()
{
    for (const QByteArray &bytes : {QByteArray(), QByteArray("x"), QByteArray("\xFF\xD8\xFF zTXt")})
        QCOMPARE(pixelsOnly(bytes), bytes);
}

KYR_GUI_TEST(tst_imagehead)
#include "tst_imagehead.moc"
