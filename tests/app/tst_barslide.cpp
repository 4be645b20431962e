#include "app/barslide.h"
#include "support/animatedstyle.h"
#include "support/animationclock.h"
#include "support/suite.h"

/// A bar's way between shut and open.
class tst_barslide : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNewSlideRestsShut();
    void theBarArrivesAfterTheStylesDuration_data() { sides(); }
    void theBarArrivesAfterTheStylesDuration();
    void theBarKeepsToItsSideAllTheWay_data() { sides(); }
    void theBarKeepsToItsSideAllTheWay();
    void turnedRoundUnderWayTheBarGoesBackFromWhereItIs();
    void turnedRoundTwiceTheBarArrivesOpen();
    void aShorterWayTakesLess();
    void aHiddenBarIsThereAtOnce();
    void withoutAnimationsTheBarIsThereAtOnce();
    void whereItIsAlreadyTheBarDoesNotMove();
    void theArrivalIsSentOnceTheBarStands();
    void atRestTheArrivalIsSentAtOnce();
    void anArrivalIsSentOnce();
    void anotherSlideForgetsTheArrival();
    void anotherSlideSendsNoArrivalOfItsOwn();
    void aMainWindowMovedUnderWayTakesTheBarAlong();
    void eventsAreHandledUnderWay();
    void aBarThatIsGoneUnderWayIsLeftOut();

private:
    static void sides();
};

namespace {

constexpr int kDuration = 200;

struct SlideStage
{
    explicit SlideStage(BarSide barSide = BarSide::Left, int duration = kDuration)
        : side(barSide), bar(new custumwindow({0, 0, 16, 16}, &main)), slide(side, main, *bar)
    {
        animateFor(duration);
        main.show();
        bar->show();
        slide.follow();
    }

    UpRect frameAt(double share) const { return barFrame(side, main.frame(), bar->frame(), share); }
    bool isShut() const { return bar->frame() == frameAt(0.0); }
    bool isOpen() const { return bar->frame() == frameAt(1.0); }
    int reach() const { return side == BarSide::Bottom ? bar->height() : bar->width(); }

    BarSide side;
    AnimationClock clock;
    custumwindow main{{100, 150, 654, 640}, nullptr};
    custumwindow *bar;
    BarSlide slide;
};

/// Keeps how far the bar reached when it was told of the arrival.
class Arrivals : public QObject
{
public:
    explicit Arrivals(SlideStage &stage) : m_stage(stage) {}
    void arrived() { reaches.push_back(m_stage.reach()); }
    Action<> action() { return {this, &Arrivals::arrived}; }

    std::vector<int> reaches;

private:
    SlideStage &m_stage;
};

} // namespace

void tst_barslide::sides()
{
    QTest::addColumn<BarSide>("side");
    QTest::newRow("left") << BarSide::Left;
    QTest::newRow("right") << BarSide::Right;
    QTest::newRow("bottom") << BarSide::Bottom;
}

void tst_barslide::aNewSlideRestsShut()
{
    const SlideStage stage;
    QVERIFY(!stage.slide.isMoving());
    QVERIFY(stage.isShut());
}

void tst_barslide::theBarArrivesAfterTheStylesDuration()
{
    QFETCH(BarSide, side);
    SlideStage stage(side);
    stage.slide.slide(true);
    QVERIFY(stage.slide.isMoving());
    QVERIFY(stage.isShut());
    stage.clock.pass(kDuration - 1);
    QVERIFY(stage.slide.isMoving());
    stage.clock.pass(1);
    QVERIFY(!stage.slide.isMoving());
    QVERIFY(stage.isOpen());
    stage.slide.slide(false);
    QVERIFY(stage.isOpen());
    stage.clock.pass(kDuration);
    QVERIFY(!stage.slide.isMoving());
    QVERIFY(stage.isShut());
}

void tst_barslide::theBarKeepsToItsSideAllTheWay()
{
    QFETCH(BarSide, side);
    SlideStage stage(side);
    stage.slide.slide(true);
    int before = stage.reach();
    for (int step = 0; step < 10; ++step) {
        stage.clock.pass(kDuration / 10);
        const UpRect bar = stage.bar->frame();
        const UpRect main = stage.main.frame();
        const bool flush = side == BarSide::Left    ? bar.x + bar.width == main.x
                           : side == BarSide::Right ? bar.x == main.x + main.width
                                                    : bar.y + bar.height == main.y;
        QVERIFY(flush);
        QVERIFY(stage.reach() >= before);
        before = stage.reach();
    }
    QCOMPARE(before, barReach(side));
}

void tst_barslide::turnedRoundUnderWayTheBarGoesBackFromWhereItIs()
{
    SlideStage stage;
    stage.slide.slide(true);
    stage.clock.pass(kDuration / 4);
    const UpRect turned = stage.bar->frame();
    QVERIFY(turned.width > 16 && turned.width < 202);
    stage.slide.slide(false);
    QVERIFY(stage.bar->frame() == turned);
    int before = turned.width;
    while (stage.slide.isMoving()) {
        stage.clock.pass(1);
        QVERIFY(stage.bar->width() <= before);
        QVERIFY(before - stage.bar->width() <= 4); // three times the even pace, at most
        before = stage.bar->width();
    }
    QVERIFY(stage.isShut());
}

void tst_barslide::turnedRoundTwiceTheBarArrivesOpen()
{
    SlideStage stage;
    for (const bool open : {true, false, true}) {
        stage.slide.slide(open);
        stage.clock.pass(kDuration / 10);
    }
    QVERIFY(stage.slide.isMoving());
    stage.clock.pass(kDuration);
    QVERIFY(stage.isOpen());
}

