#include "platform/packedpicture.h"
#include "support/suite.h"

#include <cstring>
#include <vector>

namespace {

constexpr QSize kSize(4, 3);
constexpr QRgb kGround = 0xFF203040;
constexpr QRgb kLit = 0xFF70D0C0;
constexpr qsizetype kHeadBytes = sizeof(PackedHead);

template <class T>
QByteArray bytesOf(const T &value)
{
    return {reinterpret_cast<const char *>(&value), sizeof value};
}

QByteArray head(QSize size, const char *base)
{
    PackedHead head{size.width(), size.height()};
    std::strncpy(head.base, base, sizeof head.base);
    return bytesOf(head);
}

QByteArray pixels(int count, QRgb colour)
{
    return bytesOf(colour).repeated(count);
}

QByteArray whole(QSize size)
{
    return head(size, "") + pixels(size.width() * size.height(), kGround);
}

QByteArray span(qint32 start, qint32 count)
{
    return bytesOf(PackedSpan{start, count}) + pixels(count, kLit);
}

/// The numbers of the pixels that have that colour.
std::vector<int> places(const QImage &picture, QRgb colour)
{
    std::vector<int> found;
    for (int at = 0; at < picture.width() * picture.height(); ++at) {
        if (picture.pixel(at % picture.width(), at / picture.width()) == colour)
            found.push_back(at);
    }
    return found;
}

QImage over(const QByteArray &packed, QSize baseSize = kSize)
{
    return unpackedPart(unpackedWhole(whole(baseSize)), packed, QRect({}, baseSize));
}

} // namespace

/// The form in which pictures of the skin lie in the program.
class tst_packedpicture : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aWholePictureHasItsPixels();
    void aWholePictureIsNotCopied();
    void pixelsThatLieAskewAreCopied();
    void whatIsNoWholePictureGivesNone_data();
    void whatIsNoWholePictureGivesNone();
    void theBaseIsNamed();
    void whatDiffersLiesOverTheBase();
    void theBaseStaysAsItIs();
    void aPartIsThatOfTheWhole_data();
    void aPartIsThatOfTheWhole();
    void aPartOfTheBaseIsNotCopied();
    void whatIsNoPartGivesNone_data();
    void whatIsNoPartGivesNone();
    void aWrongSpanOutsideThePartGivesNone();
    void theSizeIsInTheHead();
    void spansThatDoNotFitGiveNone_data();
    void spansThatDoNotFitGiveNone();
    void aBaseOfAnotherSizeGivesNone();
    void noBaseGivesNone();
};

void tst_packedpicture::aWholePictureHasItsPixels()
{
    QByteArray packed = whole(kSize);
    std::memcpy(packed.data() + kHeadBytes + 5 * sizeof kLit, &kLit, sizeof kLit);
    const QImage picture = unpackedWhole(packed);
    QCOMPARE(picture.size(), kSize);
    QCOMPARE(places(picture, kLit), std::vector{5});
    QCOMPARE(places(picture, kGround).size(), std::size_t{11});
}

void tst_packedpicture::aWholePictureIsNotCopied()
{
    const QByteArray packed = whole(kSize);
    const void *const begin = packed.constData() + kHeadBytes;
    QCOMPARE(static_cast<const void *>(unpackedWhole(packed).constBits()), begin);
}

void tst_packedpicture::pixelsThatLieAskewAreCopied()
{
    const QByteArray shifted = ' ' + whole(kSize);
    const QByteArray packed = QByteArray::fromRawData(shifted.constData() + 1, shifted.size() - 1);
    const QImage picture = unpackedWhole(packed);
    QCOMPARE(reinterpret_cast<std::uintptr_t>(picture.constBits()) % alignof(QRgb), 0U);
    QCOMPARE(places(picture, kGround).size(), std::size_t{12});
}

void tst_packedpicture::whatIsNoWholePictureGivesNone_data()
{
    QTest::addColumn<QByteArray>("packed");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("head cut short") << whole(kSize).first(kHeadBytes - 1);
    QTest::newRow("a pixel too few") << whole(kSize).chopped(qsizetype(sizeof(QRgb)));
    QTest::newRow("a line too few") << whole(kSize).chopped(4 * qsizetype{sizeof(QRgb)});
    QTest::newRow("a byte too many") << whole(kSize) + ' ';
    QTest::newRow("no width") << head({0, 3}, "");
    QTest::newRow("negative height") << head({4, -3}, "");
    QTest::newRow("larger than can be counted") << head({0x7FFFFFFF, 0x7FFFFFFF}, "");
    QTest::newRow("with a base") << head(kSize, "base") + pixels(12, kGround);
}

void tst_packedpicture::whatIsNoWholePictureGivesNone()
{
    QFETCH(const QByteArray, packed);
    QVERIFY(unpackedWhole(packed).isNull());
}

void tst_packedpicture::theBaseIsNamed()
{
    QCOMPARE(packedBase(head(kSize, "mainbk")), QByteArray("mainbk"));
    const char longest[] = "as_long_as_there_is_room";
    static_assert(sizeof longest - 1 == sizeof PackedHead::base);
    QCOMPARE(packedBase(head(kSize, longest)), QByteArray(longest));
    QVERIFY(packedBase(whole(kSize)).isEmpty());
    QVERIFY(packedBase("mainbk").isEmpty());
}

