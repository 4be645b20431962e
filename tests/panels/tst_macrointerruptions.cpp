#include "macroeditstage.h"
#include "support/suite.h"

/// What happens while a macro is edited or its deletion is asked about.
class tst_macrointerruptions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theListFollowsAReportedProfile_data() { openings(); }
    void theListFollowsAReportedProfile();
    void okActsOnTheProfileOfThen_data();
    void okActsOnTheProfileOfThen();
    void aDeletionBeyondTheProfileOfThenDeletesNoneThatShow();
    void theRightBarMayClose_data() { openings(); }
    void theRightBarMayClose();
    void theBarMayBeClosedWhenItsButtonsAreGone();
    void theProgramMayEnd_data() { openings(); }
    void theProgramMayEnd();
    void theWindowsMayGo_data() { openings(); }
    void theWindowsMayGo();
    void theWindowsMayGoOnceItIsAnswered_data() { openings(); }
    void theWindowsMayGoOnceItIsAnswered();

private:
    static void openings();
};

namespace {

/// The program with three macros, the second one selected, and five in the fifth profile.
struct BusyStage : MacroEditStage
{
    BusyStage() : MacroEditStage(3)
    {
        m_Config.MACRODEL_CONFIRM = 1;
        for (unsigned slot = 0; slot < 5; ++slot)
            SetText(m_Config.PROFILE[4].MACRO[slot].MACRO_NAME, "F " + std::to_string(slot));
        select(1);
        program.log.lines.clear();
    }

    bool isFirstProfile(const ConfigData &before) const
    {
        return std::memcmp(&m_Config.PROFILE[0], &before.PROFILE[0], sizeof(ProfileInfo)) == 0;
    }
};

using Open = void (*)(const BusyStage &stage);

void openNew(const BusyStage &stage)
{
    stage.clickNew();
}

void openSelected(const BusyStage &stage)
{
    stage.pressTwice(1);
}

void openWarning(const BusyStage &stage)
{
    stage.clickDelete();
}

QStringList fifthRows()
{
    QStringList rows;
    for (int slot = 0; slot < 5; ++slot)
        rows << QStringLiteral("   * F %1").arg(slot);
    return rows;
}

} // namespace

void tst_macrointerruptions::openings()
{
    QTest::addColumn<Open>("open");
    QTest::newRow("new") << Open(openNew);
    QTest::newRow("editor") << Open(openSelected);
    QTest::newRow("warning") << Open(openWarning);
}

void tst_macrointerruptions::theListFollowsAReportedProfile()
{
    QFETCH(Open, open);
    BusyStage stage;
    const Record before = copyOf();
    const DialogVisitor visitor([&](const OpenDialog &dialog) {
        stage.program.reportProfile(5);
        QCOMPARE(stage.rows(), fifthRows());
        QCOMPARE(QApplication::activeModalWidget(), &dialog.window());
        dialog.click("ButtonCancel");
    });
    open(stage);
    QCOMPARE(visitor.count(), 1);
    QCOMPARE(stage.rows(), fifthRows());
    QVERIFY(isRecord(*withProfile(*before, 5)));
    stage.program.reportProfile(1);
    QCOMPARE(stage.rows(), macroRows(3));
}

void tst_macrointerruptions::okActsOnTheProfileOfThen_data()
{
    QTest::addColumn<Open>("open");
    QTest::addColumn<QStringList>("rows");
    QStringList added = fifthRows();
    added << QStringLiteral("   * Custom");
    QStringList replaced = fifthRows();
    replaced[1] = QStringLiteral("   * M 1");
    QStringList deleted = fifthRows();
    deleted.removeAt(1);
    QTest::newRow("new") << Open(openNew) << added;
    QTest::newRow("editor") << Open(openSelected) << replaced;
    QTest::newRow("warning") << Open(openWarning) << deleted;
}

void tst_macrointerruptions::okActsOnTheProfileOfThen()
{
    QFETCH(Open, open);
    BusyStage stage;
    const Record before = copyOf();
    const DialogVisitor visitor([&](const OpenDialog &dialog) {
        stage.program.reportProfile(5);
        dialog.click("ButtonOK");
    });
    open(stage);
    QTEST(stage.rows(), "rows");
    QVERIFY(stage.isFirstProfile(*before));
    QVERIFY(stage.isFileUntouched());
}

