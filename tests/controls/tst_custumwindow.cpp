#include "controls/custumwindow.h"
#include "support/pointer.h"
#include "support/suite.h"

#include <QtGui/QScreen>

/// The borderless window: dragging it by its background, being asked to close.
class tst_custumwindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void onlyTheTopEdgeLimitsADrag_data();
    void onlyTheTopEdgeLimitsADrag();
    void draggingTheBackgroundMovesTheWindow();
    void aPressOnAPlainChildDragsTheWindow();
    void draggedUpTheWindowStopsAtTheTopOfTheScreen();
    void draggedSidewaysOrDownTheWindowLeavesTheScreen_data();
    void draggedSidewaysOrDownTheWindowLeavesTheScreen();
    void aFixedWindowIgnoresDragsButRecordsThePress();
    void theRightButtonDragsNothing();
    void theWindowIsBorderlessAndSeeThrough();
    void anAttachedWindowIsATool();
    void theContentFillsTheWindowAtEverySize();
    void centringPutsTheWindowIntoTheMiddleOfTheScreen();
    void centringOverAWindowStaysOnTheScreen_data();
    void centringOverAWindowStaysOnTheScreen();
    void aWindowLargerThanTheScreenShowsItsLowerLeftCorner();
    void aCloseRequestIsSentInPlaceOfClosing();
    void withoutACloseRequestTheWindowCloses();
};

namespace {

/// The size of the screen on which these tests run.
QSize screenSize()
{
    return QGuiApplication::primaryScreen()->availableGeometry().size();
}

struct WindowStage
{
    WindowStage()
    {
        window.setBCanDragWindow(true);
        window.move(300, 300);
        window.show();
        if (!QTest::qWaitForWindowExposed(&window))
            qFatal("the window does not come up");
    }

    /// Presses in the window and moves the pointer by `way` on the screen, in small moves.
    void drag(QPoint way)
    {
        const QPoint start = window.mapToGlobal(QPoint(50, 60));
        pointer::press(window, {50, 60});
        for (int step = 1; step <= 10; ++step)
            pointer::move(window, window.mapFromGlobal(start + way * step / 10));
        pointer::release(window, window.mapFromGlobal(start + way));
    }

    custumwindow window{{0, 0, 200, 150}, nullptr};
};

class Closer : public QObject
{
public:
    void request() { ++requests; }
    int requests = 0;
};

} // namespace

void tst_custumwindow::onlyTheTopEdgeLimitsADrag_data()
{
    QTest::addColumn<UpPoint>("location");
    QTest::addColumn<UpPoint>("origin");
    const auto row = [](const char *name, UpPoint location, UpPoint origin) {
        QTest::newRow(name) << location << origin;
    };
    // A window of 200 x 100 at 300, 400, pressed at 10, 20; the screen is free from 0, 50 to
    // 1000, 800.
    row("not moved", {10, 20}, {300, 400});
    row("right and down", {25, 5}, {315, 385});
    row("up to the limit", {10, 320}, {300, 700});
    row("up past the limit", {10, 321}, {300, 700});
    row("far up and left", {-990, 9020}, {-700, 700});
    row("below the screen", {10, -980}, {300, -600});
    row("right of the screen", {1010, 20}, {1300, 400});
}

void tst_custumwindow::onlyTheTopEdgeLimitsADrag()
{
    QFETCH(UpPoint, location);
    QFETCH(UpPoint, origin);
    const UpPoint dragged =
        draggedOrigin({300, 400, 200, 100}, location, {10, 20}, {0, 50, 1000, 750});
    QCOMPARE(dragged.x, origin.x);
    QCOMPARE(dragged.y, origin.y);
}

void tst_custumwindow::draggingTheBackgroundMovesTheWindow()
{
    WindowStage stage;
    stage.drag({40, -30});
    QCOMPARE(stage.window.pos(), QPoint(340, 270));
    stage.drag({-100, 70});
    QCOMPARE(stage.window.geometry(), QRect(240, 340, 200, 150));
}

void tst_custumwindow::aPressOnAPlainChildDragsTheWindow()
{
    WindowStage stage;
    stage.window.setContentView(new View(&stage.window));
    stage.drag({40, -30});
    QCOMPARE(stage.window.pos(), QPoint(340, 270));
}

void tst_custumwindow::draggedUpTheWindowStopsAtTheTopOfTheScreen()
{
    WindowStage stage;
    stage.drag({10, -350});
    QCOMPARE(stage.window.pos(), QPoint(310, 0));
}

void tst_custumwindow::draggedSidewaysOrDownTheWindowLeavesTheScreen_data()
{
    QTest::addColumn<QPoint>("way");
    QTest::newRow("left") << QPoint(-400, 0);
    QTest::newRow("right") << QPoint(screenSize().width(), 0);
    QTest::newRow("down") << QPoint(0, screenSize().height());
}

