#include "drawnview.h"
#include "support/suite.h"

/// Drawing pictures at another size than their own, and only what is out of date of a view.
class tst_canvasparts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPictureFillsTheRectangleItIsScaledInto_data();
    void aPictureFillsTheRectangleItIsScaledInto();
    void aFinePictureIsScaledByItsSizeInPoints();
    void aScaledPictureLetsTheGroundThrough();
    void noPictureScaledDrawsNothing();
    void whatIsToBeDrawnIsExposed_data();
    void whatIsToBeDrawnIsExposed();
    void allOfAViewDrawnWholeIsExposed();
};

namespace {

/// Blue, 20 x 10 points, its lower left quarter red.
SkinImage quarterPicture()
{
    return markedPicture({20, 10}, Qt::blue, {0, 5, 10, 5}, Qt::red);
}

bool isExposedWithin(QRect part, UpRect rect)
{
    bool exposed = false;
    drawn(
        1, [&](const Canvas &canvas) { exposed = canvas.isExposed(rect); }, part);
    return exposed;
}

} // namespace

void tst_canvasparts::aPictureFillsTheRectangleItIsScaledInto_data()
{
    QTest::addColumn<int>("scale");
    QTest::addColumn<QSize>("size");
    for (int scale : {1, 2}) {
        QTest::addRow("larger, scale %d", scale) << scale << QSize(60, 40);
        QTest::addRow("smaller, scale %d", scale) << scale << QSize(10, 4);
        QTest::addRow("narrower and higher, scale %d", scale) << scale << QSize(8, 30);
        QTest::addRow("of its size, scale %d", scale) << scale << QSize(20, 10);
    }
}

void tst_canvasparts::aPictureFillsTheRectangleItIsScaledInto()
{
    QFETCH(int, scale);
    QFETCH(QSize, size);
    const QImage image = drawn(scale, [&](Canvas &canvas) {
        canvas.drawImageScaled(quarterPicture(), {30, 15, size.width(), size.height()});
    });
    // The lower left corner is that of the rectangle: 15 points above the view's lower edge.
    const QRect place(QPoint(30, 80 - 15 - size.height()), size);
    QCOMPARE(extentOfOther(image, Qt::black), scaled(place, scale));
    const QRect quarter(30, 80 - 15 - size.height() / 2, size.width() / 2, size.height() / 2);
    QVERIFY(scaled(quarter, scale).contains(extentOf(image, Qt::red)));
    QCOMPARE(image.pixelColor(scaled(quarter, scale).bottomLeft()), QColor(Qt::red));
    QCOMPARE(image.pixelColor(scaled(place, scale).topRight()), QColor(Qt::blue));
}

void tst_canvasparts::aFinePictureIsScaledByItsSizeInPoints()
{
    QPixmap fine(40, 20);
    fine.fill(Qt::blue);
    fine.setDevicePixelRatio(2);
    const QImage image = drawn(1, [&](Canvas &canvas) {
        canvas.drawImageScaled(SkinImage::of(fine), {30, 15, 50, 40});
    });
    QCOMPARE(extentOf(image, Qt::blue), QRect(30, 25, 50, 40));
}

void tst_canvasparts::aScaledPictureLetsTheGroundThrough()
{
    const QColor halfWhite(255, 255, 255, 128);
    const QImage image = drawn(1, [&](Canvas &canvas) {
        canvas.fill(canvas.bounds(), Qt::red);
        canvas.drawImageScaled(plainPicture({10, 10}, halfWhite), {30, 15, 20, 20});
    });
    const QColor mixed = image.pixelColor(40, 55);
    QCOMPARE(mixed.red(), 255);
    QVERIFY(qAbs(mixed.green() - 128) <= 2);
    QVERIFY(qAbs(mixed.blue() - 128) <= 2);
}

void tst_canvasparts::noPictureScaledDrawsNothing()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
    const QImage image = drawn(1, [](Canvas &canvas) {
        canvas.drawImageScaled({}, {30, 15, 20, 20});
        canvas.drawImageScaled(quarterPicture(), {30, 15, 0, 20});
    });
    QVERIFY(extentOfOther(image, Qt::black).isEmpty());
}

void tst_canvasparts::whatIsToBeDrawnIsExposed_data()
{
    QTest::addColumn<QRect>("place");
    QTest::addColumn<bool>("isExposed");
    // Out of date is what lies from 20 to 50 across and from 10 to 30 upwards.
    QTest::newRow("inside") << QRect(30, 15, 5, 5) << true;
    QTest::newRow("around") << QRect(0, 0, 100, 80) << true;
    QTest::newRow("over its left edge") << QRect(10, 15, 11, 5) << true;
    QTest::newRow("over its lower edge") << QRect(30, 0, 5, 11) << true;
    QTest::newRow("its top right corner") << QRect(49, 29, 5, 5) << true;
    QTest::newRow("left of it") << QRect(10, 15, 10, 5) << false;
    QTest::newRow("right of it") << QRect(50, 15, 10, 5) << false;
    QTest::newRow("below it") << QRect(30, 0, 5, 10) << false;
    QTest::newRow("above it") << QRect(30, 30, 5, 5) << false;
}

void tst_canvasparts::whatIsToBeDrawnIsExposed()
{
    QFETCH(QRect, place);
    QFETCH(bool, isExposed);
    const QRect outOfDate = UpHost(80).down(UpRect{20, 10, 30, 20});
    const UpRect asked{place.x(), place.y(), place.width(), place.height()};
    QCOMPARE(isExposedWithin(outOfDate, asked), isExposed);
}

void tst_canvasparts::allOfAViewDrawnWholeIsExposed()
{
    QVERIFY(isExposedWithin({}, {0, 0, 1, 1}));
    QVERIFY(isExposedWithin({}, {99, 79, 1, 1}));
    QVERIFY(!isExposedWithin({}, {0, 80, 1, 1}));
    QVERIFY(!isExposedWithin({}, {-1, 0, 1, 1}));
}

KYR_GUI_TEST(tst_canvasparts)
#include "tst_canvasparts.moc"
