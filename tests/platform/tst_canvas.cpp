#include "drawnview.h"
#include "support/suite.h"

#include <QtGui/QFontDatabase>

/// Drawing in upward coordinates, at the scales of usual and of fine screens.
class tst_canvas : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFilledRectangleStandsUpwards_data() { scales(); }
    void aFilledRectangleStandsUpwards();
    void anOutlineIsTheEdgeOfItsRectangle_data() { scales(); }
    void anOutlineIsTheEdgeOfItsRectangle();
    void aPictureStandsOnItsLowerLeftCorner_data() { scales(); }
    void aPictureStandsOnItsLowerLeftCorner();
    void aFinePictureIsShownPixelByPixel();
    void opacityHoldsForOnePictureOnly();
    void aPartIsTheLowerLeftOfThePicture_data() { scales(); }
    void aPartIsTheLowerLeftOfThePicture();
    void aPartOfNothingDrawsNothing();
    void clearingMakesTheViewTransparent();
    void aLineStandsAtItsSide_data();
    void aLineStandsAtItsSide();
    void aLinesCapitalsStandInTheMiddle_data();
    void aLinesCapitalsStandInTheMiddle();
    void whatBreaksLinesIsABlankInALine();
    void theLettersAreTheSkins();
    void aLineTooLongIsCutAtItsEnd_data();
    void aLineTooLongIsCutAtItsEnd();
    void textIsWrappedAtWordsFromTheTopDownwards_data() { scales(); }
    void textIsWrappedAtWordsFromTheTopDownwards();

private:
    static void scales()
    {
        QTest::addColumn<int>("scale");
        QTest::newRow("usual") << 1;
        QTest::newRow("fine") << 2;
    }
};

namespace {

QRect whereText(int scale, const QString &text, UpRect rect, TextAlign align)
{
    return extentOfOther(
        drawn(scale, [&](Canvas &canvas) { canvas.drawLine(text, rect, kGold, align, 10); }),
        Qt::black);
}

/// Blue, with a red mark of 4 x 3 at the lower left corner.
SkinImage cornerPicture(QSize size)
{
    return markedPicture(size, Qt::blue, {0, size.height() - 3, 4, 3}, Qt::red);
}

} // namespace

void tst_canvas::aFilledRectangleStandsUpwards()
{
    QFETCH(int, scale);
    const QImage image = drawn(scale, [](Canvas &canvas) {
        QVERIFY(canvas.bounds() == (UpRect{0, 0, 100, 80}));
        canvas.fill({10, 5, 30, 20}, Qt::red);
    });
    QCOMPARE(extentOf(image, Qt::red), scaled({10, 55, 30, 20}, scale));
    QCOMPARE(image.pixelColor(25 * scale, 65 * scale), QColor(Qt::red));
}

void tst_canvas::anOutlineIsTheEdgeOfItsRectangle()
{
    QFETCH(int, scale);
    const QImage image = drawn(scale, [](Canvas &canvas) {
        canvas.outline({10, 5, 30, 20}, Qt::red);
    });
    QCOMPARE(extentOf(image, Qt::red), scaled({10, 55, 30, 20}, scale));
    QVERIFY(extentOf(image.copy(scaled({11, 56, 28, 18}, scale)), Qt::red).isEmpty());
}

void tst_canvas::aPictureStandsOnItsLowerLeftCorner()
{
    QFETCH(int, scale);
    const QImage image = drawn(scale, [](Canvas &canvas) {
        canvas.drawImage(cornerPicture({20, 10}), {30, 15});
    });
    const QRect place = scaled({30, 55, 20, 10}, scale);
    QCOMPARE(extentOfOther(image, Qt::black), place);
    QCOMPARE(image.pixelColor(place.bottomLeft()), QColor(Qt::red));
    QCOMPARE(image.pixelColor(place.topLeft()), QColor(Qt::blue));
    QCOMPARE(image.pixelColor(place.bottomRight()), QColor(Qt::blue));
}

void tst_canvas::aFinePictureIsShownPixelByPixel()
{
    QPixmap fine(40, 20);
    fine.fill(Qt::blue);
    QPainter(&fine).fillRect(7, 9, 1, 1, Qt::red);
    fine.setDevicePixelRatio(2);
    const SkinImage picture = SkinImage::of(fine);
    const QRect pixel(60 + 7, 110 + 9, 1, 1);
    const QImage whole = drawn(2, [&](Canvas &canvas) { canvas.drawImage(picture, {30, 15}); });
    QCOMPARE(extentOf(whole, Qt::red), pixel);
    const QImage part = drawn(2, [&](Canvas &canvas) {
        canvas.drawImagePart(picture, {30, 15}, {20, 10});
    });
    QCOMPARE(part, whole);
}

