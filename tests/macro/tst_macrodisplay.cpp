#include "displaystage.h"
#include "support/paintwatch.h"
#include "support/pictures.h"
#include "support/suite.h"

using keystroke::kA;

/// The recording view as it begins, and switched off and on.
class tst_macrodisplay : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNewViewIsReadyAndEmpty();
    void aDisabledViewTakesNoClicks();
    void aDisabledViewTakesNoKeys();
    void disablingKeepsTheListAndShowsItOnGrey();
    void disablingLetsTheKeyboardGo();
    void disablingAViewWithoutTheKeyboardLeavesItWhereItIs();
    void enablingAsksForAClick();
    void switchingItDrawsIt_data();
    void switchingItDrawsIt();
    void aChangeOfWhatItShowsWaitsForTheNextDrawing();
};

namespace {

constexpr QColor kLightGrey(170, 170, 170);

const Events kShown{{0, kKeyPress, 2}, {0, kKeyRelease, 0}};

/// Whether the view is drawn before the events that wait now are over.
template <class Change>
bool isDrawnAfter(DisplayStage &stage, Change change)
{
    QCoreApplication::processEvents();
    const PaintWatch watch(stage.display);
    change(stage.display);
    QCoreApplication::processEvents();
    return watch.hasPainted({20, 20});
}

} // namespace

void tst_macrodisplay::aNewViewIsReadyAndEmpty()
{
    DisplayStage stage;
    QCOMPARE(stage.display.count(), 0U);
    QCOMPARE(stage.display.getKeymapInfo().size(), std::size_t{kEventCount});
    QVERIFY(std::ranges::all_of(stage.display.getKeymapInfo(),
                                [](const KeymapEvent &slot) { return slot == KeymapEvent{}; }));
    QVERIFY(stage.display.frame() == (UpRect{10, 40, 230, 140}));
    QVERIFY(!stage.display.hasFocus());
    QVERIFY(extentOfOther(shown(stage.display), Qt::white).isEmpty());
    stage.click();
    keystroke::tap(kA);
    QCOMPARE(stage.list(), QStringLiteral("0:1:0 0:2:0"));
}

void tst_macrodisplay::aDisabledViewTakesNoClicks()
{
    DisplayStage stage;
    stage.display.setKeymapInfo(kShown);
    stage.display.enablewindow(false);
    stage.click();
    QVERIFY(!stage.display.hasFocus());
    QVERIFY(stage.events() == kShown);
}

void tst_macrodisplay::aDisabledViewTakesNoKeys()
{
    DisplayStage stage;
    stage.display.setKeymapInfo(kShown);
    stage.display.enablewindow(false);
    stage.display.setFocus();
    keystroke::tap(kA);
    keystroke::tap(keystroke::kLeftShift);
    keystroke::tap(keystroke::kCapsLock);
    QVERIFY(stage.events() == kShown);
}

void tst_macrodisplay::disablingKeepsTheListAndShowsItOnGrey()
{
    DisplayStage stage;
    stage.display.setKeymapInfo(kShown);
    const QImage enabled = shown(stage.display);
    stage.display.enablewindow(false);
    const QImage disabled = shown(stage.display);
    QVERIFY(stage.events() == kShown);
    QCOMPARE(disabled.pixelColor(229, 139), kLightGrey);
    QVERIFY(extentOf(disabled, Qt::white).isEmpty());
    QVERIFY(!extentOfOther(enabled, Qt::white).isEmpty());
    QCOMPARE(extentOfOther(disabled, kLightGrey), extentOfOther(enabled, Qt::white));
    stage.display.enablewindow(true);
    QCOMPARE(shown(stage.display), enabled);
}

void tst_macrodisplay::disablingLetsTheKeyboardGo()
{
    DisplayStage stage;
    stage.click();
    stage.display.enablewindow(false);
    QVERIFY(!stage.display.hasFocus());
    keystroke::tap(kA);
    stage.display.enablewindow(true);
    keystroke::tap(kA);
    QCOMPARE(stage.list(), QString());
}

void tst_macrodisplay::disablingAViewWithoutTheKeyboardLeavesItWhereItIs()
{
    DisplayStage stage;
    stage.other.setFocus();
    stage.display.enablewindow(false);
    QVERIFY(stage.other.hasFocus());
    stage.display.enablewindow(true);
    QVERIFY(stage.other.hasFocus());
}

void tst_macrodisplay::enablingAsksForAClick()
{
    DisplayStage stage;
    stage.display.enablewindow(false);
    stage.display.enablewindow(true);
    QVERIFY(!stage.display.hasFocus());
    stage.click();
    keystroke::press(kA);
    stage.display.enablewindow(true); // as it is already
    QVERIFY(stage.display.hasFocus());
    keystroke::release(kA);
    QCOMPARE(stage.list(), QStringLiteral("0:1:0 0:2:0"));
}

void tst_macrodisplay::switchingItDrawsIt_data()
{
    QTest::addColumn<bool>("enable");
    QTest::newRow("off") << false;
    QTest::newRow("on") << true;
}

void tst_macrodisplay::switchingItDrawsIt()
{
    QFETCH(bool, enable);
    DisplayStage stage;
    stage.display.enablewindow(!enable);
    QVERIFY(isDrawnAfter(stage, [=](MacroDisplay &view) { view.enablewindow(enable); }));
}

void tst_macrodisplay::aChangeOfWhatItShowsWaitsForTheNextDrawing()
{
    DisplayStage stage;
    stage.display.setKeymapInfo(kShown);
    QVERIFY(!isDrawnAfter(stage, [](MacroDisplay &view) {
        view.setDisplayDelay(false);
        view.setDisplayUpAndDown(false);
        view.enableScroll(true);
        view.setMaxKeymapEvent(2);
    }));
    stage.log.lines.clear();
    QVERIFY(isDrawnAfter(stage, [](MacroDisplay &view) { view.update(); }));
    QVERIFY(stage.log.contains("A"));
}

KYR_GUI_TEST(tst_macrodisplay)
#include "tst_macrodisplay.moc"
