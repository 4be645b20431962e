#include "barsstage.h"
#include "support/focus.h"
#include "support/keyboard.h"
#include "support/suite.h"

/// The bars around the main window, opened and closed by their handles.
class tst_bars : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aBarIsATitledWindowOfTheMainWindow_data() { barRows(); }
    void aBarIsATitledWindowOfTheMainWindow();
    void atFirstTheBarsAreShut_data() { barRows(); }
    void atFirstTheBarsAreShut();
    void aClickOnTheHandleOpensAndAnotherCloses_data() { barRows(); }
    void aClickOnTheHandleOpensAndAnotherCloses();
    void aRightClickOnTheHandleDoesNothing_data() { barRows(); }
    void aRightClickOnTheHandleDoesNothing();
    void aClickUnderWayTurnsTheBarRound_data();
    void aClickUnderWayTurnsTheBarRound();
    void theHandleHasItsTagAndPlace_data() { barRows(); }
    void theHandleHasItsTagAndPlace();
    void theRightHandleIsHiddenUnderWay();
    void theOtherHandlesShowUnderWay_data();
    void theOtherHandlesShowUnderWay();
    void theKeyboardOpensAndClosesABar_data() { barRows(); }
    void theKeyboardOpensAndClosesABar();
    void theRightHandleTakesTheKeyboardBack();
    void theRightHandleLeavesAKeyboardThatWentOnUnderWay();
    void aRightHandleThatWasNotReachedByKeyTakesItBackWithoutAFrame();
    void aClickOnTheHandleLeavesTheKeyboard_data() { barRows(); }
    void aClickOnTheHandleLeavesTheKeyboard();
    void aRestoreWithOpenBarsLeavesThemOpen();
    void aBarThatTheDesktopAsksToCloseStays_data() { barRows(); }
    void aBarThatTheDesktopAsksToCloseStays();
    void anOpenBarThatTheDesktopAsksToCloseClosesToItsHandle_data() { barRows(); }
    void anOpenBarThatTheDesktopAsksToCloseClosesToItsHandle();
    void anotherControlDoesNothing_data() { barRows(); }
    void anotherControlDoesNothing();

private:
    static void barsWithAHandleUnderWay();
};

namespace {

const KnownBar &kRight = kKnownBars[1];

} // namespace

void tst_bars::barsWithAHandleUnderWay()
{
    QTest::addColumn<const KnownBar *>("known");
    for (const KnownBar &known : kKnownBars) {
        if (&known != &kRight)
            QTest::newRow(known.window) << &known;
    }
}

void tst_bars::aBarIsATitledWindowOfTheMainWindow()
{
    QFETCH(const KnownBar *, known);
    const BarsStage stage;
    const custumwindow &bar = stage.bar(*known);
    QCOMPARE(bar.windowTitle(), QLatin1String(known->title));
    QCOMPARE(bar.windowType(), Qt::Tool);
    QCOMPARE(bar.parentWidget(), &stage.program.window());
    QCOMPARE(bar.windowHandle()->transientParent(), stage.program.window().windowHandle());
}

void tst_bars::atFirstTheBarsAreShut()
{
    QFETCH(const KnownBar *, known);
    const BarsStage stage;
    QVERIFY(stage.bar(*known).isVisible());
    QVERIFY(stage.lies(*known, known->shut));
    QCOMPARE(stage.content(*known).size(), stage.bar(*known).size());
}

void tst_bars::aClickOnTheHandleOpensAndAnotherCloses()
{
    QFETCH(const KnownBar *, known);
    BarsStage stage;
    for (int round = 0; round < 2; ++round) {
        stage.clickToggle(*known);
        QVERIFY(stage.lies(*known, known->open));
        QCOMPARE(stage.content(*known).size(), stage.bar(*known).size());
        stage.clickToggle(*known);
        QVERIFY(stage.lies(*known, known->shut));
    }
    for (const KnownBar &other : kKnownBars)
        QVERIFY2(stage.lies(other, other.shut), other.window);
}

