#include "controls/pngProgressBar.h"
#include "macroeditstage.h"
#include "mainview/quickliststage.h"
#include "support/suite.h"

/// What the main window shows once macros were edited or deleted.
class tst_macrochanges : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void applyIsEnabled_data();
    void applyIsEnabled();
    void theButtonsShowTheNamesOfNow_data();
    void theButtonsShowTheNamesOfNow();
    void theOtherCaptionsStay_data();
    void theOtherCaptionsStay();
    void theGaugeFollowsTheEditor();
    void theGaugeFollowsADeletion();
    void anEditGivesNoFunction();
    void appliedMacrosAreInTheFile();
    void aDroppedDeletionIsUndone();
};

namespace {

/// A way to change the macros, of which the second one is selected.
using Change = void (*)(const MacroEditStage &stage);

void confirmAs(const OpenDialog &editor)
{
    typeName(editor, "Heal");
    editor.click("ButtonOK");
}

void create(const MacroEditStage &stage)
{
    const DialogVisitor visitor(confirmAs);
    stage.clickNew();
}

void edit(const MacroEditStage &stage)
{
    const DialogVisitor visitor(confirmAs);
    stage.doubleClickRow(1);
}

void deleteSelected(const MacroEditStage &stage)
{
    stage.clickDelete();
}

QStringList names(std::initializer_list<const char *> texts)
{
    QStringList list;
    for (const char *text : texts)
        list << QLatin1String(text);
    return list;
}

void changeRows()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<QStringList>("captions");
    QTest::newRow("new") << Change(create) << names({"M 0", "M 1", "M 2", "Heal"});
    QTest::newRow("edited") << Change(edit) << names({"M 0", "Heal", "M 2", ""});
    QTest::newRow("deleted") << Change(deleteSelected) << names({"M 0", "M 2", "", ""});
}

/// Three macros, the second one selected, on buttons 5 to 8, and a fourth code without one.
struct ChangeStage : MacroEditStage
{
    ChangeStage() : MacroEditStage(3)
    {
        std::ranges::fill(CurrentProfile().BUTTON, 1U);
        for (FunctionCode k = 0; k < 4; ++k)
            code(static_cast<int>(5 + k)) = 256 + k;
        program.reportProfile(1);
        select(1);
    }

    QString caption(int number) const { return program.mouseButton(number).captionText(); }
    int gauge() const
    {
        return program.view()
            .findChild<pngProgressBar *>(QStringLiteral("MSMemoryUsageBar"))
            ->getPos();
    }
    /// Makes a macro of 602 bytes in the mouse's memory; with it the profile takes 5 units.
    void makeLarge(unsigned slot)
    {
        MacroInfo &macro = CurrentProfile().MACRO[slot];
        macro.MODE = kModeNoDelay;
        macro.MACRO_LOOP = 1;
        std::fill_n(macro.KEYMAP, 300, KeymapEvent{4, 1, 0});
        program.reportProfile(1);
    }
};

} // namespace

void tst_macrochanges::applyIsEnabled_data()
{
    changeRows();
}

void tst_macrochanges::applyIsEnabled()
{
    QFETCH(Change, change);
    const ChangeStage stage;
    QVERIFY(!stage.program.applyIsEnabled());
    change(stage);
    QVERIFY(stage.program.applyIsEnabled());
}

void tst_macrochanges::theButtonsShowTheNamesOfNow_data()
{
    changeRows();
}

void tst_macrochanges::theButtonsShowTheNamesOfNow()
{
    QFETCH(Change, change);
    QFETCH(QStringList, captions);
    const ChangeStage stage;
    change(stage);
    for (int k = 0; k < 4; ++k) {
        QCOMPARE(stage.caption(5 + k), captions[k]);
        QCOMPARE(PanelsStage::code(5 + k), 256U + static_cast<FunctionCode>(k));
    }
}

void tst_macrochanges::theOtherCaptionsStay_data()
{
    changeRows();
}

/// The quick list's texts are not those of the rebuilt captions, and stay.
void tst_macrochanges::theOtherCaptionsStay()
{
    QFETCH(Change, change);
    ChangeStage stage;
    pointer::rightClick(stage.program.mouseButton(3));
    QCOMPARE(openLists().size(), std::size_t{1});
    const auto &list =
        *openLists().front()->findChild<pngListBox *>(QStringLiteral("pListboxView"));
    clickRow(list, 3);
    QTRY_VERIFY(openLists().empty());
    QCOMPARE(stage.caption(3), QStringLiteral("Mouse Button 4"));
    stage.find(10, 257); // the clicks to come are for another button
    change(stage);
    QCOMPARE(stage.caption(3), QStringLiteral("Mouse Button 4"));
    QCOMPARE(stage.caption(1), QStringLiteral("Left-Click"));
}

void tst_macrochanges::theGaugeFollowsTheEditor()
{
    ChangeStage stage;
    stage.makeLarge(1);
    QCOMPARE(stage.program.view().memoryUsage(), 5U);
    const DialogVisitor visitor([](const OpenDialog &editor) {
        editor.click("ButtonClear");
        editor.click("ButtonOK");
    });
    stage.doubleClickRow(1);
    QCOMPARE(stage.program.view().memoryUsage(), 0U);
    QCOMPARE(stage.gauge(), 0);
}

void tst_macrochanges::theGaugeFollowsADeletion()
{
    ChangeStage stage;
    stage.makeLarge(1);
    QCOMPARE(stage.gauge(), 5);
    stage.clickDelete();
    QCOMPARE(stage.program.view().memoryUsage(), 0U);
    QCOMPARE(stage.gauge(), 0);
}

void tst_macrochanges::anEditGivesNoFunction()
{
    ChangeStage stage;
    stage.find(9, 9);
    stage.clickHeader(PanelId::Macro);
    stage.program.log.lines.clear();
    create(stage);
    QCOMPARE(PanelsStage::code(9), 9U);
    QVERIFY(stage.logged("changeCurrentButtonFunction").empty());
}

void tst_macrochanges::appliedMacrosAreInTheFile()
{
    const ChangeStage stage;
    edit(stage);
    create(stage);
    stage.select(0);
    stage.clickDelete();
    QVERIFY(stage.isNothingSaved());
    const Record edited = copyOf();
    pointer::click(stage.program.button("ButtonApply"));
    QVERIFY(isInFile(stage.program.settings.bytes(), *edited));
    QCOMPARE(stage.rows(), QStringList({QStringLiteral("   * Heal"), QStringLiteral("   * M 2"),
                                        QStringLiteral("   * Heal")}));
}

/// The question before another profile is shown drops what was not saved.
void tst_macrochanges::aDroppedDeletionIsUndone()
{
    const ChangeStage stage;
    create(stage);
    pointer::click(stage.program.button("ButtonApply"));
    const QStringList applied = stage.rows();
    stage.clickDelete();
    QCOMPARE(stage.macros().getCount(), 3);
    const DialogVisitor visitor([](const OpenDialog &question) { question.click("ButtonCancel"); });
    for (const int number : {2, 1})
        pointer::click(stage.program.profileKey(number));
    QCOMPARE(visitor.count(), 1);
    QCOMPARE(stage.rows(), applied);
    QCOMPARE(stage.caption(6), QStringLiteral("M 1"));
}

KYR_GUI_TEST(tst_macrochanges)
#include "tst_macrochanges.moc"
