#include "macroeditstage.h"
#include "support/paintwatch.h"
#include "support/suite.h"

/// Macros deleted from their panel, without a warning.
class tst_macrodeletion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theMacrosBehindMoveUp_data();
    void theMacrosBehindMoveUp();
    void theButtonsKeepTheirCodes();
    void theMacrosBehindAGapMoveToo();
    void withoutASelectionNothingIsDeleted_data();
    void withoutASelectionNothingIsDeleted();
    void aSelectionBeyondTheSlotsDeletesNothing();
    void theSelectionStaysAtItsRow_data();
    void theSelectionStaysAtItsRow();
    void deletingAgainTakesTheNext();
    void theListKeepsItsHeight();
    void theLastRowsStayInSight();
    void theRowsCarryTheirNewCodes();
    void aClickGivesTheNewCode();
    void thePanelIsDrawnAnew();
    void aCollapsedPanelDeletesItsSelection();
};

void tst_macrodeletion::theMacrosBehindMoveUp_data()
{
    QTest::addColumn<unsigned>("count");
    QTest::addColumn<int>("slot");
    QTest::newRow("the first of all") << 50U << 0;
    QTest::newRow("one in the middle of all") << 50U << 23;
    QTest::newRow("the last of all") << 50U << 49;
    QTest::newRow("the first of a few") << 5U << 0;
    QTest::newRow("the last of a few") << 5U << 4;
    QTest::newRow("the only one") << 1U << 0;
}

/// All bytes of every macro, and of all else in the record.
void tst_macrodeletion::theMacrosBehindMoveUp()
{
    QFETCH(unsigned, count);
    QFETCH(int, slot);
    MacroEditStage stage(0);
    stage.fillAll(count);
    const Record expected = copyOf();
    auto &macros = expected->PROFILE[2].MACRO;
    for (int i = slot; i < 49; ++i)
        macros[i] = macros[i + 1];
    macros[49] = {};
    QStringList rows = macroRows(count);
    rows.removeAt(slot);
    stage.select(slot);
    stage.program.log.lines.clear();
    stage.clickDelete();
    QVERIFY(isRecord(*expected));
    QCOMPARE(stage.rows(), rows);
    QCOMPARE(stage.program.log.lines, LogLines{"deletebuttonAction"});
    QVERIFY(stage.isNothingSaved());
}

void tst_macrodeletion::theButtonsKeepTheirCodes()
{
    MacroEditStage stage(20);
    const std::vector<FunctionCode> codes{256, 264, 265, 266, 275, 276, 305,
                                          306, 32,  18,  4,   9,   0,   0x2009};
    std::ranges::copy(codes, CurrentProfile().BUTTON);
    stage.program.reportProfile(1);
    stage.select(9);
    stage.clickDelete();
    QCOMPARE(std::vector(std::begin(CurrentProfile().BUTTON), std::end(CurrentProfile().BUTTON)),
             codes);
}

void tst_macrodeletion::theMacrosBehindAGapMoveToo()
{
    MacroEditStage stage(6);
    nameMacro(3, "");
    stage.listAgain();
    stage.select(0);
    stage.clickDelete();
    QCOMPARE(stage.rows(), macroRows(3).mid(1));
    QCOMPARE(GetText(CurrentProfile().MACRO[2].MACRO_NAME), std::string_view());
    QCOMPARE(GetText(CurrentProfile().MACRO[4].MACRO_NAME), std::string_view("M 5"));
}

void tst_macrodeletion::withoutASelectionNothingIsDeleted_data()
{
    QTest::addColumn<unsigned>("count");
    QTest::addColumn<unsigned>("confirm");
    for (const unsigned count : {0U, 3U, 50U}) {
        for (const unsigned confirm : {0U, 1U})
            QTest::addRow("%u macros, confirm %u", count, confirm) << count << confirm;
    }
}

void tst_macrodeletion::withoutASelectionNothingIsDeleted()
{
    QFETCH(unsigned, count);
    QFETCH(unsigned, confirm);
    const MacroEditStage stage(count);
    m_Config.MACRODEL_CONFIRM = confirm;
    const Record before = copyOf();
    const DialogVisitor visitor([](const OpenDialog &warning) { warning.click("ButtonOK"); });
    stage.clickDelete();
    QCOMPARE(visitor.count(), static_cast<int>(confirm));
    QVERIFY(isRecord(*before));
    QCOMPARE(stage.rows(), macroRows(count));
    QCOMPARE(stage.program.log.lines, LogLines{"deletebuttonAction"});
    QVERIFY(!stage.program.applyIsEnabled());
    QVERIFY(stage.isNothingSaved());
}

