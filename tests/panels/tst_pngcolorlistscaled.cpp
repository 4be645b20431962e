#include "colorpicture.h"
#include "lightingstage.h"
#include "support/pictures.h"
#include "support/suite.h"

/// Picking a colour on a display of two pixels a point.
class tst_pngcolorlistscaled : public QObject
{
    Q_OBJECT

public:
    static void initMain() { qputenv("QT_SCALE_FACTOR", "2"); }

private Q_SLOTS:
    void itShowsTheFinePicture();
    void everyPixelOfAPointCanBePicked();
    void aPointsUpperLeftPixelIsPickedByPoints();
    void everySwatchGivesItsColour_data() { swatchRows(); }
    void everySwatchGivesItsColour();
    void aReleaseHalfAPointOutsidePicksNothing();
    void theCrossPicksWhereItStands();
    void theBarsPictureGivesItsPixels();
};

void tst_pngcolorlistscaled::itShowsTheFinePicture()
{
    ColourStage stage;
    QImage fine = shown(stage.list);
    fine.setDevicePixelRatio(2);
    QCOMPARE(fine, drawnColours(2));
}

void tst_pngcolorlistscaled::everyPixelOfAPointCanBePicked()
{
    const ColourStage stage;
    const QImage drawn = drawnColours(2);
    QCOMPARE(drawn.size(), QSize(236, 192));
    // A step that has no factor in common with a point's pixels.
    for (int y = 0; y < drawn.height(); y += 3) {
        for (int x = 0; x < drawn.width(); x += 3) {
            clickBetween(stage.list, QPointF(x, y) / 2);
            if (stage.picked() != drawn.pixelColor(x, y))
                QFAIL(qPrintable(QStringLiteral("%1, %2").arg(x).arg(y)));
        }
    }
}

void tst_pngcolorlistscaled::aPointsUpperLeftPixelIsPickedByPoints()
{
    const ColourStage stage;
    const QImage drawn = drawnColours(2);
    for (const QPoint at : {QPoint(0, 0), QPoint(11, 7), QPoint(58, 33), QPoint(117, 95)}) {
        pointer::click(stage.list, at);
        QCOMPARE(stage.picked(), drawn.pixelColor(2 * at));
    }
}

void tst_pngcolorlistscaled::everySwatchGivesItsColour()
{
    QFETCH(const KnownSwatch *, known);
    const ColourStage stage;
    for (const QPointF within :
         {QPointF(0, 0), QPointF(0.5, 0), QPointF(0, 0.5), QPointF(0.5, 0.5)}) {
        clickBetween(stage.list, known->point + within);
        QCOMPARE(stage.picked(), known->colour);
    }
    QCOMPARE(stage.picks.count(), std::size_t{4});
}

void tst_pngcolorlistscaled::aReleaseHalfAPointOutsidePicksNothing()
{
    const ColourStage stage;
    for (const QPointF at :
         {QPointF(-0.5, 20), QPointF(20, -0.5), QPointF(118, 20), QPointF(20, 96)}) {
        pointer::press(stage.list, {20, 20});
        sendButton(QEvent::MouseButtonRelease, stage.list, at, QTest::lastMouseTimestamp + 1);
    }
    QCOMPARE(stage.picks.count(), std::size_t{0});
}

void tst_pngcolorlistscaled::theCrossPicksWhereItStands()
{
    ColourStage stage;
    const QImage drawn = drawnColours(2);
    QPoint at(59, 48);
    stage.key(Qt::Key_Right); // shows the cross
    for (int step = 0; step < 6; ++step) {
        stage.key(Qt::Key_Right);
        stage.key(Qt::Key_Up, Qt::ShiftModifier);
        at += QPoint(4, -1);
        stage.key(Qt::Key_Return);
        QCOMPARE(stage.picked(), drawn.pixelColor(2 * at));
    }
}

void tst_pngcolorlistscaled::theBarsPictureGivesItsPixels()
{
    LightingStage stage;
    stage.toggleBottom();
    const QImage drawn = drawnColours(2);
    for (const QPoint pixel : {QPoint(0, 0), QPoint(101, 60), QPoint(35, 21), QPoint(180, 133),
                               QPoint(234, 127), QPoint(24, 190), QPoint(23, 189)}) {
        const pngcolorlist &picture = stage.openPicture();
        QCOMPARE(picture.size(), QSize(118, 96));
        clickBetween(picture, QPointF(pixel) / 2);
        QTRY_VERIFY(openPopups().empty());
        const ProfileInfo &profile = CurrentProfile();
        QCOMPARE(colourOf(profile.LED_COLOR_R, profile.LED_COLOR_G, profile.LED_COLOR_B),
                 drawn.pixelColor(pixel));
        QCOMPARE(stage.swatch(), drawn.pixelColor(pixel));
    }
}

KYR_GUI_TEST(tst_pngcolorlistscaled)
#include "tst_pngcolorlistscaled.moc"
