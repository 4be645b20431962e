#include "lightingstage.h"
#include "support/focus.h"
#include "support/suite.h"

/// The keyboard's way over the bottom bar.
class tst_bottomviewkeyboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theTabKeyReachesTheOpenBarsControls();
    void backtabGoesTheOtherWay();
    void theTabKeyPassesAShutBarsControls();
    void theControlsShowWhileTheBarIsNotShut_data() { lightRows(); }
    void theControlsShowWhileTheBarIsNotShut();
    void aControlReachedByTabShowsTheFrame_data() { lightRows(); }
    void aControlReachedByTabShowsTheFrame();
    void aClickLeavesTheKeyboardAtItsPlace_data() { lightRows(); }
    void aClickLeavesTheKeyboardAtItsPlace();
    void aShuttingBarLetsTheKeyboardGo_data() { lightRows(); }
    void aShuttingBarLetsTheKeyboardGo();
};

namespace {

/// The stops from the bar's handle on, until the keyboard is in another window.
QStringList stopsFromHandle(const LightingStage &stage, Qt::Key key)
{
    keyboard::tabTo(stage.toggle(kBottomBar));
    QStringList stops;
    const QString window = QLatin1String(kBottomBar.window) + QLatin1Char('/');
    QString at = focusPlace();
    for (; at.startsWith(window); at = focusPlaceAfter(key))
        stops << at.mid(window.size());
    return stops << at.section(QLatin1Char('/'), 0, 0);
}

/// Whether a control is drawn with the frame that tells that it has the keyboard.
bool isFramed(QAbstractButton &button)
{
    return extentOf(shown(button), kGold) == button.rect() &&
           shownAt(button, {0, button.height() / 2}) == kGold;
}

} // namespace

void tst_bottomviewkeyboard::theTabKeyReachesTheOpenBarsControls()
{
    LightingStage stage;
    stage.toggleBottom();
    QCOMPARE(stopsFromHandle(stage, Qt::Key_Tab).join(QLatin1Char(' ')),
             QStringLiteral("btnToggle btnColorButton btnIntensity btnPulsation MainWindow"));
}

void tst_bottomviewkeyboard::backtabGoesTheOtherWay()
{
    LightingStage stage;
    stage.toggleBottom();
    keyboard::tabTo(stage.button(kPulsationLight));
    for (const char *name : {"btnIntensity", "btnColorButton", "btnToggle"}) {
        keyboard::press(Qt::Key_Backtab);
        QCOMPARE(focusPlace(), QLatin1String("BottomBar/") + QLatin1String(name));
    }
    QCOMPARE(stopsFromHandle(stage, Qt::Key_Backtab).join(QLatin1Char(' ')),
             QStringLiteral("btnToggle RightBar"));
}

void tst_bottomviewkeyboard::theTabKeyPassesAShutBarsControls()
{
    LightingStage stage;
    const QStringList handleOnly{QStringLiteral("btnToggle"), QStringLiteral("MainWindow")};
    QCOMPARE(stopsFromHandle(stage, Qt::Key_Tab), handleOnly);
    stage.toggleBottom();
    stage.toggleBottom();
    QCOMPARE(stopsFromHandle(stage, Qt::Key_Tab), handleOnly);
}

void tst_bottomviewkeyboard::theControlsShowWhileTheBarIsNotShut()
{
    QFETCH(const KnownLight *, known);
    LightingStage stage;
    const QWidget &button = stage.button(*known);
    QVERIFY(!button.isVisible());
    pointer::click(stage.toggle(kBottomBar));
    stage.passHalf();
    QVERIFY(button.isVisible());
    stage.passHalf();
    QVERIFY(button.isVisible());
    pointer::click(stage.toggle(kBottomBar));
    stage.passHalf();
    QVERIFY(button.isVisible());
    stage.passHalf();
    QVERIFY(!button.isVisible());
}

void tst_bottomviewkeyboard::aControlReachedByTabShowsTheFrame()
{
    QFETCH(const KnownLight *, known);
    LightingStage stage;
    stage.toggleBottom();
    QAbstractButton &button = stage.button(*known);
    QVERIFY(!isFramed(button));
    keyboard::tabTo(button);
    QVERIFY(isFramed(button));
    keyboard::press(Qt::Key_Backtab);
    QVERIFY(!isFramed(button));
}

void tst_bottomviewkeyboard::aClickLeavesTheKeyboardAtItsPlace()
{
    QFETCH(const KnownLight *, known);
    LightingStage stage;
    stage.makeRoomBelow();
    stage.toggleBottom();
    keyboard::press(Qt::Key_Tab);
    const QString before = focusPlace();
    QVERIFY(before.startsWith(QLatin1String("MainWindow/")));
    QTest::keyClick(pointer::windowOf(stage.openFrom(*known)), Qt::Key_Escape);
    QTRY_COMPARE(focusPlace(), before);
    QVERIFY(stage.bar(kBottomBar).focusWidget() != &stage.button(*known));
    QVERIFY(!isFramed(stage.button(*known)));
}

void tst_bottomviewkeyboard::aShuttingBarLetsTheKeyboardGo()
{
    QFETCH(const KnownLight *, known);
    LightingStage stage;
    stage.toggleBottom();
    keyboard::tabTo(stage.button(*known));
    stage.toggleBottom();
    QCOMPARE(focusPlace(), QString());
    QVERIFY(!stage.bar(kBottomBar).focusWidget());
    QVERIFY(stage.bar(kBottomBar).isActiveWindow());
    keyboard::press(Qt::Key_Tab);
    QCOMPARE(focusPlace(), QStringLiteral("BottomBar/btnToggle"));
}

KYR_GUI_TEST(tst_bottomviewkeyboard)
#include "tst_bottomviewkeyboard.moc"
