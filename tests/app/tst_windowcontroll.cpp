#include "app/controllerstage.h"
#include "support/suite.h"

/// The window controller between windows and views that only take note.
class tst_windowcontroll : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void awakeAllBarsAreAttachedClosed();
    void awakeTheWindowsCanBeDragged();
    void everyBarOpensAndCloses_data() { bars(); }
    void everyBarOpensAndCloses();
    void everyBarToggles_data() { bars(); }
    void everyBarToggles();
    void theFlagChangesBeforeTheBarArrives_data() { bars(); }
    void theFlagChangesBeforeTheBarArrives();
    void aBarToggledUnderWayGoesBack_data() { bars(); }
    void aBarToggledUnderWayGoesBack();
    void theOtherBarsStayWhereTheyAre_data() { bars(); }
    void theOtherBarsStayWhereTheyAre();
    void theInitialPositionClosesAllBars();
    void theInitialSettingLoadsAllViewsInOrder();
    void aRefreshLoadsTheOpenBars_data();
    void aRefreshLoadsTheOpenBars();
    void aRefreshLeavesTheRightBar();
    void theApplyStatusIsPassedOn();
    void theProfileColoursAreDrawnAgain();
    void aChosenFunctionIsPassedOn();
    void changedMacrosArePassedOn();
    void aResizedRightBarLaysOutItsView();
    void theOtherBarsSizesLayOutNothing();
    void theBarsFollowTheMainWindow();
    void theBarsFollowTheMainWindowUnderWay();
    void aMoveOfABarAsksNothing();
    void viewsThatWereNeverSetAreLeftOut();

private:
    static void bars();
};

namespace {

/// One bar with all that the controller offers for it.
struct Bar
{
    const char *name;
    BarSide side;
    custumwindow ControllerStage::*window;
    bool (windowcontroll::*isMin)() const;
    void (windowcontroll::*open)();
    void (windowcontroll::*close)();
    void (windowcontroll::*toggle)();

    UpRect frameIn(ControllerStage &stage, double share) const
    {
        return barFrame(side, stage.main.frame(), (stage.*window).frame(), share);
    }
    bool isShut(ControllerStage &stage) const
    {
        return (stage.*window).frame() == frameIn(stage, 0.0);
    }
    bool isOpen(ControllerStage &stage) const
    {
        return (stage.*window).frame() == frameIn(stage, 1.0);
    }
    bool isUnderWay(ControllerStage &stage) const { return !isShut(stage) && !isOpen(stage); }
};

constexpr Bar kBars[] = {
    {"left", BarSide::Left, &ControllerStage::left, &windowcontroll::IsMinLeftbar,
     &windowcontroll::OpenLeftBar, &windowcontroll::CloseLeftBar, &windowcontroll::toggleLeftBar},
    {"right", BarSide::Right, &ControllerStage::right, &windowcontroll::IsMinRightBar,
     &windowcontroll::OpenRightBar, &windowcontroll::CloseRightBar,
     &windowcontroll::toggleRightBar},
    {"bottom", BarSide::Bottom, &ControllerStage::bottom, &windowcontroll::IsMinBottomBar,
     &windowcontroll::OpenBottomBar, &windowcontroll::CloseBottomBar,
     &windowcontroll::toggleBottomBar},
};

} // namespace

void tst_windowcontroll::bars()
{
    QTest::addColumn<const Bar *>("bar");
    for (const Bar &bar : kBars)
        QTest::newRow(bar.name) << &bar;
}

void tst_windowcontroll::awakeAllBarsAreAttachedClosed()
{
    ControllerStage stage;
    for (const Bar &bar : kBars) {
        QVERIFY2((stage.controll.*bar.isMin)(), bar.name);
        QVERIFY2((stage.*bar.window).isVisible(), bar.name);
        QVERIFY2(bar.isShut(stage), bar.name);
    }
    QCOMPARE(stage.asked(), QStringList());
}

void tst_windowcontroll::awakeTheWindowsCanBeDragged()
{
    const ControllerStage stage;
    QVERIFY(stage.main.bCanDragWindow());
    for (const Bar &bar : kBars)
        QVERIFY2((stage.*bar.window).bCanDragWindow(), bar.name);
}

void tst_windowcontroll::everyBarOpensAndCloses()
{
    QFETCH(const Bar *, bar);
    ControllerStage stage;
    (stage.controll.*bar->open)();
    stage.arrive();
    QVERIFY(!(stage.controll.*bar->isMin)());
    QVERIFY(bar->isOpen(stage));
    (stage.controll.*bar->open)();
    stage.arrive();
    QVERIFY(bar->isOpen(stage));
    (stage.controll.*bar->close)();
    stage.arrive();
    QVERIFY((stage.controll.*bar->isMin)());
    QVERIFY(bar->isShut(stage));
    QCOMPARE(stage.asked(), QStringList());
}

