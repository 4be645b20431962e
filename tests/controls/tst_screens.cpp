#include "controls/custumwindow.h"
#include "support/pointer.h"
#include "support/suite.h"

#include <QtCore/QTemporaryDir>
#include <QtGui/QScreen>

/// Windows on a desktop of several screens: the primary one, a lower and smaller one at its right,
/// and one above it.
class tst_screens : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theScreensAreThere();
    void aDragIsLimitedByTheScreenUnderThePointer_data();
    void aDragIsLimitedByTheScreenUnderThePointer();
    void theMovedWindowIsLimitedByTheScreenUnderThePointer();
    void offAllScreensTheWindowsOwnScreenLimitsADrag();
    void centringStaysOnTheWindowsOwnScreen_data() { screens(); }
    void centringStaysOnTheWindowsOwnScreen();
    void centringOverAWindowStaysOnThatWindowsScreen_data();
    void centringOverAWindowStaysOnThatWindowsScreen();
    void aFrameIsKeptOnEveryScreen_data() { screens(); }
    void aFrameIsKeptOnEveryScreen();

private:
    static void screens();
};

namespace {

constexpr QRect kPrimary(0, 0, 1000, 800);
constexpr QRect kRight(1000, 150, 600, 500);
constexpr QRect kAbove(100, -400, 700, 400);

constexpr QPoint kPress{50, 60};

QByteArray screenEntry(const char *name, QRect place)
{
    return QStringLiteral(R"({"name":"%1","x":%2,"y":%3,"width":%4,"height":%5,)"
                          R"("logicalDpi":96,"logicalBaseDpi":96,"dpr":1})")
        .arg(QLatin1String(name))
        .arg(place.x())
        .arg(place.y())
        .arg(place.width())
        .arg(place.height())
        .toUtf8();
}

/// A platform with these screens, described in a file in `folder`. The first one by name is the
/// primary one.
void describeScreens(const QTemporaryDir &folder)
{
    const QString path = folder.filePath(QStringLiteral("screens.json"));
    QFile file(path);
    const QByteArray description = "{\"screens\":[" + screenEntry("1", kPrimary) + ',' +
                                   screenEntry("2", kRight) + ',' + screenEntry("3", kAbove) + "]}";
    if (!file.open(QIODevice::WriteOnly) || file.write(description) != description.size())
        qFatal("cannot describe the screens");
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + path.toUtf8());
}

/// A window of 200 x 150 at a place of the screens.
struct DraggedStage
{
    explicit DraggedStage(QPoint place)
    {
        window.setBCanDragWindow(true);
        window.move(place);
        window.show();
        if (!QTest::qWaitForWindowExposed(&window))
            qFatal("the window does not come up");
    }

    /// Drags with the pointer, on the screens, past each point.
    void drag(const std::vector<QPoint> &way)
    {
        pointer::press(window, kPress);
        for (const QPoint there : way)
            pointer::move(window, window.mapFromGlobal(there));
        pointer::release(window, window.mapFromGlobal(way.back()));
    }

    custumwindow window{{0, 0, 200, 150}, nullptr};
};

} // namespace

void tst_screens::screens()
{
    QTest::addColumn<QRect>("screen");
    QTest::newRow("primary") << kPrimary;
    QTest::newRow("right") << kRight;
    QTest::newRow("above") << kAbove;
}

void tst_screens::theScreensAreThere()
{
    QCOMPARE(QGuiApplication::primaryScreen()->geometry(), kPrimary);
    QList<QRect> places;
    for (const QScreen *screen : QGuiApplication::screens())
        places.append(screen->geometry());
    QCOMPARE(places, QList<QRect>({kPrimary, kRight, kAbove}));
}

