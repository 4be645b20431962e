#include "macroeditstage.h"
#include "support/suite.h"

/// Macros made and edited from their panel.
class tst_macroediting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theEditorStandsAtTheMainWindow_data();
    void theEditorStandsAtTheMainWindow();
    void theEditorIsDraggedByItsBackground();
    void theOtherWindowsTakeNoClicks();
    void newOpensAnEditorForANewMacro();
    void okAddsTheNewMacro();
    void otherwiseNothingIsAdded_data() { refusalRows(); }
    void otherwiseNothingIsAdded();
    void aNewMacroTakesTheFirstSlotWithoutAName();
    void theFiftyFirstMacroIsLost();
};

namespace {

constexpr QSize kEditorSize{261, 522};

} // namespace

void tst_macroediting::theEditorStandsAtTheMainWindow_data()
{
    QTest::addColumn<bool>("isNew");
    QTest::newRow("new") << true;
    QTest::newRow("by a double click") << false;
}

void tst_macroediting::theEditorStandsAtTheMainWindow()
{
    QFETCH(bool, isNew);
    const MacroEditStage stage(3);
    for (const QPoint place : {stage.program.window().pos(), QPoint(70, 25)}) {
        stage.program.window().move(place);
        const DialogVisitor visitor([&](const OpenDialog &editor) {
            QVERIFY(standsAtMainWindow(editor, stage.program.window(), kEditorSize));
            QCOMPARE(editor.caption(), QStringLiteral("Custom Macro"));
            editor.click("ButtonCancel");
        });
        isNew ? stage.clickNew() : stage.doubleClickRow(1);
        QCOMPARE(visitor.count(), 1);
        QVERIFY(!QApplication::activeModalWidget());
    }
}

void tst_macroediting::theEditorIsDraggedByItsBackground()
{
    const MacroEditStage stage(3);
    const QPoint main = stage.program.window().pos();
    const DialogVisitor visitor([&](const OpenDialog &editor) {
        const QPoint way(40, -30);
        QCOMPARE(draggedBy(editor, {10, 500}, way), way);
        QCOMPARE(stage.program.window().pos(), main);
        editor.click("ButtonCancel");
    });
    stage.clickNew();
    QCOMPARE(visitor.count(), 1);
}

void tst_macroediting::theOtherWindowsTakeNoClicks()
{
    MacroEditStage stage(3);
    const Record before = copyOf();
    const DialogVisitor visitor([&](const OpenDialog &editor) {
        stage.program.log.lines.clear();
        pointer::click(stage.program.mouseButton(3));
        stage.clickNew();
        stage.clickDelete();
        PanelsStage::clickRow(stage.macros(), 2, kMacroRowHeight);
        stage.doubleClickRow(1);
        stage.clickHeader(PanelId::Cpi);
        pointer::click(stage.toggle(kRightBar));
        QCOMPARE(stage.logged("Macro"), LogLines());
        QVERIFY(stage.program.buttonsOn().empty());
        QCOMPARE(stage.macros().getcursel(), -1);
        QCOMPARE(stage.expanded(), std::vector{PanelId::Macro});
        editor.click("ButtonCancel");
    });
    stage.clickNew();
    QCOMPARE(visitor.count(), 1);
    QVERIFY(isRecord(*before));
}

void tst_macroediting::newOpensAnEditorForANewMacro()
{
    const MacroEditStage stage(3);
    stage.select(1);
    const DialogVisitor visitor([](const OpenDialog &editor) {
        QCOMPARE(nameIn(editor), QString());
        QVERIFY(editor.button("ButtonText").isChecked());
        editor.click("ButtonCancel");
    });
    stage.clickNew();
    QCOMPARE(visitor.count(), 1);
}

void tst_macroediting::okAddsTheNewMacro()
{
    MacroEditStage stage(2);
    const char *name = "";
    const DialogVisitor visitor([&](const OpenDialog &editor) {
        typeName(editor, name);
        editor.click("ButtonOK");
    });
    for (const char *next : {"", "Heal"}) {
        name = next;
        stage.program.log.lines.clear();
        stage.clickNew();
        QCOMPARE(stage.logged("Macro"), LogLines{"MacroOKAction"});
    }
    QCOMPARE(stage.rows(), macroRows(2)
                               << QStringLiteral("   * Custom") << QStringLiteral("   * Heal"));
    QCOMPARE(CurrentProfile().MACRO[2].MODE, std::uint32_t{kModeText});
    QVERIFY(stage.isNothingSaved());
}

void tst_macroediting::otherwiseNothingIsAdded()
{
    QFETCH(Ending, ending);
    const MacroEditStage stage(2);
    const Record before = copyOf();
    const DialogVisitor visitor([&](const OpenDialog &editor) {
        typeName(editor, "Heal");
        ending.end(editor);
    });
    stage.clickNew();
    QCOMPARE(visitor.count(), 1);
    QCOMPARE(stage.logged("Macro"), LogLines{"MacroCancelAction"});
    QCOMPARE(stage.rows(), macroRows(2));
    QVERIFY(isRecord(*before));
    QVERIFY(!stage.program.applyIsEnabled());
    QVERIFY(stage.isNothingSaved());
}

void tst_macroediting::aNewMacroTakesTheFirstSlotWithoutAName()
{
    MacroEditStage stage(5);
    nameMacro(2, "");
    stage.listAgain();
    QCOMPARE(stage.rows(), macroRows(2));
    const DialogVisitor visitor([](const OpenDialog &editor) { editor.click("ButtonOK"); });
    stage.clickNew();
    QStringList expected = macroRows(5);
    expected[2] = QStringLiteral("   * Custom");
    QCOMPARE(stage.rows(), expected);
}

void tst_macroediting::theFiftyFirstMacroIsLost()
{
    const MacroEditStage stage(50);
    const Record before = copyOf();
    const DialogVisitor visitor([](const OpenDialog &editor) { editor.click("ButtonOK"); });
    stage.clickNew();
    QCOMPARE(visitor.count(), 1); // without a message
    QVERIFY(isRecord(*before));
    QCOMPARE(stage.rows(), macroRows(50));
    QCOMPARE(stage.logged("Macro"), LogLines{"MacroOKAction"});
    QVERIFY(!stage.program.applyIsEnabled());
}

KYR_GUI_TEST(tst_macroediting)
#include "tst_macroediting.moc"