void tst_windowcontroll::everyBarToggles()
{
    QFETCH(const Bar *, bar);
    ControllerStage stage;
    (stage.controll.*bar->toggle)();
    stage.arrive();
    QVERIFY(!(stage.controll.*bar->isMin)());
    QVERIFY(bar->isOpen(stage));
    (stage.controll.*bar->toggle)();
    stage.arrive();
    QVERIFY((stage.controll.*bar->isMin)());
    QVERIFY(bar->isShut(stage));
}

void tst_windowcontroll::theFlagChangesBeforeTheBarArrives()
{
    QFETCH(const Bar *, bar);
    ControllerStage stage;
    (stage.controll.*bar->toggle)();
    QVERIFY(!(stage.controll.*bar->isMin)());
    QVERIFY(bar->isShut(stage));
    stage.arrive();
    (stage.controll.*bar->toggle)();
    QVERIFY((stage.controll.*bar->isMin)());
    QVERIFY(bar->isOpen(stage));
}

void tst_windowcontroll::aBarToggledUnderWayGoesBack()
{
    QFETCH(const Bar *, bar);
    ControllerStage stage;
    (stage.controll.*bar->toggle)();
    stage.passHalf();
    QVERIFY(bar->isUnderWay(stage));
    const UpRect turned = (stage.*bar->window).frame();
    (stage.controll.*bar->toggle)();
    QVERIFY((stage.controll.*bar->isMin)());
    QVERIFY((stage.*bar->window).frame() == turned);
    stage.arrive();
    QVERIFY(bar->isShut(stage));
}

void tst_windowcontroll::theOtherBarsStayWhereTheyAre()
{
    QFETCH(const Bar *, bar);
    ControllerStage stage;
    (stage.controll.*bar->toggle)();
    stage.arrive();
    for (const Bar &other : kBars) {
        if (&other != bar)
            QVERIFY2(other.isShut(stage) && (stage.controll.*other.isMin)(), other.name);
    }
}

void tst_windowcontroll::theInitialPositionClosesAllBars()
{
    ControllerStage stage;
    for (const Bar &bar : kBars)
        (stage.controll.*bar.open)();
    stage.arrive();
    stage.main.setBCanDragWindow(false);
    stage.controll.initialWindowpos();
    stage.arrive();
    QVERIFY(stage.main.bCanDragWindow());
    for (const Bar &bar : kBars)
        QVERIFY2(bar.isShut(stage) && (stage.controll.*bar.isMin)(), bar.name);
}

void tst_windowcontroll::theInitialSettingLoadsAllViewsInOrder()
{
    ControllerStage stage; // the bars are closed
    stage.controll.initialSetting();
    QCOMPARE(stage.asked(), QStringList({QStringLiteral("main initButtonSetting"),
                                         QStringLiteral("left InitSetting"),
                                         QStringLiteral("bottom InitSetting")}));
}

void tst_windowcontroll::aRefreshLoadsTheOpenBars_data()
{
    QTest::addColumn<bool>("leftOpen");
    QTest::addColumn<bool>("bottomOpen");
    QTest::addColumn<QStringList>("calls");
    const QString left = QStringLiteral("left InitSetting");
    const QString bottom = QStringLiteral("bottom InitSetting");
    QTest::newRow("none") << false << false << QStringList();
    QTest::newRow("left") << true << false << QStringList(left);
    QTest::newRow("bottom") << false << true << QStringList(bottom);
    QTest::newRow("both") << true << true << QStringList({left, bottom});
}

void tst_windowcontroll::aRefreshLoadsTheOpenBars()
{
    QFETCH(bool, leftOpen);
    QFETCH(bool, bottomOpen);
    ControllerStage stage;
    if (leftOpen)
        stage.controll.OpenLeftBar();
    if (bottomOpen)
        stage.controll.OpenBottomBar();
    stage.controll.refreshSetting();
    QTEST(stage.asked(), "calls");
}

void tst_windowcontroll::aRefreshLeavesTheRightBar()
{
    ControllerStage stage;
    stage.controll.OpenRightBar();
    stage.controll.refreshSetting();
    QCOMPARE(stage.asked(), QStringList());
}

void tst_windowcontroll::theApplyStatusIsPassedOn()
{
    ControllerStage stage;
    stage.controll.setMainViewApplyStatus(true);
    stage.controll.setMainViewApplyStatus(false);
    QCOMPARE(stage.asked(), QStringList({QStringLiteral("main setApplyButtonStatus 1"),
                                         QStringLiteral("main setApplyButtonStatus 0")}));
}