void tst_screens::aDragIsLimitedByTheScreenUnderThePointer_data()
{
    QTest::addColumn<QPoint>("pointerEnd");
    QTest::addColumn<int>("top");
    // Pressed 60 below its top, the window's top is 60 above the pointer.
    QTest::newRow("primary, free") << QPoint(400, 100) << 40;
    QTest::newRow("primary, at its top") << QPoint(400, 20) << 0;
    QTest::newRow("primary, beside the one above") << QPoint(20, 5) << 0;
    QTest::newRow("right, free") << QPoint(1100, 400) << 340;
    QTest::newRow("right, at its top") << QPoint(1100, 160) << 150;
    QTest::newRow("above, free") << QPoint(400, -100) << -160;
    QTest::newRow("above, just over the edge") << QPoint(400, -1) << -61;
    QTest::newRow("above, at its top") << QPoint(400, -390) << -400;
}

void tst_screens::aDragIsLimitedByTheScreenUnderThePointer()
{
    QFETCH(QPoint, pointerEnd);
    QFETCH(int, top);
    DraggedStage stage({300, 300});
    stage.drag({{400, 370}, pointerEnd});
    QCOMPARE(stage.window.pos(), QPoint(pointerEnd.x() - kPress.x(), top));
}

void tst_screens::theMovedWindowIsLimitedByTheScreenUnderThePointer()
{
    DraggedStage stage({300, 300});
    custumwindow main{{0, 0, 200, 400}, nullptr};
    main.move(500, 200);
    main.show();
    stage.window.setDragMoves(&main);
    stage.drag({{400, -10}}); // 370 up
    QCOMPARE(main.pos(), QPoint(550, -170));
}

void tst_screens::offAllScreensTheWindowsOwnScreenLimitsADrag()
{
    DraggedStage stage({1100, 300});
    stage.drag({{1200, 340}, {1200, 60}}); // over the right screen there is nothing
    QCOMPARE(stage.window.pos(), QPoint(1150, 150));
}

void tst_screens::centringStaysOnTheWindowsOwnScreen()
{
    QFETCH(QRect, screen);
    DraggedStage stage(screen.topLeft() + QPoint(20, 30));
    stage.window.center();
    const QPoint off = stage.window.geometry().center() - screen.center();
    QVERIFY(off.manhattanLength() <= 1);
}

void tst_screens::centringOverAWindowStaysOnThatWindowsScreen_data()
{
    QTest::addColumn<QPoint>("place");
    QTest::addColumn<QPoint>("centred");
    // A window of 100 x 50 over one of 200 x 150.
    QTest::newRow("in the middle") << QPoint(1200, 300) << QPoint(1250, 350);
    QTest::newRow("past the right edge") << QPoint(1480, 300) << QPoint(1500, 350);
    QTest::newRow("past the lower edge") << QPoint(1200, 560) << QPoint(1250, 600);
    QTest::newRow("above, in the middle") << QPoint(300, -300) << QPoint(350, -250);
    QTest::newRow("above, past the left edge") << QPoint(30, -300) << QPoint(100, -250);
    QTest::newRow("above, past its top") << QPoint(300, -470) << QPoint(350, -400);
}

void tst_screens::centringOverAWindowStaysOnThatWindowsScreen()
{
    QFETCH(QPoint, place);
    QFETCH(QPoint, centred);
    DraggedStage stage(place);
    custumwindow window{{0, 0, 100, 50}, &stage.window};
    window.centerOver(stage.window);
    QCOMPARE(window.geometry(), QRect(centred, QSize(100, 50)));
}

void tst_screens::aFrameIsKeptOnEveryScreen()
{
    QFETCH(QRect, screen);
    DraggedStage stage(screen.topLeft());
    // Upwards from the primary screen's lower edge.
    const UpRect frame{screen.x() + 40, 800 - screen.y() - 200, 200, 150};
    stage.window.setFrame(frame);
    QVERIFY(stage.window.frame() == frame);
    QCOMPARE(stage.window.geometry(), QRect(screen.x() + 40, screen.y() + 50, 200, 150));
}

namespace {

int runWithSeveralScreens(int argc, char **argv)
{
    const QTemporaryDir folder;
    describeScreens(folder);
    return suite::runWithin<tst_screens, QApplication>(argc, argv);
}

} // namespace

KYR_TEST_RUN_BY(tst_screens, runWithSeveralScreens)
#include "tst_screens.moc"
