#include "panelstage.h"
#include "support/suite.h"

/// The four panels of the right bar: a player expands one of them at a time.
class tst_sidepanels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thePanelsHaveTheirTags();
    void anOpenBarBeginsWithAllPanelsCollapsed();
    void everyPanelHasItsPlace_data();
    void everyPanelHasItsPlace();
    void expandingAPanelCollapsesTheOthers_data();
    void expandingAPanelCollapsesTheOthers();
    void collapsingAPanelExpandsNoOther_data() { ways(); }
    void collapsingAPanelExpandsNoOther();
    void theKeyIsOnWhileItsPanelIsExpanded();
    void whatAButtonShowsIsNoExpandingByAPlayer_data();
    void whatAButtonShowsIsNoExpandingByAPlayer();
    void theHeaderTakesClicksDownToItsDepth_data() { panels(); }
    void theHeaderTakesClicksDownToItsDepth();
    void aReleaseElsewhereDoesNothing_data() { panels(); }
    void aReleaseElsewhereDoesNothing();
    void aRightClickOnTheHeaderDoesNothing();
    void aPressOnAPanelDragsNoWindow_data() { panels(); }
    void aPressOnAPanelDragsNoWindow();

private:
    static void panels();
    static void ways();
};

namespace {

using Expand = std::function<void(const PanelsStage &, PanelId)>;

void byHeader(const PanelsStage &stage, PanelId id)
{
    stage.clickHeader(id);
}

void byKey(const PanelsStage &stage, PanelId id)
{
    pointer::click(stage.expandKey(id));
}

void byKeyboard(const PanelsStage &stage, PanelId id)
{
    keyboard::tabTo(stage.expandKey(id));
    keyboard::press(Qt::Key_Space);
}

/// Beside the content, where an expanded panel shows through.
constexpr int kFreeColumn = 176;

} // namespace

void tst_sidepanels::panels()
{
    QTest::addColumn<const KnownPanel *>("known");
    for (const KnownPanel &known : kKnownPanels)
        QTest::newRow(known.title) << &known;
}

void tst_sidepanels::ways()
{
    QTest::addColumn<Expand>("click");
    QTest::newRow("by the header") << Expand(byHeader);
    QTest::newRow("by plus and minus") << Expand(byKey);
    QTest::newRow("by the keyboard") << Expand(byKeyboard);
}

void tst_sidepanels::thePanelsHaveTheirTags()
{
    const PanelsStage stage;
    for (const KnownPanel &known : kKnownPanels)
        QCOMPARE(stage.panel(known.id).tag(), known.tag);
}

void tst_sidepanels::anOpenBarBeginsWithAllPanelsCollapsed()
{
    PanelsStage stage;
    stage.toggleRight();
    QCOMPARE(stage.expanded(), std::vector<PanelId>());
    QCOMPARE(stage.logged("IDC_VIEW"), std::vector<std::string>());
}

void tst_sidepanels::everyPanelHasItsPlace_data()
{
    QTest::addColumn<std::vector<PanelId>>("clicked");
    QTest::addColumn<QStringList>("places");
    const auto row = [](const char *name, const std::vector<PanelId> &clicked, const char *tree,
                        const char *cpi, const char *profile, const char *macro) {
        QStringList places;
        for (const char *place : {tree, cpi, profile, macro})
            places << QLatin1String(place);
        QTest::newRow(name) << clicked << places;
    };
    const auto tree = PanelId::Tree;
    const auto cpi = PanelId::Cpi;
    const auto macro = PanelId::Macro;
    const char *const alone = "0,376,177,30";
    row("none", {}, alone, "0,346,177,30", "0,316,177,30", "0,266,177,50");
    row("game commands", {tree}, "0,156,177,250", "0,126,177,30", "0,96,177,30", "0,46,177,50");
    row("CPI", {cpi}, alone, "0,126,177,250", "0,96,177,30", "0,46,177,50");
    row("profile", {PanelId::Profile}, alone, "0,346,177,30", "0,96,177,250", "0,46,177,50");
    row("macros", {macro}, alone, "0,346,177,30", "0,316,177,30", "0,26,177,290");
    row("CPI after game commands", {tree, cpi}, alone, "0,126,177,250", "0,96,177,30",
        "0,46,177,50");
    row("macros and back", {macro, macro}, alone, "0,346,177,30", "0,316,177,30", "0,266,177,50");
}

void tst_sidepanels::everyPanelHasItsPlace()
{
    QFETCH(std::vector<PanelId>, clicked);
    PanelsStage stage;
    stage.toggleRight();
    for (const PanelId id : clicked)
        stage.clickHeader(id);
    QTEST(stage.places(), "places");
    for (const KnownPanel &known : kKnownPanels)
        QVERIFY2(stage.panel(known.id).isVisible(), known.title);
}

void tst_sidepanels::expandingAPanelCollapsesTheOthers_data()
{
    ways();
}

void tst_sidepanels::expandingAPanelCollapsesTheOthers()
{
    QFETCH(Expand, click);
    PanelsStage stage;
    stage.toggleRight();
    // From each of the others once.
    for (const std::size_t next : {0, 1, 2, 3, 0, 2, 1, 3, 2, 0, 3, 1, 0}) {
        stage.program.log.lines.clear();
        click(stage, kKnownPanels[next].id);
        QCOMPARE(stage.expanded(), std::vector{kKnownPanels[next].id});
        QCOMPARE(stage.logged(""), std::vector<std::string>{kKnownPanels[next].logged});
    }
}

