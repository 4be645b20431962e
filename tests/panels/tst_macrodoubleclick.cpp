#include "macroeditstage.h"
#include "support/suite.h"

/// Double clicks in the list of macros, which open the editor.
class tst_macrodoubleclick : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDoubleClickOpensThatMacro_data();
    void aDoubleClickOpensThatMacro();
    void okChangesThatMacroOnly();
    void otherwiseTheMacroStays_data() { refusalRows(); }
    void otherwiseTheMacroStays();
    void aDoubleClickBesideTheRowsOpensANewMacro_data();
    void aDoubleClickBesideTheRowsOpensANewMacro();
    void aDoubleClickBesideTheRowsOpensTheSelectedMacro();
    void theNextClicksAreNormalOnes();
    void theRowsCarryTheirCodesAfterAnEdit();
};

void tst_macrodoubleclick::aDoubleClickOpensThatMacro_data()
{
    QTest::addColumn<int>("row");
    for (const int row : {0, 4, 11})
        QTest::addRow("%d", row) << row;
}

void tst_macrodoubleclick::aDoubleClickOpensThatMacro()
{
    QFETCH(int, row);
    const MacroEditStage stage(12);
    const DialogVisitor visitor([&](const OpenDialog &editor) {
        QCOMPARE(nameIn(editor), QStringLiteral("M %1").arg(row));
        QVERIFY(!stage.program.log.contains("MacroListDBClick"));
        editor.click("ButtonOK");
    });
    stage.doubleClickRow(row);
    QCOMPARE(visitor.count(), 1);
    const LogLines expected{"Macro Index:" + std::to_string(row), "MacroOKAction",
                            "MacroListDBClick"};
    QCOMPARE(stage.logged("Macro"), expected);
    QCOMPARE(stage.macros().getcursel(), row);
}

void tst_macrodoubleclick::okChangesThatMacroOnly()
{
    const MacroEditStage stage(12);
    CurrentProfile().MACRO[7].MACRO_LOOP = 1; // OK would make it so
    const Record expected = copyOf();
    SetText(expected->PROFILE[0].MACRO[7].MACRO_NAME, "Heal");
    const DialogVisitor visitor([](const OpenDialog &editor) {
        typeName(editor, "Heal");
        editor.click("ButtonOK");
    });
    stage.doubleClickRow(7);
    QVERIFY(isRecord(*expected));
    QCOMPARE(stage.macros().stringAt(7), QStringLiteral("   * Heal"));
    QCOMPARE(stage.macros().getCount(), 12);
    QCOMPARE(stage.macros().getcursel(), 7);
    QVERIFY(stage.isNothingSaved());
}

void tst_macrodoubleclick::otherwiseTheMacroStays()
{
    QFETCH(Ending, ending);
    const MacroEditStage stage(3);
    const Record before = copyOf();
    const DialogVisitor visitor([&](const OpenDialog &editor) {
        typeName(editor, "Heal");
        ending.end(editor);
    });
    stage.doubleClickRow(1);
    QCOMPARE(visitor.count(), 1);
    QCOMPARE(stage.logged("Macro"),
             (LogLines{"Macro Index:1", "MacroCancelAction", "MacroListDBClick"}));
    QVERIFY(isRecord(*before));
    QCOMPARE(stage.rows(), macroRows(3));
    QVERIFY(!stage.program.applyIsEnabled());
}

void tst_macrodoubleclick::aDoubleClickBesideTheRowsOpensANewMacro_data()
{
    QTest::addColumn<unsigned>("count");
    QTest::newRow("no macros") << 0U;
    QTest::newRow("none selected") << 3U;
}

void tst_macrodoubleclick::aDoubleClickBesideTheRowsOpensANewMacro()
{
    QFETCH(unsigned, count);
    const MacroEditStage stage(count);
    const DialogVisitor visitor([](const OpenDialog &editor) {
        QCOMPARE(nameIn(editor), QString());
        editor.click("ButtonOK");
    });
    stage.doubleClickRow(8);
    QCOMPARE(stage.rows(), macroRows(count) << QStringLiteral("   * Custom"));
    QCOMPARE(stage.logged("Macro"),
             (LogLines{"Macro Index:-1", "MacroOKAction", "MacroListDBClick"}));
}

void tst_macrodoubleclick::aDoubleClickBesideTheRowsOpensTheSelectedMacro()
{
    const MacroEditStage stage(3);
    stage.select(1);
    const DialogVisitor visitor([](const OpenDialog &editor) {
        QCOMPARE(nameIn(editor), QStringLiteral("M 1"));
        editor.click("ButtonCancel");
    });
    stage.doubleClickRow(8);
    QCOMPARE(visitor.count(), 1);
}

/// A double click gives the selected button its macro once, by its first release. The second comes
/// while the editor is open.
void tst_macrodoubleclick::theNextClicksAreNormalOnes()
{
    MacroEditStage stage(3);
    stage.find(9, 9);
    stage.clickHeader(PanelId::Macro);
    stage.program.log.lines.clear();
    const DialogVisitor visitor([&](const OpenDialog &editor) {
        stage.releaseIn(0);
        editor.click("ButtonCancel");
    });
    stage.pressTwice(0);
    pointer::move(stage.macros(), {20, 55});
    pointer::move(stage.macros(), {90, 30});
    QVERIFY(!stage.macros().findChild<QDrag *>());
    QCOMPARE(stage.logged("changeCurrent"), LogLines{"changeCurrentButtonFunction:100"});
    stage.program.log.lines.clear();
    stage.select(2);
    QCOMPARE(stage.program.log.lines,
             (LogLines{"Macro Index:2", "changeCurrentButtonFunction:102"}));
    QCOMPARE(PanelsStage::code(9), 258U);
    stage.clickNew();
    stage.doubleClickRow(1);
    QCOMPARE(visitor.count(), 3);
}

void tst_macrodoubleclick::theRowsCarryTheirCodesAfterAnEdit()
{
    const MacroEditStage stage(3);
    const DialogVisitor visitor([](const OpenDialog &editor) { editor.click("ButtonOK"); });
    stage.doubleClickRow(1);
    stage.clickNew();
    QCOMPARE(stage.carried(), macroCodes(4));
}

KYR_GUI_TEST(tst_macrodoubleclick)
#include "tst_macrodoubleclick.moc"
