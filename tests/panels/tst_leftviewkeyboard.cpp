#include "levelstage.h"
#include "support/focus.h"
#include "support/keyboard.h"
#include "support/suite.h"

/// The keyboard's way through the left bar.
class tst_leftviewkeyboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theTabKeyGoesThroughAnOpenBarFromTopToBottom();
    void backtabGoesTheSameWayBack();
    void theTabKeyPassesTheControlsOfAShutBar();
    void aBarUnderWayIsOnTheWay();
    void aShuttingBarLetsTheKeyboardGo_data();
    void aShuttingBarLetsTheKeyboardGo();
    void aClickOnTheHandleLeavesTheKeyboardAtASlider_data() { levelRows(); }
    void aClickOnTheHandleLeavesTheKeyboardAtASlider();
    void escapeInTheBarDoesNothing();
};

namespace {

const QStringList kStops = {
    QStringLiteral("LeftBar/btnToggle"),       QStringLiteral("LeftBar/btnDPI"),
    QStringLiteral("LeftBar/dbClickSpeedBar"), QStringLiteral("LeftBar/scrollSpeedBar"),
    QStringLiteral("LeftBar/pointSpeedBar"),   QStringLiteral("LeftBar/advSensXBar"),
    QStringLiteral("LeftBar/advSensYBar"),     QStringLiteral("RightBar/btnToggle"),
};

/// From the bar's handle on, as many stops as an open bar makes.
QStringList stopsFromHandle(const LevelStage &stage)
{
    keyboard::tabTo(stage.toggle(kLeftBar));
    QStringList stops{focusPlace()};
    while (stops.size() < kStops.size() && stops.last().startsWith(QLatin1String("LeftBar/")))
        stops << focusPlaceAfter(Qt::Key_Tab);
    return stops;
}

} // namespace

void tst_leftviewkeyboard::theTabKeyGoesThroughAnOpenBarFromTopToBottom()
{
    const OpenLevelStage stage;
    QCOMPARE(stopsFromHandle(stage), kStops);
}

void tst_leftviewkeyboard::backtabGoesTheSameWayBack()
{
    const OpenLevelStage stage;
    QStringList expected = kStops;
    std::ranges::reverse(expected);
    keyboard::tabTo(stage.toggle(kKnownBars[1]));
    QStringList stops{focusPlace()};
    while (stops.size() < kStops.size())
        stops << focusPlaceAfter(Qt::Key_Backtab);
    QCOMPARE(stops, expected);
    QVERIFY(focusPlaceAfter(Qt::Key_Backtab).startsWith(QLatin1String("MainWindow/")));
}

void tst_leftviewkeyboard::theTabKeyPassesTheControlsOfAShutBar()
{
    LevelStage stage;
    const QStringList expected{kStops.first(), kStops.last()};
    QCOMPARE(stopsFromHandle(stage), expected);
    stage.toggleLeft();
    stage.toggleLeft();
    QCOMPARE(stopsFromHandle(stage), expected);
}

void tst_leftviewkeyboard::aBarUnderWayIsOnTheWay()
{
    LevelStage stage;
    pointer::click(stage.toggle(kLeftBar));
    stage.passHalf();
    QCOMPARE(stopsFromHandle(stage), kStops);
}

void tst_leftviewkeyboard::aShuttingBarLetsTheKeyboardGo_data()
{
    QTest::addColumn<QString>("stop");
    for (const QString &stop : kStops.mid(1, 6))
        QTest::newRow(qPrintable(stop)) << stop;
}

void tst_leftviewkeyboard::aShuttingBarLetsTheKeyboardGo()
{
    QFETCH(QString, stop);
    OpenLevelStage stage;
    keyboard::tabTo(*stage.left().findChild<QWidget *>(stop.section(QLatin1Char('/'), 1)));
    QCOMPARE(focusPlace(), stop);
    stage.toggleLeft();
    QVERIFY(!stage.left().focusWidget());
    QVERIFY(stage.leftIsKey());
    keyboard::press(Qt::Key_Up);
    QVERIFY(!stage.program.applyIsEnabled());
    QCOMPARE(focusPlaceAfter(Qt::Key_Tab), kStops.first());
}

void tst_leftviewkeyboard::aClickOnTheHandleLeavesTheKeyboardAtASlider()
{
    QFETCH(const KnownLevel *, known);
    OpenLevelStage stage;
    keyboard::tabTo(stage.slider(*known));
    pointer::click(stage.toggle(kLeftBar));
    stage.passHalf();
    pointer::click(stage.toggle(kLeftBar)); // turned round before it was shut
    stage.arrive();
    QVERIFY(stage.lies(kLeftBar, kLeftBar.open));
    QVERIFY(stage.slider(*known).hasFocus());
}

void tst_leftviewkeyboard::escapeInTheBarDoesNothing()
{
    OpenLevelStage stage;
    const QString before = stage.shows();
    for (const KnownLevel &known : kKnownLevels) {
        keyboard::tabTo(stage.slider(known));
        for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Space})
            keyboard::press(key);
    }
    stage.arrive();
    QVERIFY(stage.lies(kLeftBar, kLeftBar.open));
    QCOMPARE(stage.shows(), before);
    QVERIFY(!stage.program.applyIsEnabled());
}

KYR_GUI_TEST(tst_leftviewkeyboard)
#include "tst_leftviewkeyboard.moc"