void tst_packedpicture::whatDiffersLiesOverTheBase()
{
    const QImage picture = over(head(kSize, "base") + span(0, 1) + span(3, 2) + span(11, 1));
    QCOMPARE(picture.size(), kSize);
    QCOMPARE(places(picture, kLit), (std::vector{0, 3, 4, 11}));
    QCOMPARE(places(picture, kGround).size(), std::size_t{8});
    // Nothing may differ at all.
    QCOMPARE(places(over(head(kSize, "base")), kGround).size(), std::size_t{12});
}

void tst_packedpicture::theBaseStaysAsItIs()
{
    const QImage base = unpackedWhole(whole(kSize));
    QVERIFY(!unpackedPart(base, head(kSize, "base") + span(0, 12), base.rect()).isNull());
    QVERIFY(places(base, kLit).empty());
}

void tst_packedpicture::aPartIsThatOfTheWhole_data()
{
    QTest::addColumn<QRect>("part");
    QTest::newRow("all") << QRect(0, 0, 4, 3);
    QTest::newRow("a column") << QRect(1, 0, 1, 3);
    QTest::newRow("a line") << QRect(0, 1, 4, 1);
    QTest::newRow("the middle") << QRect(1, 1, 2, 1);
    QTest::newRow("upper left") << QRect(0, 0, 2, 2);
    QTest::newRow("lower right") << QRect(2, 1, 2, 2);
}

void tst_packedpicture::aPartIsThatOfTheWhole()
{
    QFETCH(const QRect, part);
    const QImage base = unpackedWhole(whole(kSize));
    // One goes on from the first line through the second to the third.
    for (const QByteArray &spans : {span(2, 7), span(0, 1) + span(5, 1) + span(11, 1)}) {
        const QByteArray packed = head(kSize, "base") + spans;
        QCOMPARE(unpackedPart(base, packed, part), over(packed).copy(part));
    }
}

void tst_packedpicture::aPartOfTheBaseIsNotCopied()
{
    const QByteArray packed = whole(kSize);
    const void *const begin = packed.constData() + kHeadBytes + (4 + 2) * sizeof(QRgb);
    const QImage part = unpackedPart(unpackedWhole(packed), {}, {2, 1, 2, 2});
    QCOMPARE(part.size(), QSize(2, 2));
    QCOMPARE(static_cast<const void *>(part.constBits()), begin);
    QCOMPARE(places(part, kGround).size(), std::size_t{4});
}

void tst_packedpicture::whatIsNoPartGivesNone_data()
{
    QTest::addColumn<QRect>("part");
    QTest::newRow("empty") << QRect(1, 1, 0, 1);
    QTest::newRow("beyond the right") << QRect(3, 0, 2, 1);
    QTest::newRow("beyond the bottom") << QRect(0, 2, 1, 2);
    QTest::newRow("before the left") << QRect(-1, 0, 2, 1);
}

void tst_packedpicture::whatIsNoPartGivesNone()
{
    QFETCH(const QRect, part);
    const QImage base = unpackedWhole(whole(kSize));
    QVERIFY(unpackedPart(base, {}, part).isNull());
    QVERIFY(unpackedPart(base, head(kSize, "base") + span(0, 12), part).isNull());
}

void tst_packedpicture::aWrongSpanOutsideThePartGivesNone()
{
    const QByteArray packed = head(kSize, "base") + span(11, 2);
    QVERIFY(unpackedPart(unpackedWhole(whole(kSize)), packed, {0, 0, 1, 1}).isNull());
}

void tst_packedpicture::theSizeIsInTheHead()
{
    QCOMPARE(packedSize(whole(kSize)), kSize);
    QCOMPARE(packedSize(head(kSize, "base")), kSize);
    QVERIFY(packedSize("mainbk").isEmpty());
    QVERIFY(packedSize(head({4, -3}, "")).isEmpty());
}

void tst_packedpicture::spansThatDoNotFitGiveNone_data()
{
    QTest::addColumn<QByteArray>("spans");
    QTest::newRow("before the first pixel") << span(-1, 1);
    QTest::newRow("after the last pixel") << span(12, 1);
    QTest::newRow("over the end") << span(11, 2);
    QTest::newRow("longer than can be counted")
        << bytesOf(PackedSpan{0x7FFFFFFF, 0x7FFFFFFF}) + pixels(1, kLit);
    QTest::newRow("empty") << span(3, 0);
    QTest::newRow("less than empty") << bytesOf(PackedSpan{3, -1});
    QTest::newRow("span cut short") << span(3, 1) + bytesOf(qint32{5});
    QTest::newRow("pixels cut short") << span(3, 2).chopped(1);
}

void tst_packedpicture::spansThatDoNotFitGiveNone()
{
    QFETCH(const QByteArray, spans);
    QVERIFY(over(head(kSize, "base") + spans).isNull());
}

void tst_packedpicture::aBaseOfAnotherSizeGivesNone()
{
    QVERIFY(over(head(kSize, "base") + span(0, 1), {3, 4}).isNull());
    QVERIFY(over(head(kSize, "base") + span(0, 1), {4, 4}).isNull());
}

void tst_packedpicture::noBaseGivesNone()
{
    QVERIFY(unpackedPart(QImage(), head(kSize, "base") + span(0, 1), QRect({}, kSize)).isNull());
    QVERIFY(unpackedPart(QImage(), QByteArray(), QRect({}, kSize)).isNull());
}

KYR_PLAIN_TEST(tst_packedpicture)
#include "tst_packedpicture.moc"
