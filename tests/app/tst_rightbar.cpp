#include "app/controllerstage.h"
#include "support/suite.h"

/// The right bar: its view is asked around each slide, and a function is shown in it once it
/// stands.
class tst_rightbar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void openingHidesTheHandleUntilTheBarStands();
    void closingClosesThePanelsFirst();
    void toggledTwiceTheBarIsAHandleWithAllPanelsClosed();
    void closedUnderWayTheBarNeverShowsAsOpen();
    void openedUnderWayTheBarNeverShowsAsClosed();
    void withoutAnimationsTheOrderIsTheSame();
    void everyFunctionIsShownWhereItLives_data();
    void everyFunctionIsShownWhereItLives();
    void onAnOpenBarAFunctionIsShownAtOnce();
    void onAClosedBarAFunctionIsShownOnceItStands();
    void whileTheBarOpensTheLastFunctionIsShown();
    void whileTheBarClosesItOpensAgainForAFunction();
    void aBarThatIsClosedBeforeItStoodShowsNoFunction();
    void aFunctionIsShownOnce();
    void changedMacrosAreListedWhileTheBarIsOpen();
};

namespace {

QStringList list(std::initializer_list<const char *> calls)
{
    QStringList texts;
    for (const char *call : calls)
        texts << QString::fromLatin1(call);
    return texts;
}

} // namespace

void tst_rightbar::openingHidesTheHandleUntilTheBarStands()
{
    ControllerStage stage;
    stage.controll.toggleRightBar();
    QCOMPARE(stage.asked(), list({"hideMiniBar at 16"}));
    stage.clock.pass(ControllerStage::kDuration - 1);
    QCOMPARE(stage.asked(), QStringList());
    stage.clock.pass(1);
    QCOMPARE(stage.asked(), list({"openMiniBar at 200"}));
}

void tst_rightbar::closingClosesThePanelsFirst()
{
    ControllerStage stage;
    stage.toggleRightBar();
    stage.asked();
    stage.controll.toggleRightBar();
    QCOMPARE(stage.asked(), list({"setAllWindowclose at 200", "hideMiniBar at 200"}));
    stage.arrive();
    QCOMPARE(stage.asked(), list({"closeMiniBar at 16"}));
}

void tst_rightbar::toggledTwiceTheBarIsAHandleWithAllPanelsClosed()
{
    ControllerStage stage;
    stage.controll.findFunctionItem(4096);
    stage.arrive();
    stage.asked();
    stage.toggleRightBar();
    QCOMPARE(stage.right.width(), 16);
    QVERIFY(stage.controll.IsMinRightBar());
    stage.toggleRightBar();
    stage.toggleRightBar();
    QCOMPARE(stage.right.width(), 16);
    QVERIFY(stage.controll.IsMinRightBar());
    const QStringList asked = stage.asked();
    QCOMPARE(asked.count(QStringLiteral("setAllWindowclose at 200")), 2);
    QVERIFY(asked.filter(QStringLiteral("Sel")).isEmpty());
}

void tst_rightbar::closedUnderWayTheBarNeverShowsAsOpen()
{
    ControllerStage stage;
    stage.controll.toggleRightBar();
    stage.passHalf();
    stage.toggleRightBar();
    const QStringList asked = stage.asked();
    QCOMPARE(asked.size(), 4);
    QCOMPARE(asked.first(), QStringLiteral("hideMiniBar at 16"));
    QVERIFY(asked[1].startsWith(QStringLiteral("setAllWindowclose")));
    QVERIFY(asked[2].startsWith(QStringLiteral("hideMiniBar")));
    QCOMPARE(asked.last(), QStringLiteral("closeMiniBar at 16"));
}

void tst_rightbar::openedUnderWayTheBarNeverShowsAsClosed()
{
    ControllerStage stage;
    stage.toggleRightBar();
    stage.controll.toggleRightBar();
    stage.passHalf();
    stage.asked();
    stage.toggleRightBar();
    const QStringList asked = stage.asked();
    QCOMPARE(asked.size(), 2);
    QVERIFY(asked.first().startsWith(QStringLiteral("hideMiniBar")));
    QCOMPARE(asked.last(), QStringLiteral("openMiniBar at 200"));
}

void tst_rightbar::withoutAnimationsTheOrderIsTheSame()
{
    ControllerStage stage;
    animateFor(0);
    stage.controll.findFunctionItem(17);
    QCOMPARE(stage.asked(),
             list({"hideMiniBar at 16", "openMiniBar at 200", "setDPISel 1 at 200"}));
    stage.controll.toggleRightBar();
    QCOMPARE(stage.asked(),
             list({"setAllWindowclose at 200", "hideMiniBar at 200", "closeMiniBar at 16"}));
}

