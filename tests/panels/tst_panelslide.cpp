#include "panelstage.h"
#include "support/pictures.h"
#include "support/suite.h"

/// The panels of the right bar while it opens and closes, and its handle then.
class tst_panelslide : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aShutBarShowsNoPanel();
    void underWayThePanelsLieAsIfCollapsed_data();
    void underWayThePanelsLieAsIfCollapsed();
    void aHeaderClickedUnderWayLiesAsIfCollapsedToo();
    void underWayTheMacroPanelIsHidden();
    void aClosingBarCollapsesItsPanelsFirst();
    void aReopenedBarHasAllPanelsCollapsed();
    void aHeaderClickedUnderWayIsExpandedOnceTheBarStands_data();
    void aHeaderClickedUnderWayIsExpandedOnceTheBarStands();
    void aSizeNoticeThatComesLateLeavesAPanelExpanded();
    void theHandleIsThatOfAnOpenBarAfterAButtonsFunctionIsShown_data();
    void theHandleIsThatOfAnOpenBarAfterAButtonsFunctionIsShown();
};

namespace {

/// Notes which panels are expanded as the macro panel hides.
class HideWatch : public QObject
{
public:
    explicit HideWatch(const PanelsStage &stage) : m_stage(stage)
    {
        stage.panel(PanelId::Macro).installEventFilter(this);
    }
    std::vector<std::vector<PanelId>> expanded;

protected:
    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        if (event->type() == QEvent::Hide)
            expanded.push_back(m_stage.expanded());
        return false;
    }

private:
    const PanelsStage &m_stage;
};

/// Where the panels are to lie in the bar as wide as it is.
QStringList placesUnderWay(const PanelsStage &stage)
{
    const int width = stage.right().width() - 23;
    if (width <= 0 || width >= 177)
        qFatal("the bar is not under way");
    QStringList places;
    for (const char *place : {"0,376,%1,30", "0,346,%1,30", "0,316,%1,30", "0,266,%1,50"})
        places << QString::fromLatin1(place).arg(width);
    return places;
}

QImage handleOf(const PanelsStage &stage)
{
    stage.pointAway(kRightBar);
    return shown(stage.toggle(kRightBar));
}

} // namespace

void tst_panelslide::aShutBarShowsNoPanel()
{
    PanelsStage stage;
    for (int round = 0; round < 2; ++round) {
        for (const KnownPanel &known : kKnownPanels)
            QVERIFY2(!stage.panel(known.id).isVisible(), known.title);
        stage.toggleRight();
        stage.toggleRight();
    }
}

void tst_panelslide::underWayThePanelsLieAsIfCollapsed_data()
{
    QTest::addColumn<bool>("closing");
    QTest::newRow("opening") << false;
    QTest::newRow("closing") << true;
}

void tst_panelslide::underWayThePanelsLieAsIfCollapsed()
{
    QFETCH(bool, closing);
    PanelsStage stage;
    if (closing)
        stage.openAt(PanelId::Cpi);
    pointer::click(stage.toggle(kRightBar));
    stage.passHalf();
    QCOMPARE(stage.places(), placesUnderWay(stage));
}

void tst_panelslide::aHeaderClickedUnderWayLiesAsIfCollapsedToo()
{
    PanelsStage stage;
    pointer::click(stage.toggle(kRightBar));
    stage.clock.pass(BarsStage::kDuration / 4);
    stage.clickHeader(PanelId::Cpi);
    stage.clock.pass(BarsStage::kDuration / 4);
    QCOMPARE(stage.expanded(), std::vector{PanelId::Cpi});
    QCOMPARE(stage.places(), placesUnderWay(stage));
}