void tst_sidepanels::collapsingAPanelExpandsNoOther()
{
    QFETCH(Expand, click);
    PanelsStage stage;
    stage.toggleRight();
    const QStringList collapsed = stage.places();
    for (const KnownPanel &known : kKnownPanels) {
        stage.program.log.lines.clear();
        click(stage, known.id);
        click(stage, known.id);
        QCOMPARE(stage.expanded(), std::vector<PanelId>());
        QCOMPARE(stage.places(), collapsed);
        QCOMPARE(stage.logged(""), (std::vector<std::string>{known.logged, known.logged}));
    }
}

void tst_sidepanels::theKeyIsOnWhileItsPanelIsExpanded()
{
    PanelsStage stage;
    stage.toggleRight();
    for (const KnownPanel &clicked : kKnownPanels) {
        stage.clickHeader(clicked.id);
        for (const KnownPanel &known : kKnownPanels)
            QCOMPARE(stage.expandKey(known.id).isChecked(), known.id == clicked.id);
    }
    stage.clickHeader(PanelId::Macro);
    QVERIFY(!stage.expandKey(PanelId::Macro).isChecked());
}

void tst_sidepanels::whatAButtonShowsIsNoExpandingByAPlayer_data()
{
    QTest::addColumn<FunctionCode>("code");
    QTest::addColumn<std::vector<PanelId>>("shown");
    using Panels = std::vector<PanelId>;
    QTest::newRow("CPI") << FunctionCode{18} << Panels{PanelId::Cpi};
    QTest::newRow("profile") << FunctionCode{43} << Panels{PanelId::Profile};
    QTest::newRow("macro") << FunctionCode{260} << Panels{PanelId::Macro};
    QTest::newRow("game command") << FunctionCode{0x1008} << Panels{PanelId::Tree};
    QTest::newRow("none") << FunctionCode{9} << Panels{};
}

void tst_sidepanels::whatAButtonShowsIsNoExpandingByAPlayer()
{
    QFETCH(FunctionCode, code);
    PanelsStage stage;
    stage.find(1, 17);
    stage.find(2, code);
    QTEST(stage.expanded(), "shown");
    QCOMPARE(stage.logged("IDC_VIEW"), std::vector<std::string>());
}

void tst_sidepanels::theHeaderTakesClicksDownToItsDepth()
{
    QFETCH(const KnownPanel *, known);
    PanelsStage stage;
    stage.openAt(known->id);
    CollapsiblePanel &panel = stage.panel(known->id);
    for (const int fromTop : {known->clickDepth + 1, 60, panel.height() - 1}) {
        pointer::click(panel, {kFreeColumn, fromTop});
        QVERIFY(panel.GetExpanded());
    }
    pointer::click(panel, {kFreeColumn, known->clickDepth});
    QVERIFY(!panel.GetExpanded());
    pointer::click(panel, {1, std::min(known->clickDepth, panel.height() - 1)});
    QVERIFY(panel.GetExpanded());
    pointer::click(panel, {0, 0});
    QVERIFY(!panel.GetExpanded());
}

void tst_sidepanels::aReleaseElsewhereDoesNothing()
{
    QFETCH(const KnownPanel *, known);
    PanelsStage stage;
    stage.openAt(known->id);
    const CollapsiblePanel &panel = stage.panel(known->id);
    for (const QPoint there : {QPoint(kFreeColumn, 100), QPoint(60, -10), QPoint(-10, 10),
                               QPoint(190, 10), QPoint(60, panel.height() + 5)}) {
        pointer::press(panel, {60, 10});
        pointer::release(panel, there);
        QCOMPARE(stage.expanded(), std::vector{known->id});
    }
    QCOMPARE(stage.logged("IDC_VIEW"), std::vector<std::string>{known->logged});
}

void tst_sidepanels::aRightClickOnTheHeaderDoesNothing()
{
    PanelsStage stage;
    stage.toggleRight();
    for (const KnownPanel &known : kKnownPanels)
        pointer::click(stage.panel(known.id), {60, 10}, Qt::RightButton);
    QCOMPARE(stage.expanded(), std::vector<PanelId>());
}

void tst_sidepanels::aPressOnAPanelDragsNoWindow()
{
    QFETCH(const KnownPanel *, known);
    PanelsStage stage;
    stage.openAt(known->id);
    const QPoint before = stage.program.window().pos();
    const CollapsiblePanel &panel = stage.panel(known->id);
    for (const QPoint at : {QPoint(60, 10), QPoint(kFreeColumn, 200)}) {
        pointer::press(panel, at);
        for (const int way : {12, 24, 36})
            pointer::move(panel, at + QPoint(-way, way));
        pointer::release(panel, at + QPoint(-36, 36));
        QCOMPARE(stage.program.window().pos(), before);
    }
    QCOMPARE(stage.expanded(), std::vector{known->id});
}

KYR_GUI_TEST(tst_sidepanels)
#include "tst_sidepanels.moc"