void tst_canvas::opacityHoldsForOnePictureOnly()
{
    const QImage image = drawn(1, [](Canvas &canvas) {
        canvas.drawImage(plainPicture({10, 10}, Qt::white), {}, 0.5);
        canvas.fill({50, 0, 10, 10}, Qt::white);
    });
    QVERIFY(qAbs(image.pixelColor(5, 75).red() - 128) <= 2);
    QCOMPARE(image.pixelColor(55, 75), QColor(Qt::white));
}

void tst_canvas::aPartIsTheLowerLeftOfThePicture()
{
    QFETCH(int, scale);
    const auto part = [&](QSize size) {
        return drawn(scale, [&](Canvas &canvas) {
            canvas.drawImagePart(cornerPicture({20, 10}), {30, 15}, size);
        });
    };
    QCOMPARE(extentOfOther(part({7, 5}), Qt::black), scaled({30, 60, 7, 5}, scale));
    QCOMPARE(extentOf(part({4, 3}), Qt::red), scaled({30, 62, 4, 3}, scale));
    QVERIFY(extentOf(part({4, 3}), Qt::blue).isEmpty());
    // There is no more than the whole picture.
    QCOMPARE(extentOfOther(part({99, 99}), Qt::black), scaled({30, 55, 20, 10}, scale));
}

void tst_canvas::aPartOfNothingDrawsNothing()
{
    const QImage image = drawn(1, [](Canvas &canvas) {
        canvas.drawImage({}, {30, 15});
        canvas.drawImagePart({}, {30, 15}, {7, 5});
        canvas.drawImagePart(cornerPicture({20, 10}), {30, 15}, {0, 5});
        canvas.drawImagePart(cornerPicture({20, 10}), {30, 15}, {7, -1});
    });
    QVERIFY(extentOfOther(image, Qt::black).isEmpty());
}

void tst_canvas::clearingMakesTheViewTransparent()
{
    const QImage image = drawn(1, [](Canvas &canvas) {
        canvas.fill(canvas.bounds(), Qt::red);
        canvas.clear();
        canvas.fill({0, 0, 10, 10}, Qt::blue); // drawn over it as ever
    });
    QCOMPARE(image.pixelColor(50, 40).alpha(), 0);
    QCOMPARE(image.pixelColor(5, 75), QColor(Qt::blue));
}

void tst_canvas::aLineStandsAtItsSide_data()
{
    QTest::addColumn<int>("scale");
    QTest::addColumn<TextAlign>("align");
    for (int scale : {1, 2}) {
        QTest::addRow("left, scale %d", scale) << scale << TextAlign::Left;
        QTest::addRow("right, scale %d", scale) << scale << TextAlign::Right;
        QTest::addRow("centre, scale %d", scale) << scale << TextAlign::Centre;
    }
}

void tst_canvas::aLineStandsAtItsSide()
{
    QFETCH(int, scale);
    QFETCH(TextAlign, align);
    const QRect place = scaled({10, 30, 80, 30}, scale);
    const QRect text = whereText(scale, QStringLiteral("HIH"), {10, 20, 80, 30}, align);
    QVERIFY(text.width() > 8 * scale && text.width() < 40 * scale);
    const int near = 2 * scale;
    if (align == TextAlign::Left)
        QVERIFY(qAbs(text.left() - place.left()) <= near);
    else if (align == TextAlign::Right)
        QVERIFY(qAbs(text.right() - place.right()) <= near);
    else
        QVERIFY(qAbs(text.center().x() - place.center().x()) <= near);
    QVERIFY(qAbs(text.center().y() - place.center().y()) <= near);
}

void tst_canvas::aLinesCapitalsStandInTheMiddle_data()
{
    QTest::addColumn<int>("scale");
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("height");
    for (int scale : {1, 2}) {
        for (int size : {10, 11, 12}) {
            for (int height : {15, 20, 27, 29, 31, 35, 38})
                QTest::addRow("%d in %d, scale %d", size, height, scale) << scale << size << height;
        }
    }
}

