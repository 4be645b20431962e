#include "macro/rightbarMacro.h"
#include "macrostage.h"
#include "support/paintwatch.h"
#include "support/suite.h"

/// The panel with the macros of the current profile.
class tst_macropanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thePartsHaveTheirPlaces();
    void theMacrosAreListedUpToTheFirstWithoutAName_data();
    void theMacrosAreListedUpToTheFirstWithoutAName();
    void aNewPanelListsThemAtOnce();
    void theMacrosAreThoseOfTheCurrentProfile();
    void theListIsReadAgainAsThePanelExpands();
    void theOpenListFollowsAChangeOfTheProfile();
    void aProfileWithFewerMacrosShowsThemAndSelectsNone();
    void aCollapsedListFollowsAChangeOfTheProfile_data();
    void aCollapsedListFollowsAChangeOfTheProfile();
    void aProfileWithAsManyMacrosKeepsTheSelectedRow();
    void theListGrowsBeyondElevenRows_data();
    void theListGrowsBeyondElevenRows();
    void aListThatGetsEmptyIsDrawnAgain();
    void theScrollBarTakesNoRoom();
    void newAndDeleteAreThereInBothStates();
    void newAndDeleteShowOnlyOnABarThatStandsOpen();
};

void tst_macropanel::thePartsHaveTheirPlaces()
{
    MacroStage stage(3);
    stage.toggleRight();
    const auto lies = [&](UpRect key, UpRect list, UpRect create, UpRect remove) {
        return placeOf(stage.expandKey(PanelId::Macro)) == key && placeOf(stage.scroll()) == list &&
               placeOf(stage.headerButton("btnNew")) == create &&
               placeOf(stage.headerButton("btnDelete")) == remove;
    };
    for (int round = 0; round < 2; ++round) {
        QVERIFY(lies({156, 28, 17, 18}, {0, 50, 175, 220}, {10, 0, 74, 27}, {90, 0, 74, 27}));
        QVERIFY(!stage.scroll().isVisible());
        stage.clickHeader(PanelId::Macro);
        QVERIFY(lies({156, 268, 17, 18}, {0, 0, 175, 240}, {10, 240, 74, 27}, {90, 240, 74, 27}));
        QVERIFY(stage.scroll().isVisible());
        QCOMPARE(stage.macros().size(), QSize(175, 240));
        stage.clickHeader(PanelId::Macro);
    }
}

void tst_macropanel::theMacrosAreListedUpToTheFirstWithoutAName_data()
{
    QTest::addColumn<unsigned>("count");
    for (const unsigned count : {0U, 1U, 11U, 12U, 50U})
        QTest::addRow("%u", count) << count;
}

void tst_macropanel::theMacrosAreListedUpToTheFirstWithoutAName()
{
    QFETCH(unsigned, count);
    MacroStage stage(count);
    if (count + 1 < kMacroCount)
        nameMacro(count + 1, "behind a gap");
    stage.openAt(PanelId::Macro);
    QCOMPARE(stage.rows(), macroRows(count));
}

void tst_macropanel::aNewPanelListsThemAtOnce()
{
    m_Config = {};
    nameMacros(4);
    View window;
    const rightbarMacro panel(&window, {0, 0, 177, 290}, {});
    auto *const list = panel.findChild<QWidget *>(QStringLiteral("pMacroListbox"));
    QCOMPARE(static_cast<pngListBox *>(list)->getCount(), 4);
}

void tst_macropanel::theMacrosAreThoseOfTheCurrentProfile()
{
    MacroStage stage(2);
    stage.program.reportProfile(4);
    nameMacro(0, "Überfall");
    stage.openAt(PanelId::Macro);
    QCOMPARE(stage.rows(), QStringList(QStringLiteral("   * Überfall")));
}

void tst_macropanel::theListIsReadAgainAsThePanelExpands()
{
    MacroStage stage(2);
    stage.openAt(PanelId::Macro);
    nameMacros(3);
    QCOMPARE(stage.rows(), macroRows(2));
    stage.clickHeader(PanelId::Macro);
    QCOMPARE(stage.rows(), macroRows(2));
    stage.clickHeader(PanelId::Macro);
    QCOMPARE(stage.rows(), macroRows(3));
    nameMacros(4);
    stage.find(7, 256);
    QCOMPARE(stage.rows(), macroRows(4));
}

void tst_macropanel::theOpenListFollowsAChangeOfTheProfile()
{
    MacroStage stage(2);
    SetText(m_Config.PROFILE[4].MACRO[0].MACRO_NAME, "of another profile");
    stage.openAt(PanelId::Macro);
    stage.program.reportProfile(5);
    QCOMPARE(stage.rows(), QStringList(QStringLiteral("   * of another profile")));
    stage.program.reportProfile(1);
    QCOMPARE(stage.rows(), macroRows(2));
}

void tst_macropanel::aProfileWithFewerMacrosShowsThemAndSelectsNone()
{
    MacroStage stage(20);
    SetText(m_Config.PROFILE[4].MACRO[0].MACRO_NAME, "the only one");
    stage.find(7, 275);
    QVERIFY(!stage.showsWhole(0));
    stage.program.reportProfile(5);
    QCOMPARE(stage.macros().getcursel(), -1);
    QVERIFY(stage.showsWhole(0));
    QCOMPARE(stage.macros().height(), 400);
}