void tst_macrointerruptions::aDeletionBeyondTheProfileOfThenDeletesNoneThatShow()
{
    BusyStage stage;
    const Record before = copyOf();
    const DialogVisitor visitor([&](const OpenDialog &warning) {
        stage.program.reportProfile(2);
        QCOMPARE(stage.rows(), QStringList());
        warning.click("ButtonOK");
    });
    stage.clickDelete();
    QVERIFY(isRecord(*withProfile(*before, 2)));
    QVERIFY(!stage.program.applyIsEnabled());
}

void tst_macrointerruptions::theRightBarMayClose()
{
    QFETCH(Open, open);
    BusyStage stage;
    const DialogVisitor visitor([&](const OpenDialog &dialog) {
        stage.program.interface->controller().toggleRightBar();
        stage.arrive();
        QVERIFY(stage.lies(kRightBar, kRightBar.shut));
        QVERIFY(dialog.window().isVisible());
        dialog.click("ButtonOK");
    });
    const Record before = copyOf();
    open(stage);
    QCOMPARE(visitor.count(), 1);
    QVERIFY(stage.lies(kRightBar, kRightBar.shut));
    QVERIFY(!QApplication::activeModalWidget());
    QVERIFY(stage.isNothingSaved());
    stage.openAt(PanelId::Macro); // all goes on
    QVERIFY(stage.headerButton("btnNew").isVisible());
    stage.select(0);
    QCOMPARE(stage.macros().getcursel(), 0);
}

/// Under way, the panel of which a button has opened the dialog is hidden.
void tst_macrointerruptions::theBarMayBeClosedWhenItsButtonsAreGone()
{
    BusyStage stage;
    const DialogVisitor visitor([&](const OpenDialog &dialog) {
        stage.program.interface->controller().toggleRightBar();
        stage.passHalf();
        QVERIFY(!stage.headerButton("btnNew").isVisible());
        dialog.click("ButtonOK");
    });
    stage.clickNew();
    stage.arrive();
    QVERIFY(stage.lies(kRightBar, kRightBar.shut));
    stage.openAt(PanelId::Macro);
    QCOMPARE(stage.rows(), macroRows(3) << QStringLiteral("   * Custom"));
}

void tst_macrointerruptions::theProgramMayEnd()
{
    QFETCH(Open, open);
    const BusyStage stage;
    const Record before = copyOf();
    bool returned = false;
    const auto openIt = [&] {
        open(stage);
        returned = true;
    };
    QMetaObject::invokeMethod(qApp, openIt, Qt::QueuedConnection);
    const DialogVisitor visitor([](const OpenDialog &) { QCoreApplication::exit(7); });
    QCOMPARE(QCoreApplication::exec(), 7);
    QCOMPARE(visitor.count(), 1);
    QVERIFY(returned);
    QVERIFY(isRecord(*before));
    QVERIFY(stage.isNothingSaved());
}

void tst_macrointerruptions::theWindowsMayGo()
{
    QFETCH(Open, open);
    BusyStage stage;
    const Record before = copyOf();
    const DialogVisitor visitor([&](const OpenDialog &) { stage.program.interface.reset(); });
    open(stage);
    QCOMPARE(visitor.count(), 1);
    QVERIFY(!QApplication::activeModalWidget());
    QVERIFY(isRecord(*before));
    QVERIFY(stage.isNothingSaved());
}

/// Between the answer and what it asks for.
void tst_macrointerruptions::theWindowsMayGoOnceItIsAnswered()
{
    QFETCH(Open, open);
    BusyStage stage;
    const DialogVisitor visitor([&](const OpenDialog &dialog) {
        dialog.click("ButtonOK");
        stage.program.interface.reset();
    });
    open(stage);
    QCOMPARE(visitor.count(), 1);
    QCOMPARE(stage.program.log.count("deletebuttonAction"), 0);
    QCOMPARE(stage.program.log.count("MacroOKAction"), 0);
    QVERIFY(stage.isNothingSaved());
}

KYR_GUI_TEST(tst_macrointerruptions)
#include "tst_macrointerruptions.moc"
