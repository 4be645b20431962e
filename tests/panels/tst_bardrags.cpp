#include "barsstage.h"
#include "support/suite.h"

/// The windows dragged by their bars, and the bars by the main window.
class tst_bardrags : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDragOnTheHandleMovesNothing_data() { barRows(); }
    void aDragOnTheHandleMovesNothing();
    void aDragByABarMovesTheWholeArrangement_data() { barRows(); }
    void aDragByABarMovesTheWholeArrangement();
    void aDragByABarIsLimitedByTheMainWindowsTop_data() { barRows(); }
    void aDragByABarIsLimitedByTheMainWindowsTop();
    void aDragByTheMainWindowTakesOpenBarsAlong();
};

namespace {

/// Presses on the bar off its handle, moves by `way` on the screen in small moves, and back again
/// when `andBack`; releases.
void drag(const custumwindow &bar, QPoint way, bool andBack = false)
{
    constexpr int kSteps = 8;
    const QPoint start = bar.mapToGlobal(QPoint(5, 5));
    const auto moveTo = [&](QPoint there) { pointer::move(bar, bar.mapFromGlobal(there)); };
    pointer::press(bar, {5, 5});
    for (int step = 1; step <= kSteps; ++step)
        moveTo(start + way * step / kSteps);
    for (int step = kSteps - 1; andBack && step >= 0; --step)
        moveTo(start + way * step / kSteps);
    pointer::release(bar, bar.mapFromGlobal(andBack ? start : start + way));
}

} // namespace

void tst_bardrags::aDragOnTheHandleMovesNothing()
{
    QFETCH(const KnownBar *, known);
    BarsStage stage;
    const QPoint before = stage.program.window().pos();
    const HoverButton &toggle = stage.toggle(*known);
    pointer::press(toggle, {8, 8});
    pointer::move(toggle, {60, 70});
    pointer::release(toggle, {60, 70});
    QCOMPARE(stage.program.window().pos(), before);
    QVERIFY(stage.lies(*known, known->shut));
}

void tst_bardrags::aDragByABarMovesTheWholeArrangement()
{
    QFETCH(const KnownBar *, known);
    BarsStage stage;
    const QPoint before = stage.program.window().pos();
    drag(stage.bar(*known), {48, -24});
    QCOMPARE(stage.program.window().pos(), before + QPoint(48, -24));
    for (const KnownBar &bar : kKnownBars)
        QVERIFY2(stage.lies(bar, bar.shut), bar.window);
    stage.clickToggle(*known);
    drag(stage.bar(*known), {-80, 40});
    QCOMPARE(stage.program.window().pos(), before + QPoint(-32, 16));
    QVERIFY(stage.lies(*known, known->open));
}

void tst_bardrags::aDragByABarIsLimitedByTheMainWindowsTop()
{
    QFETCH(const KnownBar *, known);
    BarsStage stage;
    const QPoint before = stage.program.window().pos();
    drag(stage.bar(*known), {0, -400});
    QCOMPARE(stage.program.window().pos(), QPoint(before.x(), 0));
    QVERIFY(stage.lies(*known, known->shut));
    // On its way back the pointer finds the bar where it was pressed.
    drag(stage.bar(*known), {0, -80}, true);
    QCOMPARE(stage.program.window().pos(), QPoint(before.x(), 0));
}

void tst_bardrags::aDragByTheMainWindowTakesOpenBarsAlong()
{
    BarsStage stage;
    for (const KnownBar &bar : kKnownBars)
        stage.clickToggle(bar);
    const QPoint before = stage.program.window().pos();
    pointer::press(stage.program.window(), {40, 300});
    for (const QPoint step : {QPoint(10, 5), QPoint(10, 5), QPoint(-30, 60)}) {
        pointer::move(stage.program.window(), QPoint(40, 300) + step);
        for (const KnownBar &bar : kKnownBars)
            QVERIFY2(stage.lies(bar, bar.open), bar.window);
    }
    pointer::release(stage.program.window(), {40, 300});
    QCOMPARE(stage.program.window().pos(), before + QPoint(-10, 70));
}

KYR_GUI_TEST(tst_bardrags)
#include "tst_bardrags.moc"