void tst_bars::aRightClickOnTheHandleDoesNothing()
{
    QFETCH(const KnownBar *, known);
    BarsStage stage;
    pointer::rightClick(stage.toggle(*known));
    stage.arrive();
    QVERIFY(stage.lies(*known, known->shut));
}

void tst_bars::aClickUnderWayTurnsTheBarRound_data()
{
    barsWithAHandleUnderWay();
}

void tst_bars::aClickUnderWayTurnsTheBarRound()
{
    QFETCH(const KnownBar *, known);
    BarsStage stage;
    pointer::click(stage.toggle(*known));
    stage.passHalf();
    QVERIFY(!stage.lies(*known, known->shut));
    stage.clickToggle(*known);
    QVERIFY(stage.lies(*known, known->shut));
    stage.clickToggle(*known);
    QVERIFY(stage.lies(*known, known->open));
}

void tst_bars::theHandleHasItsTagAndPlace()
{
    QFETCH(const KnownBar *, known);
    BarsStage stage;
    const HoverButton &toggle = stage.toggle(*known);
    QCOMPARE(toggle.tag(), known->tag);
    QVERIFY(!toggle.accessibleName().isEmpty());
    const UpRect &shut = known->toggle;
    const auto place = [&] { return UpHost(stage.bar(*known).height()).up(toggle.geometry()); };
    QVERIFY(place() == shut);
    QVERIFY(toggle.isVisible());
    stage.clickToggle(*known);
    QVERIFY(place() == (UpRect{known->toggleOpen.x, known->toggleOpen.y, shut.width, shut.height}));
    QVERIFY(toggle.isVisible());
    stage.clickToggle(*known);
    QVERIFY(place() == shut);
    QVERIFY(toggle.isVisible());
}

void tst_bars::theRightHandleIsHiddenUnderWay()
{
    BarsStage stage;
    const HoverButton &toggle = stage.toggle(kRight);
    for (int way = 0; way < 2; ++way) {
        pointer::click(toggle);
        QVERIFY(!toggle.isVisible());
        stage.passHalf();
        QVERIFY(!toggle.isVisible());
        stage.passHalf();
        QVERIFY(toggle.isVisible());
    }
}

void tst_bars::theOtherHandlesShowUnderWay_data()
{
    barsWithAHandleUnderWay();
}

void tst_bars::theOtherHandlesShowUnderWay()
{
    QFETCH(const KnownBar *, known);
    BarsStage stage;
    pointer::click(stage.toggle(*known));
    stage.passHalf();
    QVERIFY(stage.toggle(*known).isVisible());
}

void tst_bars::theKeyboardOpensAndClosesABar()
{
    QFETCH(const KnownBar *, known);
    BarsStage stage;
    HoverButton &toggle = stage.toggle(*known);
    keyboard::tabTo(toggle);
    for (const UpRect &there : {known->open, known->shut}) {
        keyboard::press(Qt::Key_Space);
        stage.arrive();
        QVERIFY(stage.lies(*known, there));
        QVERIFY(toggle.hasFocus());
        QVERIFY(showsFocusFrame(toggle));
    }
}

void tst_bars::theRightHandleTakesTheKeyboardBack()
{
    BarsStage stage;
    HoverButton &toggle = stage.toggle(kRight);
    HoverButton other(&stage.content(kRight), {20, 20, 97, 27});
    other.show();
    keyboard::tabTo(toggle);
    for (int way = 0; way < 2; ++way) {
        keyboard::press(Qt::Key_Space);
        QVERIFY(!stage.bar(kRight).focusWidget());
        stage.arrive();
        QVERIFY(toggle.hasFocus());
        QVERIFY(showsFocusFrame(toggle));
    }
    keyboard::tabTo(other);
    stage.clickToggle(kRight);
    QVERIFY(other.hasFocus());
}

