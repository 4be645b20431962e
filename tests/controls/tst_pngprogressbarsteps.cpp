#include "controls/tooltips.h"
#include "progressbarstage.h"
#include "progressbarstyles.h"
#include "support/suite.h"

#include <functional>

/// The bar as a slider, moved by steps, by keys and by the wheel; and the position it tells.
class tst_pngprogressbarsteps : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keysMoveTheBar_data();
    void keysMoveTheBar();
    void aNotchOfTheWheelIsAStep_data();
    void aNotchOfTheWheelIsAStep();
    void aFinerWheelAddsUp_data();
    void aFinerWheelAddsUp();
    void aSidewaysTurnGoesOnToWhatIsBehind();
    void aStepPastAnEndIsNone_data();
    void aStepPastAnEndIsNone();
    void aMovingPointerIsToldThePosition();
    void theWheelIsToldThePosition();
    void keysAreToldThePosition();
    void aRestingPointerIsToldThePosition();
    void aFixedBarTellsNoPosition();
    void theBarMayGoWithItsAction_data();
    void theBarMayGoWithItsAction();
};

namespace {

/// A target that is through with a bar as soon as that was moved.
class Remover : public QObject
{
public:
    void receive(pngProgressBar *sender) { delete sender; }
};

} // namespace

using Angles = QList<int>;

void tst_pngprogressbarsteps::keysMoveTheBar_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<int>("position");
    for (const int style : {kHorizontal, kVertical}) {
        const auto row = [style](const char *name, Qt::Key key, int position) {
            QTest::addRow("%s, %d", name, style) << style << key << position;
        };
        row("right", Qt::Key_Right, 6);
        row("left", Qt::Key_Left, 4);
        row("up", Qt::Key_Up, 6);
        row("down", Qt::Key_Down, 4);
        row("home", Qt::Key_Home, 1);
        row("end", Qt::Key_End, 10);
    }
}

void tst_pngprogressbarsteps::keysMoveTheBar()
{
    QFETCH(int, style);
    QFETCH(Qt::Key, key);
    BarStage stage({90, 20});
    stage.bar.setDirStyle(style);
    stage.bar.setposRange(1, 10);
    stage.bar.setPos(5);
    stage.bar.setFocus();
    QTest::keyClick(stage.window.windowHandle(), key);
    QTEST(stage.bar.getPos(), "position");
    QCOMPARE(stage.changes.senders, std::vector{&stage.bar});
}

void tst_pngprogressbarsteps::aNotchOfTheWheelIsAStep_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<int>("angle");
    QTest::addColumn<int>("position");
    for (const int style : {kHorizontal, kVertical}) {
        for (const int notches : {1, -1, 2, -3, 50, -50})
            QTest::addRow("%d, %d", style, notches) << style << 120 * notches << 50 + notches;
    }
}

void tst_pngprogressbarsteps::aNotchOfTheWheelIsAStep()
{
    QFETCH(int, style);
    QFETCH(int, angle);
    BarStage stage({90, 20});
    stage.bar.setDirStyle(style);
    stage.bar.setPos(50);
    pointer::turnWheel(stage.bar, angle);
    QTEST(stage.bar.getPos(), "position");
    QCOMPARE(stage.changes.senders, std::vector{&stage.bar});
}

void tst_pngprogressbarsteps::aFinerWheelAddsUp_data()
{
    QTest::addColumn<Angles>("angles");
    QTest::addColumn<QList<int>>("positions");
    QTest::newRow("quarters") << Angles{30, 30, 30, 30, 30} << QList{50, 50, 50, 51, 51};
    QTest::newRow("quarters down") << Angles{-30, -30, -30, -30} << QList{50, 50, 50, 49};
    QTest::newRow("to and fro") << Angles{90, -60, 60, 30} << QList{50, 50, 50, 51};
    QTest::newRow("more than a notch") << Angles{150, 90} << QList{51, 52};
    QTest::newRow("very fine") << Angles{119, 1, -119, -1} << QList{50, 51, 51, 50};
}

void tst_pngprogressbarsteps::aFinerWheelAddsUp()
{
    QFETCH(Angles, angles);
    BarStage stage({90, 20});
    stage.bar.setPos(50);
    QList<int> positions;
    for (const int angle : angles) {
        pointer::turnWheel(stage.bar, angle);
        positions << stage.bar.getPos();
    }
    QTEST(positions, "positions");
}

void tst_pngprogressbarsteps::aSidewaysTurnGoesOnToWhatIsBehind()
{
    BarStage stage({90, 20});
    stage.bar.setPos(50);
    const QPoint at = stage.bar.rect().center();
    QWheelEvent event(at, stage.bar.mapToGlobal(at), {}, {120, 0}, Qt::NoButton, {},
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&stage.bar, &event);
    QVERIFY(!event.isAccepted());
    QCOMPARE(stage.bar.getPos(), 50);
    QCOMPARE(stage.changes.count(), std::size_t{0});
}

