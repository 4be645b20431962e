#include "displaypictures.h"
#include "displaystage.h"
#include "support/pictures.h"
#include "support/suite.h"

/// The recording view on a display of two pixels a point.
class tst_scaledmacrodisplay : public QObject
{
    Q_OBJECT

public:
    static void initMain() { qputenv("QT_SCALE_FACTOR", "2"); }

private Q_SLOTS:
    void itIsDrawnFinelyInTheSameCells();
    void aRecordedKeyIsDrawnFinely();
};

namespace {

/// What of a picture of two pixels a point is not drawn in single points.
bool isFine(const QImage &image)
{
    for (int y = 0; y < image.height(); y += 2) {
        for (int x = 0; x < image.width(); x += 2) {
            if (image.pixel(x, y) != image.pixel(x + 1, y + 1))
                return true;
        }
    }
    return false;
}

} // namespace

void tst_scaledmacrodisplay::itIsDrawnFinelyInTheSameCells()
{
    DisplayStage stage;
    stage.display.setKeymapInfo(someLines());
    const QImage image = shown(stage.display);
    QCOMPARE(image.size(), QSize(460, 280));
    QCOMPARE(image, displayPicture(eventText(someLines(), {}), {230, 140}, Qt::white, 2));
    QVERIFY(isFine(image));
}

void tst_scaledmacrodisplay::aRecordedKeyIsDrawnFinely()
{
    DisplayStage stage;
    stage.click();
    keystroke::tap(keystroke::kA);
    const QImage image = shown(stage.display);
    QCOMPARE(image, displayPicture(QStringLiteral("A|A^"), {230, 140}, Qt::white, 2));
    QVERIFY(isFine(image));
}

KYR_GUI_TEST(tst_scaledmacrodisplay)
#include "tst_scaledmacrodisplay.moc"
