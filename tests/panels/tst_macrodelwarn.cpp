#include "macrowarnstage.h"
#include "support/menus.h"
#include "support/suite.h"

/// The warning before a macro is deleted.
class tst_macrodelwarn : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theWarningComesWhileItIsSwitchedOn_data();
    void theWarningComesWhileItIsSwitchedOn();
    void okDeletes_data();
    void okDeletes();
    void otherwiseNothingIsDeleted_data() { refusalRows(); }
    void otherwiseNothingIsDeleted();
    void theBoxSwitchesTheWarningAtOnce_data();
    void theBoxSwitchesTheWarningAtOnce();
    void theBoxIsTakenThoughTheDeletionIsNot_data() { refusalRows(); }
    void theBoxIsTakenThoughTheDeletionIsNot();
    void everyWarningBeginsUnchecked();
    void theToolsMenuSwitchesTheWarning();
    void theOtherWindowsTakeNoClicks();
};

namespace {

constexpr Ending kConfirmations[] = {
    {"a click", [](const OpenDialog &warning) { warning.click("ButtonOK"); }},
    {"Return", [](const OpenDialog &warning) { warning.key(Qt::Key_Return); }},
    {"Space", [](const OpenDialog &warning) { warning.key(Qt::Key_Space); }},
};

} // namespace

void tst_macrodelwarn::theWarningComesWhileItIsSwitchedOn_data()
{
    QTest::addColumn<unsigned>("confirm");
    QTest::addColumn<int>("warnings");
    QTest::newRow("off") << 0U << 0;
    QTest::newRow("on") << 1U << 1;
    QTest::newRow("on by another number") << 7U << 1;
}

void tst_macrodelwarn::theWarningComesWhileItIsSwitchedOn()
{
    QFETCH(unsigned, confirm);
    const MacroWarnStage stage;
    m_Config.MACRODEL_CONFIRM = confirm;
    const DialogVisitor visitor([](const OpenDialog &warning) { warning.click("ButtonOK"); });
    stage.clickDelete();
    QTEST(visitor.count(), "warnings");
    QVERIFY(stage.isDeleted());
}

void tst_macrodelwarn::okDeletes_data()
{
    QTest::addColumn<Ending>("ending");
    for (const Ending &ending : kConfirmations)
        QTest::newRow(ending.name) << ending;
}

void tst_macrodelwarn::okDeletes()
{
    QFETCH(Ending, ending);
    const MacroWarnStage stage;
    const DialogVisitor visitor([&](const OpenDialog &warning) {
        QVERIFY(!stage.isDeleted());
        ending.end(warning);
    });
    stage.clickDelete();
    QCOMPARE(visitor.count(), 1);
    QVERIFY(stage.isDeleted());
    QVERIFY(!QApplication::activeModalWidget());
    QCOMPARE(stage.program.log.lines, LogLines{"deletebuttonAction"});
    QCOMPARE(m_Config.MACRODEL_CONFIRM, 1U);
    QVERIFY(stage.isNothingSaved());
}

void tst_macrodelwarn::otherwiseNothingIsDeleted()
{
    QFETCH(Ending, ending);
    const MacroWarnStage stage;
    const Record before = copyOf();
    const DialogVisitor visitor([&](const OpenDialog &warning) { ending.end(warning); });
    stage.clickDelete();
    QCOMPARE(visitor.count(), 1);
    QVERIFY(isRecord(*before));
    QCOMPARE(stage.rows(), macroRows(3));
    QCOMPARE(stage.macros().getcursel(), 1);
    QCOMPARE(stage.program.log.lines, LogLines());
    QVERIFY(!stage.program.applyIsEnabled());
}

void tst_macrodelwarn::theBoxSwitchesTheWarningAtOnce_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::newRow("by a click") << false;
    QTest::newRow("by key") << true;
}

void tst_macrodelwarn::theBoxSwitchesTheWarningAtOnce()
{
    QFETCH(bool, byKey);
    const MacroWarnStage stage;
    m_Config.MACRODEL_CONFIRM = 7;
    stage.warned([&](const OpenDialog &warning) {
        if (byKey)
            keyboard::tabTo(warning.button("CheckButtonDel"));
        QCOMPARE(m_Config.MACRODEL_CONFIRM, 7U);
        for (const unsigned confirm : {0U, 1U, 0U, 1U}) {
            byKey ? warning.key(Qt::Key_Space) : warning.click("CheckButtonDel");
            QCOMPARE(m_Config.MACRODEL_CONFIRM, confirm);
        }
    });
    QCOMPARE(m_Config.MACRODEL_CONFIRM, 1U);
    QVERIFY(stage.isNothingSaved());
}

void tst_macrodelwarn::theBoxIsTakenThoughTheDeletionIsNot()
{
    QFETCH(Ending, ending);
    const MacroWarnStage stage;
    const DialogVisitor visitor([&](const OpenDialog &warning) {
        warning.click("CheckButtonDel");
        ending.end(warning);
    });
    stage.clickDelete();
    QCOMPARE(m_Config.MACRODEL_CONFIRM, 0U);
    QVERIFY(!stage.isDeleted());
    QVERIFY(stage.isNothingSaved());
    stage.clickDelete();
    QCOMPARE(visitor.count(), 1);
    QVERIFY(stage.isDeleted());
}

void tst_macrodelwarn::everyWarningBeginsUnchecked()
{
    const MacroWarnStage stage;
    for (int time = 0; time < 2; ++time) {
        m_Config.MACRODEL_CONFIRM = 1;
        stage.warned([](const OpenDialog &warning) {
            QVERIFY(!warning.button("CheckButtonDel").isChecked());
            warning.click("CheckButtonDel");
            QVERIFY(warning.button("CheckButtonDel").isChecked());
        });
    }
}

void tst_macrodelwarn::theToolsMenuSwitchesTheWarning()
{
    const MacroWarnStage stage;
    const DialogVisitor visitor([](const OpenDialog &warning) { warning.click("ButtonCancel"); });
    const auto flip = [&] {
        chooseFromMenu(stage.program.button("BtnToolsMenu"), {"Show macro deletion confirmation"});
    };
    const auto written = [&] {
        return stage.program.written()[QStringLiteral("MACRODEL_CONFIRM")].toInt();
    };
    flip();
    QCOMPARE(written(), 0);
    stage.clickDelete();
    QCOMPARE(visitor.count(), 0);
    QVERIFY(stage.isDeleted());
    flip();
    QCOMPARE(written(), 1);
    stage.clickDelete();
    QCOMPARE(visitor.count(), 1);
}

void tst_macrodelwarn::theOtherWindowsTakeNoClicks()
{
    const MacroWarnStage stage;
    stage.warned([&](const OpenDialog &) {
        stage.clickDelete();
        stage.clickNew();
        PanelsStage::clickRow(stage.macros(), 2, kMacroRowHeight);
        pointer::click(stage.program.mouseButton(3));
        QCOMPARE(stage.macros().getcursel(), 1);
        QCOMPARE(stage.program.log.lines, LogLines());
        QVERIFY(stage.program.buttonsOn().empty());
    });
}

KYR_GUI_TEST(tst_macrodelwarn)
#include "tst_macrodelwarn.moc"
