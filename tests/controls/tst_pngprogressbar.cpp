#include "progressbarstage.h"
#include "progressbarstyles.h"
#include "support/suite.h"

#include <QtGui/QAccessible>

/// The bar drawn from two pictures, and the slider that it can be.
class tst_pngprogressbar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPositionIsBoundedToTheRange_data();
    void aPositionIsBoundedToTheRange();
    void aNewRangeBoundsThePosition();
    void aMaximumBelowTheMinimumIsTheMinimum();
    void aPressMovesToThePointer_data();
    void aPressMovesToThePointer();
    void draggingFollowsThePointerPastTheEnds_data();
    void draggingFollowsThePointerPastTheEnds();
    void everyPressAndMoveSendsTheAction();
    void onlyTheLeftButtonMovesTheBar();
    void setPosSendsNothing();
    void aFixedBarIgnoresTheUser();
    void aFixedBarIsNotInTheTabOrder();
    void assistiveTechnologyMovesTheBarWhereTheUserMay_data();
    void assistiveTechnologyMovesTheBarWhereTheUserMay();
};

void tst_pngprogressbar::aPositionIsBoundedToTheRange_data()
{
    QTest::addColumn<double>("least");
    QTest::addColumn<double>("most");
    QTest::addColumn<int>("asked");
    QTest::addColumn<int>("position");
    const auto row = [](double least, double most, int asked, int position) {
        QTest::addRow("%g..%g, %d", least, most, asked) << least << most << asked << position;
    };
    row(0, 100, 0, 0);
    row(0, 100, 57, 57);
    row(0, 100, 100, 100);
    row(0, 100, 150, 100);
    row(0, 100, -5, 0);
    row(0, 100, INT_MAX, 100);
    row(0, 100, INT_MIN, 0);
    row(0, 64, 219, 64);
    row(1, 10, 0, 1);
    row(1, 10, 11, 10);
    row(1, 10, 10, 10);
}

void tst_pngprogressbar::aPositionIsBoundedToTheRange()
{
    QFETCH(double, least);
    QFETCH(double, most);
    QFETCH(int, asked);
    pngProgressBar bar(nullptr, {0, 0, 90, 18});
    QCOMPARE(bar.getPos(), 0);
    bar.setposRange(least, most);
    bar.setPos(asked);
    QTEST(bar.getPos(), "position");
    QTEST(bar.value(), "position");
}

void tst_pngprogressbar::aNewRangeBoundsThePosition()
{
    pngProgressBar bar(nullptr, {0, 0, 90, 18});
    bar.setPos(150); // the range is 0..100 from the beginning
    QCOMPARE(bar.getPos(), 100);
    bar.setposRange(0, 64);
    QCOMPARE(bar.getPos(), 64);
}

void tst_pngprogressbar::aMaximumBelowTheMinimumIsTheMinimum()
{
    pngProgressBar bar(nullptr, {0, 0, 90, 18});
    bar.setposRange(7, 3);
    bar.setPos(5);
    QCOMPARE(bar.getPos(), 7);
    QCOMPARE(bar.maximum(), 7);
}

void tst_pngprogressbar::aPressMovesToThePointer_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<double>("least");
    QTest::addColumn<double>("most");
    QTest::addColumn<int>("along"); ///< from the left or bottom edge
    QTest::addColumn<int>("position");
    const auto row = [](const char *name, int style, double least, double most, int along,
                        int position) {
        QTest::addRow("%s, %d", name, along) << style << least << most << along << position;
    };
    row("0..100", kHorizontal, 0, 100, 0, 0);
    row("0..100", kHorizontal, 0, 100, 45, 50);
    row("0..100", kHorizontal, 0, 100, 89, 98);
    row("0..10", kHorizontal, 0, 10, 17, 1);
    row("0..10", kHorizontal, 0, 10, 18, 2);
    // The least value is not added: the edge stands for 0, which is bounded to 1.
    row("1..10", kHorizontal, 1, 10, 0, 1);
    row("1..10", kHorizontal, 1, 10, 19, 1);
    row("1..10", kHorizontal, 1, 10, 20, 2);
    row("1..10", kHorizontal, 1, 10, 89, 8);
    row("upright 0..100", kVertical, 0, 100, 9, 10);
    row("upright 0..100", kVertical, 0, 100, 90, 100);
    row("upright 1..10", kVertical, 1, 10, 1, 1);
    row("upright 1..10", kVertical, 1, 10, 20, 2);
    row("upright 1..10", kVertical, 1, 10, 89, 8);
    row("upright 1..10", kVertical, 1, 10, 90, 9);
}

void tst_pngprogressbar::aPressMovesToThePointer()
{
    QFETCH(int, style);
    QFETCH(double, least);
    QFETCH(double, most);
    QFETCH(int, along);
    const bool horizontal = style == kHorizontal;
    BarStage stage(horizontal ? QSize(90, 20) : QSize(20, 90));
    stage.bar.setDirStyle(style);
    stage.bar.setposRange(least, most);
    pointer::press(stage.bar, horizontal ? QPoint(along, 10) : QPoint(10, 90 - along));
    QTEST(stage.bar.getPos(), "position");
    QCOMPARE(stage.changes.senders, std::vector{&stage.bar});
}

