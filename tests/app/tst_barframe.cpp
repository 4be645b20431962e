#include "app/barframe.h"
#include "support/suite.h"

/// Where the bars lie, from the main window's frame and their own.
class tst_barframe : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aBarLiesAtItsSideOfTheMainWindow_data();
    void aBarLiesAtItsSideOfTheMainWindow();
    void theExtentAlongTheSideIsKept_data() { sides(); }
    void theExtentAlongTheSideIsKept();
    void theReachDoesNotDependOnWhereTheBarLies_data() { sides(); }
    void theReachDoesNotDependOnWhereTheBarLies();
    void theReachGrowsWithTheShare_data() { sides(); }
    void theReachGrowsWithTheShare();

private:
    static void sides();
};

namespace {

constexpr UpRect kMain{300, 200, 654, 640};

int reach(BarSide side, UpRect frame)
{
    return side == BarSide::Bottom ? frame.height : frame.width;
}

} // namespace

void tst_barframe::sides()
{
    QTest::addColumn<BarSide>("side");
    QTest::newRow("left") << BarSide::Left;
    QTest::newRow("right") << BarSide::Right;
    QTest::newRow("bottom") << BarSide::Bottom;
}

void tst_barframe::aBarLiesAtItsSideOfTheMainWindow_data()
{
    QTest::addColumn<BarSide>("side");
    QTest::addColumn<UpRect>("main");
    QTest::addColumn<UpRect>("bar");
    QTest::addColumn<double>("share");
    QTest::addColumn<UpRect>("frame");
    const auto row = [](const char *name, BarSide side, UpRect main, UpRect bar, double share,
                        UpRect frame) {
        QTest::newRow(name) << side << main << bar << share << frame;
    };
    const UpRect left{0, 0, 16, 452};
    const UpRect right{0, 0, 16, 461};
    const UpRect bottom{0, 0, 466, 16};
    // The bar's middle is the main window's: 200 + 320 = 520 upwards, 300 + 327 = 627 across.
    row("left shut", BarSide::Left, kMain, left, 0.0, {284, 294, 16, 452});
    row("left open", BarSide::Left, kMain, left, 1.0, {98, 294, 202, 452});
    row("left half", BarSide::Left, kMain, left, 0.5, {191, 294, 109, 452});
    row("right open", BarSide::Right, kMain, {0, 0, 16, 460}, 1.0, {954, 290, 200, 460});
    row("right shut", BarSide::Right, kMain, {0, 0, 200, 460}, 0.0, {954, 290, 16, 460});
    row("right half", BarSide::Right, kMain, {0, 0, 16, 460}, 0.5, {954, 290, 108, 460});
    row("bottom shut", BarSide::Bottom, kMain, bottom, 0.0, {394, 184, 466, 16});
    row("bottom open", BarSide::Bottom, kMain, bottom, 1.0, {394, 99, 466, 101});
    // Half of 85 is rounded, away from zero.
    row("bottom half", BarSide::Bottom, kMain, bottom, 0.5, {394, 141, 466, 59});
    // An odd difference: the half point goes above, or to the right.
    row("right, odd difference", BarSide::Right, kMain, right, 0.0, {954, 289, 16, 461});
    row("bottom, odd difference", BarSide::Bottom, kMain, {0, 0, 465, 16}, 0.0,
        {394, 184, 465, 16});
    row("less than shut", BarSide::Left, kMain, left, -0.5, {284, 294, 16, 452});
    row("more than open", BarSide::Left, kMain, left, 1.5, {98, 294, 202, 452});
    const UpRect away{-1000, -700, 654, 640};
    row("left, negative origin", BarSide::Left, away, left, 1.0, {-1202, -606, 202, 452});
    row("right, negative origin", BarSide::Right, away, left, 1.0, {-346, -606, 200, 452});
    row("bottom, negative origin", BarSide::Bottom, away, bottom, 1.0, {-906, -801, 466, 101});
    row("a bar larger than the side", BarSide::Left, {300, 200, 654, 400}, {0, 0, 16, 452}, 0.0,
        {284, 174, 16, 452});
}

void tst_barframe::aBarLiesAtItsSideOfTheMainWindow()
{
    QFETCH(BarSide, side);
    QFETCH(UpRect, main);
    QFETCH(UpRect, bar);
    QFETCH(double, share);
    QFETCH(UpRect, frame);
    const UpRect there = barFrame(side, main, bar, share);
    QCOMPARE(there.x, frame.x);
    QCOMPARE(there.y, frame.y);
    QCOMPARE(there.width, frame.width);
    QCOMPARE(there.height, frame.height);
}

void tst_barframe::theExtentAlongTheSideIsKept()
{
    QFETCH(BarSide, side);
    for (const int extent : {1, 99, 452, 900}) {
        const UpRect frame = barFrame(side, kMain, {5, 6, extent, extent}, 0.3);
        QCOMPARE(side == BarSide::Bottom ? frame.width : frame.height, extent);
    }
}

void tst_barframe::theReachDoesNotDependOnWhereTheBarLies()
{
    QFETCH(BarSide, side);
    const UpRect shut = barFrame(side, kMain, {0, 0, 300, 300}, 0.0);
    QCOMPARE(reach(side, shut), 16);
    const UpRect open = barFrame(side, kMain, shut, 1.0);
    QCOMPARE(reach(side, open), barReach(side));
    QVERIFY(barFrame(side, kMain, open, 0.0) == shut);
}

void tst_barframe::theReachGrowsWithTheShare()
{
    QFETCH(BarSide, side);
    int before = 16;
    for (int step = 0; step <= 50; ++step) {
        const int now = reach(side, barFrame(side, kMain, {0, 0, 16, 16}, step / 50.0));
        QVERIFY(now >= before);
        QVERIFY(now - before <= 5); // a fiftieth of the way is no more than 4 points
        before = now;
    }
    QCOMPARE(before, barReach(side));
}

KYR_CORE_TEST(tst_barframe)
#include "tst_barframe.moc"