/// A button may be found at one past the slots.
void tst_macrodeletion::aSelectionBeyondTheSlotsDeletesNothing()
{
    MacroEditStage stage(50);
    stage.find(7, 306);
    const Record before = copyOf();
    stage.clickDelete();
    QVERIFY(isRecord(*before));
    QVERIFY(!stage.program.applyIsEnabled());
}

void tst_macrodeletion::theSelectionStaysAtItsRow_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("after");
    QTest::newRow("the first") << 0 << 0;
    QTest::newRow("the last but one") << 3 << 3;
    QTest::newRow("the last") << 4 << -1;
}

void tst_macrodeletion::theSelectionStaysAtItsRow()
{
    QFETCH(int, row);
    const MacroEditStage stage(5);
    stage.select(row);
    stage.clickDelete();
    QTEST(stage.macros().getcursel(), "after");
}

void tst_macrodeletion::deletingAgainTakesTheNext()
{
    const MacroEditStage stage(3);
    stage.select(0);
    for (unsigned deleted = 1; deleted <= 3; ++deleted) {
        stage.clickDelete();
        QCOMPARE(stage.rows(), macroRows(3).mid(deleted));
    }
    const Record empty = copyOf();
    stage.clickDelete();
    QVERIFY(isRecord(*empty));
    QCOMPARE(stage.program.log.count("deletebuttonAction"), 4);
}

void tst_macrodeletion::theListKeepsItsHeight()
{
    const MacroEditStage stage(14);
    stage.select(0);
    for (int left = 13; left >= 0; --left) {
        stage.clickDelete();
        QCOMPARE(stage.macros().getCount(), left);
        QCOMPARE(stage.macros().size(), QSize(175, 280));
    }
}

/// Although the list is as high as before, it is not scrolled beyond its rows.
void tst_macrodeletion::theLastRowsStayInSight()
{
    const MacroEditStage stage(20);
    stage.select(18);
    QCOMPARE(stage.scroll().verticalScrollBar()->value(), 160);
    stage.clickDelete();
    QCOMPARE(stage.scroll().verticalScrollBar()->value(), 140);
    QVERIFY(stage.showsWhole(18));
    QVERIFY(stage.showsWhole(7));
}

void tst_macrodeletion::theRowsCarryTheirNewCodes()
{
    const MacroEditStage stage(8);
    stage.select(2);
    stage.clickDelete();
    QCOMPARE(stage.carried(), macroCodes(7));
}

void tst_macrodeletion::aClickGivesTheNewCode()
{
    MacroEditStage stage(8);
    stage.find(7, 9);
    stage.clickHeader(PanelId::Macro);
    stage.select(2);
    stage.clickDelete();
    QCOMPARE(PanelsStage::code(7), 258U);
    stage.select(5);
    QCOMPARE(PanelsStage::code(7), 261U);
    QCOMPARE(stage.program.mouseButton(7).captionText(), QStringLiteral("M 6"));
}

void tst_macrodeletion::thePanelIsDrawnAnew()
{
    const MacroEditStage stage(3);
    stage.select(0);
    QCoreApplication::processEvents();
    const PaintWatch watch(stage.panel(PanelId::Macro));
    pointer::click(stage.headerButton("btnDelete"));
    // In the header, clear of the buttons.
    QTRY_VERIFY(watch.hasPainted({100, 12}));
}

void tst_macrodeletion::aCollapsedPanelDeletesItsSelection()
{
    const MacroEditStage stage(3);
    stage.select(1);
    stage.clickHeader(PanelId::Macro);
    stage.clickDelete();
    QCOMPARE(stage.rows(), QStringList({QStringLiteral("   * M 0"), QStringLiteral("   * M 2")}));
    QVERIFY(stage.expanded().empty());
}

KYR_GUI_TEST(tst_macrodeletion)
#include "tst_macrodeletion.moc"