void tst_windowcontroll::theProfileColoursAreDrawnAgain()
{
    ControllerStage stage;
    stage.controll.refreshProfileColorBar();
    QCOMPARE(stage.asked(), QStringList(QStringLiteral("main redraw")));
}

void tst_windowcontroll::aChosenFunctionIsPassedOn()
{
    ControllerStage stage;
    stage.controll.changeSelFunction(4097);
    QCOMPARE(stage.asked(), QStringList(QStringLiteral("main changeCurrentButtonFunction 4097")));
    QVERIFY(stage.controll.IsMinRightBar());
}

void tst_windowcontroll::changedMacrosArePassedOn()
{
    ControllerStage stage;
    for (const bool open : {false, true}) {
        if (open)
            stage.toggleRightBar();
        stage.asked();
        stage.controll.macrosChanged();
        QCOMPARE(stage.asked(), QStringList(QStringLiteral("main macrosChanged")));
    }
}

void tst_windowcontroll::aResizedRightBarLaysOutItsView()
{
    ControllerStage stage;
    stage.rightContent.resizes = 0;
    stage.controll.toggleRightBar();
    stage.passHalf();
    QCOMPARE(stage.rightContent.resizes, 1);
    stage.arrive();
    QCOMPARE(stage.rightContent.resizes, 2);
    stage.controll.windowDidResize();
    QCOMPARE(stage.rightContent.resizes, 3);
}

void tst_windowcontroll::theOtherBarsSizesLayOutNothing()
{
    ControllerStage stage;
    stage.rightContent.resizes = 0;
    stage.controll.toggleLeftBar();
    stage.controll.toggleBottomBar();
    stage.arrive();
    QCOMPARE(stage.rightContent.resizes, 0);
}

void tst_windowcontroll::theBarsFollowTheMainWindow()
{
    ControllerStage stage;
    stage.controll.OpenLeftBar();
    stage.arrive();
    for (const QPoint place : {QPoint(350, 90), QPoint(-300, 400), QPoint(0, 0)}) {
        stage.main.move(place);
        QVERIFY(kBars[0].isOpen(stage));
        QVERIFY(kBars[1].isShut(stage));
        QVERIFY(kBars[2].isShut(stage));
    }
}

void tst_windowcontroll::theBarsFollowTheMainWindowUnderWay()
{
    ControllerStage stage;
    for (const Bar &bar : kBars)
        (stage.controll.*bar.toggle)();
    stage.passHalf();
    const QPoint way(70, -40);
    QPoint before[std::size(kBars)];
    for (std::size_t i = 0; i < std::size(kBars); ++i)
        before[i] = (stage.*kBars[i].window).pos();
    stage.main.move(stage.main.pos() + way);
    for (std::size_t i = 0; i < std::size(kBars); ++i)
        QCOMPARE((stage.*kBars[i].window).pos(), before[i] + way);
    stage.arrive();
    for (const Bar &bar : kBars)
        QVERIFY2(bar.isOpen(stage), bar.name);
}

void tst_windowcontroll::aMoveOfABarAsksNothing()
{
    ControllerStage stage;
    stage.rightContent.resizes = 0;
    stage.main.move(350, 90);
    QVERIFY(stage.right.pos() == QPoint(350 + 654, 90 + 90));
    stage.right.move(10, 20);
    stage.controll.windowDidMove();
    QCOMPARE(stage.rightContent.resizes, 0);
    QCOMPARE(stage.asked(), QStringList());
}

void tst_windowcontroll::viewsThatWereNeverSetAreLeftOut()
{
    ControllerStage stage;
    stage.controll.setMainContent(nullptr);
    stage.controll.setLeftContent(nullptr);
    stage.controll.setRightContent(nullptr);
    stage.controll.setBottomContent(nullptr);
    stage.controll.initialSetting();
    for (const Bar &bar : kBars)
        (stage.controll.*bar.toggle)();
    stage.controll.refreshSetting();
    stage.controll.setMainViewApplyStatus(true);
    stage.controll.refreshProfileColorBar();
    stage.controll.refreshMacroList();
    stage.controll.macrosChanged();
    stage.controll.windowDidResize();
    stage.controll.changeSelFunction(1);
    stage.controll.findFunctionItem(16);
    stage.arrive();
    stage.controll.findFunctionItem(4096);
    stage.controll.toggleRightBar();
    stage.arrive();
    QCOMPARE(stage.asked(), QStringList());
    QVERIFY(kBars[1].isShut(stage));
}

KYR_GUI_TEST(tst_windowcontroll)
#include "tst_windowcontroll.moc"