void tst_custumwindow::draggedSidewaysOrDownTheWindowLeavesTheScreen()
{
    QFETCH(QPoint, way);
    WindowStage stage;
    stage.drag(way);
    QCOMPARE(stage.window.pos(), QPoint(300, 300) + way);
}

void tst_custumwindow::aFixedWindowIgnoresDragsButRecordsThePress()
{
    WindowStage stage;
    stage.window.setBCanDragWindow(false);
    stage.drag({40, -30});
    QCOMPARE(stage.window.pos(), QPoint(300, 300));
    QCOMPARE(stage.window.initialLocation().x, 50);
    QCOMPARE(stage.window.initialLocation().y, 90); // from the lower edge
}

void tst_custumwindow::theRightButtonDragsNothing()
{
    WindowStage stage;
    pointer::press(stage.window, {50, 60}, Qt::RightButton);
    pointer::move(stage.window, {90, 60});
    pointer::release(stage.window, {90, 60}, Qt::RightButton);
    QCOMPARE(stage.window.pos(), QPoint(300, 300));
}

void tst_custumwindow::theWindowIsBorderlessAndSeeThrough()
{
    const custumwindow window({0, 0, 200, 150}, nullptr);
    QVERIFY(window.windowFlags().testFlag(Qt::FramelessWindowHint));
    QCOMPARE(window.windowType(), Qt::Window);
    QVERIFY(window.testAttribute(Qt::WA_TranslucentBackground));
    QCOMPARE(window.size(), QSize(200, 150));
}

void tst_custumwindow::anAttachedWindowIsATool()
{
    QWidget owner;
    const custumwindow window({0, 0, 200, 150}, &owner);
    QCOMPARE(window.windowType(), Qt::Tool);
    QVERIFY(window.windowFlags().testFlag(Qt::FramelessWindowHint));
    QVERIFY(window.isWindow());
    QCOMPARE(window.parentWidget(), &owner);
}

void tst_custumwindow::theContentFillsTheWindowAtEverySize()
{
    WindowStage stage;
    QPointer<View> content = new View(nullptr);
    stage.window.setContentView(content);
    QCOMPARE(content->parentWidget(), &stage.window);
    QCOMPARE(content->geometry(), QRect(0, 0, 200, 150));
    QVERIFY(content->isVisible());
    stage.window.resize(240, 130);
    QCOMPARE(content->geometry(), QRect(0, 0, 240, 130));
}

void tst_custumwindow::centringPutsTheWindowIntoTheMiddleOfTheScreen()
{
    WindowStage stage;
    stage.window.center();
    const QPoint off =
        stage.window.geometry().center() - QGuiApplication::primaryScreen()->geometry().center();
    QVERIFY(off.manhattanLength() <= 1);
}

void tst_custumwindow::centringOverAWindowStaysOnTheScreen_data()
{
    QTest::addColumn<QPoint>("place");
    QTest::addColumn<QPoint>("centred");
    const int right = screenSize().width();
    const int lower = screenSize().height();
    // A window of 100 x 50 over one of 200 x 150.
    QTest::newRow("in the middle") << QPoint(300, 300) << QPoint(350, 350);
    QTest::newRow("past the left edge") << QPoint(-150, 300) << QPoint(0, 350);
    QTest::newRow("past the right edge") << QPoint(right - 60, 300) << QPoint(right - 100, 350);
    QTest::newRow("past the lower edge") << QPoint(300, lower - 30) << QPoint(350, lower - 50);
    QTest::newRow("past the top") << QPoint(300, -120) << QPoint(350, 0);
    QTest::newRow("at a corner, inside") << QPoint(0, 0) << QPoint(50, 50);
}

void tst_custumwindow::centringOverAWindowStaysOnTheScreen()
{
    QFETCH(QPoint, place);
    QFETCH(QPoint, centred);
    WindowStage stage;
    stage.window.move(place);
    custumwindow window{{0, 0, 100, 50}, &stage.window};
    window.centerOver(stage.window);
    QCOMPARE(window.geometry(), QRect(centred, QSize(100, 50)));
}

void tst_custumwindow::aWindowLargerThanTheScreenShowsItsLowerLeftCorner()
{
    WindowStage stage;
    const QSize large = screenSize() + QSize(100, 60);
    custumwindow window{{0, 0, large.width(), large.height()}, &stage.window};
    window.centerOver(stage.window);
    QCOMPARE(window.geometry(), QRect(QPoint(0, -60), large));
}

void tst_custumwindow::aCloseRequestIsSentInPlaceOfClosing()
{
    WindowStage stage;
    Closer closer;
    stage.window.setCloseRequest({&closer, &Closer::request});
    QVERIFY(!stage.window.close());
    QCOMPARE(closer.requests, 1);
    QVERIFY(stage.window.isVisible());
}

void tst_custumwindow::withoutACloseRequestTheWindowCloses()
{
    WindowStage stage;
    QVERIFY(stage.window.close());
    QVERIFY(!stage.window.isVisible());
}

KYR_GUI_TEST(tst_custumwindow)
#include "tst_custumwindow.moc"