void tst_bars::theRightHandleLeavesAKeyboardThatWentOnUnderWay()
{
    BarsStage stage;
    HoverButton other(&stage.content(kRight), {20, 20, 97, 27});
    other.show();
    keyboard::tabTo(stage.toggle(kRight));
    keyboard::press(Qt::Key_Space);
    stage.passHalf();
    keyboard::tabTo(other);
    stage.arrive();
    QVERIFY(stage.toggle(kRight).isVisible());
    QVERIFY(other.hasFocus());
}

void tst_bars::aRightHandleThatWasNotReachedByKeyTakesItBackWithoutAFrame()
{
    BarsStage stage;
    HoverButton &toggle = stage.toggle(kRight);
    keyboard::tabTo(toggle); // for the window
    stage.content(kRight).setFocusPolicy(Qt::StrongFocus);
    stage.content(kRight).setFocus();
    toggle.setFocus(Qt::OtherFocusReason);
    for (int way = 0; way < 2; ++way) {
        stage.clickToggle(kRight);
        QVERIFY(toggle.hasFocus());
        QVERIFY(!showsFocusFrame(toggle));
    }
}

void tst_bars::aClickOnTheHandleLeavesTheKeyboard()
{
    QFETCH(const KnownBar *, known);
    BarsStage stage;
    keyboard::press(Qt::Key_Tab);
    const QString before = focusPlace();
    QVERIFY(before.startsWith(QStringLiteral("MainWindow/")));
    stage.clickToggle(*known);
    stage.clickToggle(*known);
    QCOMPARE(focusPlace(), before);
    QCOMPARE(focusFrames(stage.bar(*known)), QStringList());
}

void tst_bars::aRestoreWithOpenBarsLeavesThemOpen()
{
    BarsStage stage;
    for (const KnownBar &bar : kKnownBars)
        stage.clickToggle(bar);
    pointer::click(stage.program.button("ButtonRestore"));
    stage.arrive();
    for (const KnownBar &bar : kKnownBars)
        QVERIFY2(stage.lies(bar, bar.open), bar.window);
}

void tst_bars::aBarThatTheDesktopAsksToCloseStays()
{
    QFETCH(const KnownBar *, known);
    BarsStage stage;
    stage.bar(*known).windowHandle()->close();
    stage.arrive();
    QVERIFY(stage.bar(*known).isVisible());
    QVERIFY(stage.lies(*known, known->shut));
    QVERIFY(stage.program.window().isVisible());
    QCOMPARE(stage.program.quits, 0);
}

void tst_bars::anOpenBarThatTheDesktopAsksToCloseClosesToItsHandle()
{
    QFETCH(const KnownBar *, known);
    BarsStage stage;
    stage.clickToggle(*known);
    stage.bar(*known).windowHandle()->close();
    stage.arrive();
    QVERIFY(stage.bar(*known).isVisible());
    QVERIFY(stage.lies(*known, known->shut));
    QCOMPARE(stage.program.quits, 0);
    stage.clickToggle(*known);
    QVERIFY(stage.lies(*known, known->open));
}

void tst_bars::anotherControlDoesNothing()
{
    QFETCH(const KnownBar *, known);
    BarsStage stage;
    stage.clickToggle(*known);
    HoverButton other(&stage.content(*known), {20, 20, 97, 27});
    other.setTag(0x7777);
    other.setAction({static_cast<BarView *>(&stage.content(*known)), &BarView::buttonAction});
    other.show();
    other.raise();
    const auto windows = [] {
        return std::ranges::count_if(QApplication::topLevelWidgets(), &QWidget::isVisible);
    };
    const auto before = windows();
    pointer::click(other);
    stage.arrive();
    QVERIFY(stage.lies(*known, known->open));
    QCOMPARE(windows(), before);
    QVERIFY(!stage.program.applyIsEnabled());
}

KYR_GUI_TEST(tst_bars)
#include "tst_bars.moc"
