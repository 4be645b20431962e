#include "platform/windowshape.h"
#include "support/pictures.h"
#include "support/suite.h"

namespace {

/// A picture with `opaque` of it opaque, in its own pixels.
SkinImage cornerPicture(QSize size, qreal scale, const QRegion &opaque)
{
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    for (const QRect &rect : opaque)
        painter.fillRect(rect, Qt::red);
    painter.end();
    pixmap.setDevicePixelRatio(scale);
    return SkinImage::of(pixmap);
}

/// Only one of the lower corners is cut, and there is a hole.
const QRegion kOpaque = QRegion(3, 0, 34, 1) + QRegion(2, 1, 36, 1) + QRegion(0, 2, 40, 17) +
                        QRegion(0, 19, 38, 1) - QRegion(10, 5, 4, 6);

} // namespace

/// The shape that a picture gives a window.
class tst_windowshape : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theShapeIsEveryOpaquePixel();
    void aFinePictureGivesTheShapeOfItsOwnPixels();
    void aPictureOfAnotherScaleIsScaled();
    void halfOpaqueIsWithin_data();
    void halfOpaqueIsWithin();
    void anOpaquePictureGivesNoShape();
    void aPictureOfNothingGivesNoShape();
};

void tst_windowshape::theShapeIsEveryOpaquePixel()
{
    QCOMPARE(opaqueShape(cornerPicture({40, 20}, 1, kOpaque), 1), kOpaque);
}

void tst_windowshape::aFinePictureGivesTheShapeOfItsOwnPixels()
{
    QCOMPARE(opaqueShape(cornerPicture({40, 20}, 2, kOpaque), 2), kOpaque);
}

void tst_windowshape::aPictureOfAnotherScaleIsScaled()
{
    const QRegion half(0, 0, 20, 20);
    QCOMPARE(opaqueShape(cornerPicture({40, 20}, 2, half), 1), QRegion(0, 0, 10, 10));
    QCOMPARE(opaqueShape(cornerPicture({40, 20}, 1, half), 2), QRegion(0, 0, 40, 40));
    QCOMPARE(opaqueShape(cornerPicture({40, 20}, 2, half), 1.5), QRegion(0, 0, 15, 15));
}

void tst_windowshape::halfOpaqueIsWithin_data()
{
    QTest::addColumn<int>("alpha");
    QTest::addColumn<QRegion>("shape");
    QTest::newRow("less than half") << 127 << QRegion(0, 0, 5, 4);
    QTest::newRow("half") << 128 << QRegion(0, 0, 6, 4);
}

void tst_windowshape::halfOpaqueIsWithin()
{
    QFETCH(const int, alpha);
    QImage picture(10, 4, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.fillRect(0, 0, 5, 4, Qt::red);
    painter.fillRect(5, 0, 1, 4, QColor(255, 0, 0, alpha));
    painter.end();
    QTEST(opaqueShape(SkinImage::of(QPixmap::fromImage(picture)), 1), "shape");
}

void tst_windowshape::anOpaquePictureGivesNoShape()
{
    QVERIFY(opaqueShape(plainPicture({10, 10}, Qt::red), 1).isEmpty());
    QVERIFY(opaqueShape(cornerPicture({10, 10}, 1, QRect(0, 0, 10, 10)), 1).isEmpty());
}

void tst_windowshape::aPictureOfNothingGivesNoShape()
{
    QVERIFY(opaqueShape({}, 1).isEmpty());
    QVERIFY(opaqueShape(cornerPicture({10, 10}, 1, {}), 1).isEmpty());
}

KYR_GUI_TEST(tst_windowshape)
#include "tst_windowshape.moc"