void tst_rightbar::everyFunctionIsShownWhereItLives_data()
{
    QTest::addColumn<FunctionCode>("code");
    QTest::addColumn<QString>("call");
    const auto row = [](FunctionCode code, const QString &call) {
        QTest::addRow("%u", code) << code << call;
    };
    for (FunctionCode code = 16; code <= 23; ++code)
        row(code, QStringLiteral("setDPISel %1").arg(code - 16));
    for (FunctionCode code = 32; code <= 43; ++code)
        row(code, QStringLiteral("setProfileSel %1").arg(code - 32));
    for (FunctionCode code = 256; code <= 306; ++code)
        row(code, QStringLiteral("setMacroSel %1").arg(code - 256));
    for (const FunctionCode code :
         {0U, 1U, 9U, 15U, 24U, 31U, 44U, 255U, 307U, 4095U, 0x80000000U, 0xFFFFFFFFU})
        row(code, QStringLiteral("setAllWindowclose"));
    for (const FunctionCode code : {4096U, 4097U, 5000U, 65536U, 0x7FFFFFFFU})
        row(code, QStringLiteral("setTreeSel %1").arg(code));
}

void tst_rightbar::everyFunctionIsShownWhereItLives()
{
    QFETCH(FunctionCode, code);
    QFETCH(QString, call);
    ControllerStage stage;
    stage.controll.findFunctionItem(code);
    stage.arrive();
    QCOMPARE(stage.asked(), list({"hideMiniBar at 16", "openMiniBar at 200"})
                                << call + QStringLiteral(" at 200"));
    QVERIFY(!stage.controll.IsMinRightBar());
}

void tst_rightbar::onAnOpenBarAFunctionIsShownAtOnce()
{
    ControllerStage stage;
    stage.toggleRightBar();
    stage.asked();
    stage.controll.findFunctionItem(4096);
    stage.controll.findFunctionItem(3);
    QCOMPARE(stage.asked(), list({"setTreeSel 4096 at 200", "setAllWindowclose at 200"}));
    QCOMPARE(stage.right.width(), 200);
}

void tst_rightbar::onAClosedBarAFunctionIsShownOnceItStands()
{
    ControllerStage stage;
    stage.controll.findFunctionItem(256);
    QCOMPARE(stage.asked(), list({"hideMiniBar at 16"}));
    stage.passHalf();
    QCOMPARE(stage.asked(), QStringList());
    stage.arrive();
    QCOMPARE(stage.asked(), list({"openMiniBar at 200", "setMacroSel 0 at 200"}));
}

void tst_rightbar::whileTheBarOpensTheLastFunctionIsShown()
{
    ControllerStage stage;
    stage.controll.findFunctionItem(256);
    stage.passHalf();
    stage.controll.findFunctionItem(33);
    stage.arrive();
    QCOMPARE(stage.asked(),
             list({"hideMiniBar at 16", "openMiniBar at 200", "setProfileSel 1 at 200"}));
}

void tst_rightbar::whileTheBarClosesItOpensAgainForAFunction()
{
    ControllerStage stage;
    stage.toggleRightBar();
    stage.controll.toggleRightBar();
    stage.passHalf();
    stage.asked();
    stage.controll.findFunctionItem(306);
    stage.arrive();
    const QStringList asked = stage.asked();
    QCOMPARE(asked.size(), 3);
    QVERIFY(asked.first().startsWith(QStringLiteral("hideMiniBar")));
    QCOMPARE(asked.mid(1), list({"openMiniBar at 200", "setMacroSel 50 at 200"}));
    QVERIFY(!stage.controll.IsMinRightBar());
}

void tst_rightbar::aBarThatIsClosedBeforeItStoodShowsNoFunction()
{
    ControllerStage stage;
    stage.controll.findFunctionItem(256);
    stage.passHalf();
    stage.toggleRightBar();
    stage.toggleRightBar();
    QVERIFY(stage.asked().filter(QStringLiteral("setMacroSel")).isEmpty());
    QVERIFY(!stage.controll.IsMinRightBar());
}

void tst_rightbar::aFunctionIsShownOnce()
{
    ControllerStage stage;
    stage.controll.findFunctionItem(256);
    stage.arrive();
    stage.toggleRightBar();
    stage.asked();
    stage.toggleRightBar();
    QCOMPARE(stage.asked(), list({"hideMiniBar at 16", "openMiniBar at 200"}));
}

void tst_rightbar::changedMacrosAreListedWhileTheBarIsOpen()
{
    ControllerStage stage;
    stage.controll.refreshMacroList();
    QCOMPARE(stage.asked(), QStringList());
    stage.toggleRightBar();
    stage.asked();
    stage.controll.refreshMacroList();
    QCOMPARE(stage.asked(), list({"refreshMacroList at 200"}));
    stage.toggleRightBar();
    stage.asked();
    stage.controll.refreshMacroList();
    QCOMPARE(stage.asked(), QStringList());
}

KYR_GUI_TEST(tst_rightbar)
#include "tst_rightbar.moc"