void tst_barslide::aShorterWayTakesLess()
{
    SlideStage stage;
    stage.slide.slide(true);
    stage.clock.pass(kDuration / 4);
    // Slowing down all the way, a quarter of the time is 58 % of the way.
    stage.slide.slide(false);
    stage.clock.pass(115);
    QVERIFY(stage.slide.isMoving());
    stage.clock.pass(1);
    QVERIFY(!stage.slide.isMoving());
    QVERIFY(stage.isShut());
}

void tst_barslide::aHiddenBarIsThereAtOnce()
{
    SlideStage stage;
    stage.bar->hide();
    stage.slide.slide(true);
    QVERIFY(!stage.slide.isMoving());
    QVERIFY(stage.isOpen());
    stage.slide.slide(false);
    QVERIFY(stage.isShut());
}

void tst_barslide::withoutAnimationsTheBarIsThereAtOnce()
{
    SlideStage stage(BarSide::Right, 0);
    stage.slide.slide(true);
    QVERIFY(!stage.slide.isMoving());
    QVERIFY(stage.isOpen());
    stage.slide.slide(false);
    QVERIFY(stage.isShut());
}

void tst_barslide::whereItIsAlreadyTheBarDoesNotMove()
{
    SlideStage stage;
    stage.slide.slide(false);
    QVERIFY(!stage.slide.isMoving());
    QVERIFY(stage.isShut());
}

void tst_barslide::theArrivalIsSentOnceTheBarStands()
{
    SlideStage stage;
    Arrivals arrivals(stage);
    stage.slide.slide(true);
    stage.slide.whenArrived(arrivals.action());
    stage.clock.pass(kDuration - 1);
    QVERIFY(arrivals.reaches.empty());
    stage.clock.pass(1);
    QCOMPARE(arrivals.reaches, std::vector{202});
}

void tst_barslide::atRestTheArrivalIsSentAtOnce()
{
    SlideStage stage(BarSide::Left, 0);
    Arrivals arrivals(stage);
    stage.slide.slide(true);
    stage.slide.whenArrived(arrivals.action());
    QCOMPARE(arrivals.reaches, std::vector{202});
}

void tst_barslide::anArrivalIsSentOnce()
{
    SlideStage stage;
    Arrivals arrivals(stage);
    stage.slide.slide(true);
    stage.slide.whenArrived(arrivals.action());
    stage.clock.pass(kDuration);
    stage.slide.slide(false);
    stage.clock.pass(kDuration);
    QVERIFY(stage.isShut());
    QCOMPARE(arrivals.reaches, std::vector{202});
}

void tst_barslide::anotherSlideForgetsTheArrival()
{
    SlideStage stage;
    Arrivals forgotten(stage);
    Arrivals arrivals(stage);
    stage.slide.slide(true);
    stage.slide.whenArrived(forgotten.action());
    stage.clock.pass(kDuration / 4);
    stage.slide.slide(false);
    stage.slide.whenArrived(arrivals.action());
    stage.clock.pass(kDuration);
    QVERIFY(forgotten.reaches.empty());
    QCOMPARE(arrivals.reaches, std::vector{16});
}

void tst_barslide::anotherSlideSendsNoArrivalOfItsOwn()
{
    SlideStage stage;
    Arrivals forgotten(stage);
    stage.slide.slide(true);
    stage.slide.whenArrived(forgotten.action());
    stage.clock.pass(kDuration / 4);
    stage.slide.slide(false);
    stage.clock.pass(kDuration);
    QVERIFY(stage.isShut());
    QVERIFY(forgotten.reaches.empty());
}

void tst_barslide::aMainWindowMovedUnderWayTakesTheBarAlong()
{
    SlideStage stage;
    stage.slide.slide(true);
    stage.clock.pass(kDuration / 4);
    const UpRect before = stage.bar->frame();
    stage.main.setFrame({130, 100, 654, 640});
    stage.slide.follow();
    QVERIFY(stage.bar->frame() ==
            (UpRect{before.x + 30, before.y - 50, before.width, before.height}));
    stage.clock.pass(kDuration);
    QVERIFY(stage.isOpen());
}

void tst_barslide::eventsAreHandledUnderWay()
{
    animateFor(kDuration);
    custumwindow main{{100, 150, 654, 640}, nullptr};
    custumwindow bar{{0, 0, 16, 452}, &main};
    BarSlide slide(BarSide::Left, main, bar);
    main.show();
    bar.show();
    slide.slide(true);
    bool handledUnderWay = false;
    QMetaObject::invokeMethod(
        &main, [&] { handledUnderWay = slide.isMoving(); }, Qt::QueuedConnection);
    QTRY_VERIFY(!slide.isMoving());
    QVERIFY(handledUnderWay);
    QCOMPARE(bar.width(), 202);
}

void tst_barslide::aBarThatIsGoneUnderWayIsLeftOut()
{
    SlideStage stage;
    stage.slide.slide(true);
    stage.clock.pass(kDuration / 4);
    delete stage.bar;
    stage.clock.pass(kDuration);
    QVERIFY(!stage.slide.isMoving());
    stage.slide.slide(false);
    stage.slide.follow();
    QVERIFY(!stage.slide.isMoving());
}

KYR_GUI_TEST(tst_barslide)
#include "tst_barslide.moc"