void tst_pngprogressbar::draggingFollowsThePointerPastTheEnds_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<QPoint>("to");
    QTest::addColumn<int>("position");
    QTest::newRow("along") << kHorizontal << QPoint(60, 10) << 6;
    QTest::newRow("past the right edge") << kHorizontal << QPoint(105, 10) << 10;
    QTest::newRow("just past the right edge") << kHorizontal << QPoint(95, 10) << 9;
    QTest::newRow("past the left edge") << kHorizontal << QPoint(-15, 10) << 1;
    QTest::newRow("above") << kHorizontal << QPoint(60, -20) << 6;
    QTest::newRow("past the top edge") << kVertical << QPoint(10, -15) << 10;
    QTest::newRow("past the bottom edge") << kVertical << QPoint(10, 110) << 1;
    QTest::newRow("up") << kVertical << QPoint(10, 30) << 6;
}

void tst_pngprogressbar::draggingFollowsThePointerPastTheEnds()
{
    QFETCH(int, style);
    QFETCH(QPoint, to);
    BarStage stage(style == kHorizontal ? QSize(90, 20) : QSize(20, 90));
    stage.bar.setDirStyle(style);
    stage.bar.setposRange(1, 10);
    pointer::press(stage.bar, {10, 10});
    pointer::move(stage.bar, to);
    QTEST(stage.bar.getPos(), "position");
}

void tst_pngprogressbar::everyPressAndMoveSendsTheAction()
{
    BarStage stage({90, 20});
    pointer::move(stage.bar, {20, 10}); // nothing is pressed yet
    QCOMPARE(stage.changes.count(), std::size_t{0});
    pointer::press(stage.bar, {45, 10});
    QCOMPARE(stage.changes.count(), std::size_t{1});
    pointer::move(stage.bar, {60, 10});
    pointer::move(stage.bar, {60, 11}); // the same position once more
    QCOMPARE(stage.changes.count(), std::size_t{3});
    pointer::release(stage.bar, {60, 11});
    QCOMPARE(stage.changes.count(), std::size_t{3});
    QCOMPARE(stage.bar.getPos(), 66);
}

void tst_pngprogressbar::onlyTheLeftButtonMovesTheBar()
{
    BarStage stage({90, 20});
    pointer::click(stage.bar, {45, 10}, Qt::RightButton);
    pointer::click(stage.bar, {45, 10}, Qt::MiddleButton);
    QCOMPARE(stage.bar.getPos(), 0);
    QCOMPARE(stage.changes.count(), std::size_t{0});
}

void tst_pngprogressbar::setPosSendsNothing()
{
    BarStage stage({90, 20});
    stage.bar.setPos(30);
    stage.bar.setposRange(0, 10);
    QCOMPARE(stage.changes.count(), std::size_t{0});
}

void tst_pngprogressbar::aFixedBarIgnoresTheUser()
{
    BarStage stage({90, 20});
    stage.bar.setPos(50);
    stage.bar.setAllowMouseChangeFlag(false);
    pointer::press(stage.bar, {10, 10});
    pointer::move(stage.bar, {80, 10});
    pointer::release(stage.bar, {80, 10});
    stage.bar.setFocus();
    QTest::keyClick(&stage.bar, Qt::Key_Right);
    pointer::turnWheel(stage.bar, 120);
    QCOMPARE(stage.bar.getPos(), 50);
    QCOMPARE(stage.changes.count(), std::size_t{0});

    stage.bar.setAllowMouseChangeFlag(true);
    pointer::press(stage.bar, {9, 10});
    QCOMPARE(stage.bar.getPos(), 10);
}

void tst_pngprogressbar::aFixedBarIsNotInTheTabOrder()
{
    BarStage stage({90, 20});
    stage.window.setFocusPolicy(Qt::StrongFocus);
    stage.window.setFocus();
    stage.bar.setAllowMouseChangeFlag(false);
    QTest::keyClick(stage.window.windowHandle(), Qt::Key_Tab);
    QVERIFY(!stage.bar.hasFocus());
    stage.bar.setAllowMouseChangeFlag(true);
    QTest::keyClick(stage.window.windowHandle(), Qt::Key_Tab);
    QVERIFY(stage.bar.hasFocus());
}

void tst_pngprogressbar::assistiveTechnologyMovesTheBarWhereTheUserMay_data()
{
    QTest::addColumn<bool>("allowed");
    QTest::newRow("allowed") << true;
    QTest::newRow("fixed") << false;
}

void tst_pngprogressbar::assistiveTechnologyMovesTheBarWhereTheUserMay()
{
    QFETCH(bool, allowed);
    BarStage stage({90, 20});
    stage.bar.setPos(50);
    stage.bar.setAllowMouseChangeFlag(allowed);
    auto *const told = QAccessible::queryAccessibleInterface(&stage.bar)->valueInterface();
    QVERIFY(told);
    QCOMPARE(told->currentValue().toInt(), 50);
    told->setCurrentValue(30);
    QCOMPARE(stage.bar.getPos(), allowed ? 30 : 50);
    QCOMPARE(told->currentValue().toInt(), allowed ? 30 : 50);
    QCOMPARE(stage.changes.count(), std::size_t{allowed ? 1U : 0U});
}

KYR_GUI_TEST(tst_pngprogressbar)
#include "tst_pngprogressbar.moc"
