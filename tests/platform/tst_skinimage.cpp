#include "support/logcapture.h"
#include "support/pictures.h"
#include "support/suite.h"

/// Pictures of the skin.
class tst_skinimage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPartIsCutOutUpwards();
    void whatLiesOutsideThePictureIsTransparent();
    void aPartOfNothingIsNothing();
    void aPartKeepsTheResolution();
    void anUnknownNameIsLoggedAndGivesNothing();
    void everyPictureHasItsSize_data();
    void everyPictureHasItsSize();
    void aStateDiffersFromTheNormalOneOnlyInTheControls();
    void aPartOfANamedPictureIsThatOfItsPixels_data();
    void aPartOfANamedPictureIsThatOfItsPixels();
    void aPartOfAPartIsCutFromThat();
};

void tst_skinimage::aPartIsCutOutUpwards()
{
    const QRect mark(10, 70, 30, 20); // from 10 to 30 above the lower edge
    const SkinImage source = markedPicture({100, 100}, Qt::blue, mark, Qt::red);
    const SkinImage exact = SkinImage::CopyImagefromrect(source, {10, 10, 30, 20});
    QCOMPARE(exact.size(), QSize(30, 20));
    QCOMPARE(extentOf(exact.pixmap().toImage(), Qt::red), QRect(0, 0, 30, 20));
    const SkinImage larger = SkinImage::CopyImagefromrect(source, {5, 5, 40, 40});
    QCOMPARE(extentOf(larger.pixmap().toImage(), Qt::red), QRect(5, 15, 30, 20));
}

void tst_skinimage::whatLiesOutsideThePictureIsTransparent()
{
    const SkinImage source = plainPicture({10, 10}, Qt::red);
    const SkinImage part = SkinImage::CopyImagefromrect(source, {5, 5, 10, 10});
    QCOMPARE(part.size(), QSize(10, 10));
    const QImage picture = part.pixmap().toImage();
    QCOMPARE(extentOf(picture, Qt::red), QRect(0, 5, 5, 5));
    QCOMPARE(picture.pixelColor(9, 0).alpha(), 0);
}

void tst_skinimage::aPartOfNothingIsNothing()
{
    QVERIFY(SkinImage::CopyImagefromrect({}, {0, 0, 10, 10}).isNull());
}

void tst_skinimage::aPartKeepsTheResolution()
{
    QPixmap fine(200, 200);
    fine.fill(Qt::blue);
    QPainter(&fine).fillRect(0, 180, 20, 20, Qt::red);
    fine.setDevicePixelRatio(2.0);
    const SkinImage source = SkinImage::of(fine);
    QCOMPARE(source.size(), QSize(100, 100));
    const SkinImage part = SkinImage::CopyImagefromrect(source, {0, 0, 10, 10});
    QCOMPARE(part.size(), QSize(10, 10));
    QCOMPARE(extentOf(part.pixmap().toImage(), Qt::red), QRect(0, 0, 20, 20));
}

void tst_skinimage::anUnknownNameIsLoggedAndGivesNothing()
{
    const LogCapture log;
    QVERIFY(SkinImage::named("nosuchpicture").isNull());
    QCOMPARE(log.lines, std::vector<std::string>{"no skin image nosuchpicture"});
}

void tst_skinimage::everyPictureHasItsSize_data()
{
    QTest::addColumn<QSize>("size");
    for (const char *name : {"mainbk", "mainO", "mainD", "mainDis"})
        QTest::newRow(name) << QSize(654, 640);
    for (const char *name : {"Pop_UP_normal", "Pop_UP_over", "Pop_UP_down"})
        QTest::newRow(name) << QSize(256, 74);
}

void tst_skinimage::everyPictureHasItsSize()
{
    QTEST(SkinImage::named(QTest::currentDataTag()).size(), "size");
}

void tst_skinimage::aStateDiffersFromTheNormalOneOnlyInTheControls()
{
    const QRect control(234, 640 - 443 - 27, 97, 27); // Button1
    const QRect ground(234, 500, 97, 27);
    const QImage normal = SkinImage::named("mainbk").pixmap().toImage();
    for (const char *name : {"mainO", "mainD", "mainDis"}) {
        const QImage state = SkinImage::named(name).pixmap().toImage();
        QVERIFY2(state.copy(control) != normal.copy(control), name);
        QVERIFY2(state.copy(ground) == normal.copy(ground), name);
    }
}

void tst_skinimage::aPartOfANamedPictureIsThatOfItsPixels_data()
{
    QTest::addColumn<UpRect>("part");
    QTest::newRow("Button1") << UpRect{234, 443, 97, 27};
    QTest::newRow("all") << UpRect{0, 0, 654, 640};
    QTest::newRow("over the edge") << UpRect{600, -20, 100, 60};
}

void tst_skinimage::aPartOfANamedPictureIsThatOfItsPixels()
{
    QFETCH(const UpRect, part);
    for (const char *name : {"mainbk", "mainO"}) {
        const SkinImage whole = SkinImage::named(name);
        const SkinImage cut = SkinImage::CopyImagefromrect(whole, part);
        QCOMPARE(cut.size(), QSize(part.width, part.height));
        const QImage expected = whole.pixmap()
                                    .toImage()
                                    .copy(UpHost(640).down(part))
                                    .convertToFormat(QImage::Format_ARGB32_Premultiplied);
        QCOMPARE(cut.pixmap().toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied),
                 expected);
    }
}

void tst_skinimage::aPartOfAPartIsCutFromThat()
{
    const SkinImage whole = SkinImage::named("mainO");
    const SkinImage part = SkinImage::CopyImagefromrect(whole, {230, 440, 110, 40});
    const SkinImage inner = SkinImage::CopyImagefromrect(part, {4, 3, 97, 27});
    const SkinImage same = SkinImage::CopyImagefromrect(whole, {234, 443, 97, 27});
    QCOMPARE(inner.pixmap().toImage(), same.pixmap().toImage());
}

KYR_GUI_TEST(tst_skinimage)
#include "tst_skinimage.moc"