void tst_macropanel::aCollapsedListFollowsAChangeOfTheProfile_data()
{
    QTest::addColumn<bool>("shut");
    QTest::newRow("collapsed") << false;
    QTest::newRow("on a shut bar") << true;
}

/// Its "Delete" shows, and must not delete a macro that was never selected.
void tst_macropanel::aCollapsedListFollowsAChangeOfTheProfile()
{
    QFETCH(bool, shut);
    MacroStage stage(3);
    SetText(m_Config.PROFILE[4].MACRO[0].MACRO_NAME, "the only one");
    stage.openAt(PanelId::Macro);
    PanelsStage::clickRow(stage.macros(), 2, kMacroRowHeight);
    shut ? stage.toggleRight() : stage.clickHeader(PanelId::Macro);
    stage.program.reportProfile(5);
    if (shut)
        stage.toggleRight();
    QVERIFY(stage.expanded().empty());
    QCOMPARE(stage.rows(), QStringList(QStringLiteral("   * the only one")));
    QCOMPARE(stage.macros().getcursel(), -1);
    stage.clickHeader(PanelId::Macro);
    QCOMPARE(stage.macros().getcursel(), -1);
}

void tst_macropanel::aProfileWithAsManyMacrosKeepsTheSelectedRow()
{
    MacroStage stage(2);
    SetText(m_Config.PROFILE[4].MACRO[0].MACRO_NAME, "first");
    SetText(m_Config.PROFILE[4].MACRO[1].MACRO_NAME, "second");
    stage.find(7, 257);
    stage.program.reportProfile(5);
    QCOMPARE(stage.macros().getcursel(), 1);
}

void tst_macropanel::theListGrowsBeyondElevenRows_data()
{
    QTest::addColumn<unsigned>("count");
    QTest::addColumn<int>("height");
    QTest::newRow("none") << 0U << 240;
    QTest::newRow("all that fit") << 11U << 240;
    QTest::newRow("one more") << 12U << 240; // twelve rows of 20
    QTest::newRow("and one more") << 13U << 260;
    QTest::newRow("all") << 50U << 1000;
}

void tst_macropanel::theListGrowsBeyondElevenRows()
{
    QFETCH(unsigned, count);
    QFETCH(int, height);
    MacroStage stage(count);
    stage.openAt(PanelId::Macro);
    QCOMPARE(stage.macros().size(), QSize(175, height));
    QCOMPARE(stage.scroll().verticalScrollBar()->maximum(), height - 240);
    QVERIFY(!stage.scroll().horizontalScrollBar()->isVisible());
}

void tst_macropanel::aListThatGetsEmptyIsDrawnAgain()
{
    MacroStage stage(2);
    stage.openAt(PanelId::Macro);
    QCoreApplication::processEvents();
    const PaintWatch watch(stage.macros());
    stage.program.reportProfile(5);
    QCOMPARE(stage.rows(), QStringList());
    QTRY_VERIFY(watch.hasPainted({40, 10}));
}

void tst_macropanel::theScrollBarTakesNoRoom()
{
    MacroStage stage(50);
    stage.openAt(PanelId::Macro);
    const QScrollBar &bar = *stage.scroll().verticalScrollBar();
    QTRY_VERIFY(bar.isVisible());
    QCOMPARE(stage.scroll().viewport()->size(), QSize(175, 240));
    QCOMPARE(QRect(bar.mapTo(&stage.scroll(), QPoint()), bar.size()), QRect(168, 0, 7, 240));
}

void tst_macropanel::newAndDeleteAreThereInBothStates()
{
    MacroStage stage(3);
    stage.toggleRight();
    const std::pair<const char *, const char *> buttons[] = {{"btnNew", "New"},
                                                             {"btnDelete", "Delete"}};
    for (const bool expand : {false, true}) {
        if (expand)
            stage.clickHeader(PanelId::Macro);
        for (const auto &[name, caption] : buttons) {
            const HoverButton &button = stage.headerButton(name);
            QVERIFY(button.isVisible() && button.isEnabled());
            QCOMPARE(button.captionText(), QLatin1String(caption));
        }
    }
}

void tst_macropanel::newAndDeleteShowOnlyOnABarThatStandsOpen()
{
    MacroStage stage(0);
    const auto bothShow = [&](bool shown) {
        return stage.headerButton("btnNew").isVisible() == shown &&
               stage.headerButton("btnDelete").isVisible() == shown;
    };
    for (int round = 0; round < 2; ++round) {
        QVERIFY(bothShow(false));
        pointer::click(stage.toggle(kRightBar));
        stage.passHalf();
        QVERIFY(bothShow(false));
        stage.arrive();
        QVERIFY(bothShow(true));
        pointer::click(stage.toggle(kRightBar));
        QVERIFY(bothShow(false));
        stage.arrive();
    }
}

KYR_GUI_TEST(tst_macropanel)
#include "tst_macropanel.moc"