void tst_panelslide::underWayTheMacroPanelIsHidden()
{
    PanelsStage stage;
    const QWidget &right = stage.right();
    for (int way = 0; way < 2; ++way) {
        pointer::click(stage.toggle(kRightBar));
        stage.passHalf();
        QVERIFY(!stage.panel(PanelId::Macro).isVisible());
        for (const char *name : {"btnNew", "btnDelete"})
            QVERIFY2(PanelsStage::part(&right, name)->isHidden(), name);
        for (const PanelId id : {PanelId::Tree, PanelId::Cpi, PanelId::Profile})
            QVERIFY(stage.panel(id).isVisible());
        stage.arrive();
        const bool open = way == 0;
        for (const char *name : {"btnNew", "btnDelete"})
            QCOMPARE(PanelsStage::part(&right, name)->isVisible(), open);
        QCOMPARE(stage.panel(PanelId::Macro).isVisible(), open);
    }
}

void tst_panelslide::aClosingBarCollapsesItsPanelsFirst()
{
    PanelsStage stage;
    stage.openAt(PanelId::Macro);
    const HideWatch watch(stage);
    pointer::click(stage.toggle(kRightBar));
    QCOMPARE(watch.expanded, std::vector<std::vector<PanelId>>{{}});
    QCOMPARE(stage.logged("IDC_VIEW"), std::vector<std::string>{"IDC_VIEW_MACRO"});
}

void tst_panelslide::aReopenedBarHasAllPanelsCollapsed()
{
    PanelsStage stage;
    stage.toggleRight();
    const QStringList collapsed = stage.places();
    for (const KnownPanel &known : kKnownPanels) {
        stage.clickHeader(known.id);
        stage.toggleRight();
        stage.toggleRight();
        QCOMPARE(stage.expanded(), std::vector<PanelId>());
        QCOMPARE(stage.places(), collapsed);
    }
}

void tst_panelslide::aHeaderClickedUnderWayIsExpandedOnceTheBarStands_data()
{
    QTest::addColumn<PanelId>("id");
    QTest::addColumn<QString>("place");
    QTest::newRow("game commands") << PanelId::Tree << QStringLiteral("0,156,177,250");
    QTest::newRow("CPI") << PanelId::Cpi << QStringLiteral("0,126,177,250");
    QTest::newRow("profile") << PanelId::Profile << QStringLiteral("0,96,177,250");
}

void tst_panelslide::aHeaderClickedUnderWayIsExpandedOnceTheBarStands()
{
    QFETCH(PanelId, id);
    PanelsStage stage;
    pointer::click(stage.toggle(kRightBar));
    stage.passHalf();
    stage.clickHeader(id);
    stage.arrive();
    QCOMPARE(stage.expanded(), std::vector{id});
    QTEST(placeText(stage.panel(id)), "place");
    QCOMPARE(placeText(stage.panel(PanelId::Macro)), QStringLiteral("0,46,177,50"));
}

void tst_panelslide::aSizeNoticeThatComesLateLeavesAPanelExpanded()
{
    PanelsStage stage;
    stage.openAt(PanelId::Cpi);
    const QStringList places = stage.places();
    const UpRect open = stage.right().frame();
    stage.right().setFrame({open.x, open.y, open.width - 1, open.height});
    QCOMPARE(placeText(stage.panel(PanelId::Cpi)), QStringLiteral("0,126,176,250"));
    stage.right().setFrame(open);
    QCOMPARE(stage.places(), places);
}

void tst_panelslide::theHandleIsThatOfAnOpenBarAfterAButtonsFunctionIsShown_data()
{
    QTest::addColumn<FunctionCode>("code");
    for (const FunctionCode code : {9U, 18U, 43U, 260U, 0x1008U})
        QTest::addRow("%u", code) << code;
}

void tst_panelslide::theHandleIsThatOfAnOpenBarAfterAButtonsFunctionIsShown()
{
    QFETCH(FunctionCode, code);
    PanelsStage stage;
    const QImage shut = handleOf(stage);
    stage.toggleRight();
    const QImage open = handleOf(stage);
    QVERIFY(shut != open);
    stage.toggleRight();
    QCOMPARE(handleOf(stage), shut);
    stage.find(3, code);
    QCOMPARE(handleOf(stage), open);
}

KYR_GUI_TEST(tst_panelslide)
#include "tst_panelslide.moc"