void tst_pngprogressbarsteps::aStepPastAnEndIsNone_data()
{
    QTest::addColumn<int>("end");
    QTest::addColumn<int>("angle");
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("upper") << 10 << 120 << Qt::Key_Up;
    QTest::newRow("lower") << 1 << -120 << Qt::Key_Down;
}

void tst_pngprogressbarsteps::aStepPastAnEndIsNone()
{
    QFETCH(int, end);
    QFETCH(int, angle);
    QFETCH(Qt::Key, key);
    BarStage stage({90, 20});
    stage.bar.setposRange(1, 10);
    stage.bar.setPos(end);
    stage.bar.setFocus();
    pointer::turnWheel(stage.bar, angle);
    QTest::keyClick(stage.window.windowHandle(), key);
    QCOMPARE(stage.bar.getPos(), end);
    QCOMPARE(stage.changes.count(), std::size_t{0});
    pointer::turnWheel(stage.bar, -angle);
    QVERIFY(stage.bar.getPos() != end);
}

void tst_pngprogressbarsteps::aMovingPointerIsToldThePosition()
{
    BarStage stage({90, 20});
    stage.bar.setposRange(1, 10);
    pointer::press(stage.bar, {45, 10});
    QCOMPARE(QToolTip::text(), QStringLiteral("4"));
    pointer::move(stage.bar, {85, 10});
    QCOMPARE(QToolTip::text(), QStringLiteral("8"));
    // The two highest positions look alike.
    pointer::move(stage.bar, {95, 10});
    QCOMPARE(QToolTip::text(), QStringLiteral("9"));
    pointer::move(stage.bar, {105, 10});
    QCOMPARE(QToolTip::text(), QStringLiteral("10"));
    pointer::release(stage.bar, {105, 10});
}

void tst_pngprogressbarsteps::theWheelIsToldThePosition()
{
    BarStage stage({90, 20});
    stage.bar.setPos(50);
    pointer::turnWheel(stage.bar, 240);
    QCOMPARE(QToolTip::text(), QStringLiteral("52"));
    pointer::turnWheel(stage.bar, -120);
    QCOMPARE(QToolTip::text(), QStringLiteral("51"));
}

void tst_pngprogressbarsteps::keysAreToldThePosition()
{
    BarStage stage({90, 20});
    stage.bar.setPos(99);
    stage.bar.setFocus();
    QTest::keyClick(stage.window.windowHandle(), Qt::Key_Up);
    QCOMPARE(QToolTip::text(), QStringLiteral("100"));
    QToolTip::hideText();
    QTRY_VERIFY(!QToolTip::isVisible());
    QTest::keyClick(stage.window.windowHandle(), Qt::Key_Up); // it stays where it is
    QVERIFY(!QToolTip::isVisible());
}

void tst_pngprogressbarsteps::aRestingPointerIsToldThePosition()
{
    BarStage stage({90, 20});
    stage.bar.setPos(37);
    QCOMPARE(toolTipAt(stage.bar, {5, 5}), QStringLiteral("37"));
    QCOMPARE(stage.bar.getPos(), 37);
    QCOMPARE(stage.changes.count(), std::size_t{0});
}

void tst_pngprogressbarsteps::aFixedBarTellsNoPosition()
{
    BarStage stage({90, 20});
    stage.bar.setPos(37);
    stage.bar.setAllowMouseChangeFlag(false);
    QCOMPARE(toolTipAt(stage.bar, {5, 5}), QString());
    pointer::press(stage.bar, {45, 10});
    pointer::turnWheel(stage.bar, 120);
    QCOMPARE(QToolTip::text(), QString());
    stage.bar.setToolTip(QStringLiteral("its own"));
    QCOMPARE(toolTipAt(stage.bar, {5, 5}), QStringLiteral("its own"));
}

using Move = std::function<void(pngProgressBar &bar)>;

void tst_pngprogressbarsteps::theBarMayGoWithItsAction_data()
{
    QTest::addColumn<Move>("move");
    const auto row = [](const char *name, const Move &move) { QTest::newRow(name) << move; };
    row("a press", [](pngProgressBar &bar) { pointer::press(bar, {45, 10}); });
    row("the wheel", [](pngProgressBar &bar) { pointer::turnWheel(bar, 120); });
    row("a key", [](pngProgressBar &bar) {
        bar.setFocus();
        QTest::keyPress(bar.window()->windowHandle(), Qt::Key_Up);
    });
}

void tst_pngprogressbarsteps::theBarMayGoWithItsAction()
{
    QFETCH(Move, move);
    BarStage stage({90, 20});
    Remover remover;
    const QPointer bar = new pngProgressBar(&stage.window, {30, 0, 90, 20});
    bar->setChangeAction({&remover, &Remover::receive});
    bar->show();
    move(*bar);
    QVERIFY(!bar);
}

KYR_GUI_TEST(tst_pngprogressbarsteps)
#include "tst_pngprogressbarsteps.moc"
