#include "displaystage.h"
#include "support/pictures.h"
#include "support/suite.h"

/// A recording view gets higher as its text gets longer.
class tst_macrodisplaygrowth : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itGrowsToTheEstimatedLines_data();
    void itGrowsToTheEstimatedLines();
    void itGrowsByOneLineForEachDrawing();
    void itGrowsDownwards();
    void itDoesNotGrowUnlessItMay();
    void itNeverShrinks();
    void aShorterListLoadedMeanwhileEndsTheGrowth();
};

namespace {

/// A text form of so many characters.
Events textOfLength(std::size_t length)
{
    return Events(length, {0, 3, 0});
}

/// A view that is drawn only when it is asked to be.
struct UnshownDisplay
{
    explicit UnshownDisplay(std::size_t textLength)
    {
        display.enableScroll(true);
        display.setMaxKeymapEvent(kEventCount);
        display.setKeymapInfo(textOfLength(textLength));
    }

    /// The height after one drawing.
    int heightDrawn()
    {
        shown(display);
        QCoreApplication::processEvents();
        return display.height();
    }

    LogCapture log;
    QWidget host;
    MacroDisplay display{&host, {0, 0, 230, 30}};
};

} // namespace

void tst_macrodisplaygrowth::itGrowsToTheEstimatedLines_data()
{
    QTest::addColumn<std::size_t>("length");
    QTest::addColumn<int>("height");
    const auto row = [](const char *name, std::size_t length, int height) {
        QTest::newRow(name) << length << height;
    };
    row("no text", 0, 30);
    row("a line", 19, 30);
    row("two lines", 39, 30);
    row("a third", 40, 45);
    row("nearly a fourth", 59, 45);
    row("a fourth", 60, 60);
    row("all of the store", 500, 390);
}

void tst_macrodisplaygrowth::itGrowsToTheEstimatedLines()
{
    QFETCH(std::size_t, length);
    QFETCH(int, height);
    UnshownDisplay stage(length);
    for (int drawing = 0; drawing < 40; ++drawing)
        stage.heightDrawn();
    QCOMPARE(stage.display.height(), height);
    QCOMPARE(stage.display.width(), 230);
}

void tst_macrodisplaygrowth::itGrowsByOneLineForEachDrawing()
{
    UnshownDisplay stage(500);
    QCOMPARE(stage.heightDrawn(), 45);
    QCOMPARE(stage.heightDrawn(), 60);
    QCoreApplication::processEvents();
    QCOMPARE(stage.display.height(), 60);
    QCOMPARE(stage.heightDrawn(), 75);
}

void tst_macrodisplaygrowth::itGrowsDownwards()
{
    UnshownDisplay stage(500);
    const QImage before = shown(stage.display);
    const QPoint at = stage.display.pos();
    QCOMPARE(stage.heightDrawn(), 45);
    QCOMPARE(stage.display.pos(), at);
    QCOMPARE(stage.display.frame().height, 45);
    QCOMPARE(shown(stage.display).copy(before.rect()), before);
}

void tst_macrodisplaygrowth::itDoesNotGrowUnlessItMay()
{
    UnshownDisplay stage(500);
    stage.display.enableScroll(false);
    QCOMPARE(stage.heightDrawn(), 30);
    QCOMPARE(stage.heightDrawn(), 30);
    stage.display.enableScroll(true);
    QCOMPARE(stage.heightDrawn(), 45);
}

void tst_macrodisplaygrowth::itNeverShrinks()
{
    UnshownDisplay stage(60);
    QCOMPARE(stage.heightDrawn(), 45);
    QCOMPARE(stage.heightDrawn(), 60);
    stage.display.setKeymapInfo({});
    QCOMPARE(stage.heightDrawn(), 60);
    stage.display.enableScroll(false);
    QCOMPARE(stage.heightDrawn(), 60);
}

void tst_macrodisplaygrowth::aShorterListLoadedMeanwhileEndsTheGrowth()
{
    UnshownDisplay stage(500);
    shown(stage.display);
    stage.display.setKeymapInfo({});
    QCoreApplication::processEvents();
    QCOMPARE(stage.display.height(), 30);
    stage.display.setKeymapInfo(textOfLength(500));
    QCOMPARE(stage.heightDrawn(), 45);
}

KYR_GUI_TEST(tst_macrodisplaygrowth)
#include "tst_macrodisplaygrowth.moc"