/// To the pixel: where the pixels are odd, the one that is left is below.
void tst_canvas::aLinesCapitalsStandInTheMiddle()
{
    QFETCH(int, scale);
    QFETCH(int, size);
    QFETCH(int, height);
    const QImage image = drawn(scale, [&](Canvas &canvas) {
        canvas.drawLine(QStringLiteral("HIH"), {10, 20, 80, height}, kGold, TextAlign::Centre,
                        size);
    });
    const QRect place = scaled({10, 60 - height, 80, height}, scale);
    const QRect text = detail::extentWhere(
        image, [](const QColor &pixel) { return pixel.value() > kGold.value() / 2; });
    const int above = text.top() - place.top();
    const int below = place.bottom() - text.bottom();
    QVERIFY2(below - above == 0 || below - above == 1,
             qPrintable(QStringLiteral("%1 above, %2 below").arg(above).arg(below)));
}

void tst_canvas::whatBreaksLinesIsABlankInALine()
{
    const auto line = [](const QString &text) {
        return drawn(1, [&](Canvas &canvas) {
            canvas.drawLine(text, {10, 20, 80, 30}, kGold, TextAlign::Left, 10);
        });
    };
    const QImage blank = line(QStringLiteral("a b"));
    for (const QChar breaking : {QChar(u'\n'), QChar(u'\t'), QChar(QChar::LineSeparator)})
        QCOMPARE(line(u'a' + QString(breaking) + u'b'), blank);
}

/// Also in the toolkit's own size, and with the toolkit's letters behind them.
void tst_canvas::theLettersAreTheSkins()
{
    const QString family = QStringLiteral("Lato");
    if (!QFontDatabase::hasFamily(family))
        QSKIP("the skin's letters are not installed");
    for (const QFont &font : {skinFont(), systemFont(10)}) {
        QCOMPARE(QFontInfo(font).family(), family);
        QCOMPARE(QFontInfo(font).weight(), int{QFont::Medium});
        QCOMPARE(font.families(), QStringList() << family << QGuiApplication::font().families());
    }
    QCOMPARE(skinFont().pointSizeF(), QGuiApplication::font().pointSizeF());
    QCOMPARE(systemFont(10).pixelSize(), 10);
}

void tst_canvas::aLineTooLongIsCutAtItsEnd_data()
{
    QTest::addColumn<int>("scale");
    QTest::addColumn<TextAlign>("align");
    for (int scale : {1, 2}) {
        QTest::addRow("left, scale %d", scale) << scale << TextAlign::Left;
        QTest::addRow("right, scale %d", scale) << scale << TextAlign::Right;
        QTest::addRow("centre, scale %d", scale) << scale << TextAlign::Centre;
    }
}

void tst_canvas::aLineTooLongIsCutAtItsEnd()
{
    QFETCH(int, scale);
    QFETCH(TextAlign, align);
    const QString text = QStringLiteral("Whirling strike of the northern wind");
    const auto line = [&](const QString &written) {
        return drawn(scale, [&](Canvas &canvas) {
            canvas.drawLine(written, {20, 20, 60, 30}, kGold, align, 10);
        });
    };
    const QRect extent = extentOfOther(line(text), Qt::black);
    QVERIFY(scaled({20, 30, 60, 30}, scale).contains(extent));
    QVERIFY(extent.width() > 40 * scale && extent.height() < 14 * scale); // one line
    QCOMPARE(line(text), line(QFontMetrics(systemFont(10)).elidedText(text, Qt::ElideRight, 60)));
}

void tst_canvas::textIsWrappedAtWordsFromTheTopDownwards()
{
    QFETCH(int, scale);
    const auto where = [&](const char *text) {
        const QImage image = drawn(scale, [&](Canvas &canvas) {
            canvas.DrawMyTextwithColor(QString::fromLatin1(text), {10, 50, 40, 15}, kGold,
                                       TextAlign::Left, 10);
        });
        return extentOfOther(image, Qt::black);
    };
    const QRect one = where("HHHH");
    const QRect two = where("HHHH HHHH");
    QVERIFY(one.top() >= 15 * scale && one.bottom() < 30 * scale);
    QCOMPARE(two.topLeft(), one.topLeft());
    QCOMPARE(two.width(), one.width());
    QVERIFY(two.bottom() >= one.bottom() + 10 * scale); // not clipped below its rectangle
}

KYR_GUI_TEST(tst_canvas)
#include "tst_canvas.moc"
