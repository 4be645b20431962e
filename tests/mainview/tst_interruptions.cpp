#include "fullsettings.h"
#include "progressstage.h"
#include "quickliststage.h"
#include "support/dialogs.h"
#include "support/drop.h"
#include "support/menus.h"
#include "support/suite.h"

/// What happens while something else goes on: reports of the driver process behind a dialog or
/// during a drag, and the end of the program with a dialog open.
class tst_interruptions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reportsBehindADialogAreTakenAtOnce_data();
    void reportsBehindADialogAreTakenAtOnce();
    void reportsBehindAListOrMenuAreTakenAtOnce_data();
    void reportsBehindAListOrMenuAreTakenAtOnce();
    void reportsBehindAFilePanelAreTakenAtOnce_data();
    void reportsBehindAFilePanelAreTakenAtOnce();
    void theAnswerFollowsAReportedProfile_data();
    void theAnswerFollowsAReportedProfile();
    void theOnBoardWriteMayEndBehindTheQuestion();
    void aReportedProfileDoesNotStopADrag();
    void theEndOfTheProgramAnswersNoDialog_data() { dialogRows(); }
    void theEndOfTheProgramAnswersNoDialog();
    void theWindowsMayGoDuringADialog_data() { dialogRows(); }
    void theWindowsMayGoDuringADialog();
    void theWindowsMayGoBehindAListOrMenu_data();
    void theWindowsMayGoBehindAListOrMenu();

private:
    static void dialogRows();
};

namespace {

struct BusyStage : ProgressStage
{
    BusyStage() : ProgressStage(fullSettings()) {}

    void edit() const { dropText(mouseButton(5), QStringLiteral("11")); }
    /// A profile that the mouse can store is current.
    void makeStorable() const { std::fill_n(m_Config.PROFILE[2].BUTTON, kButtonCount, 9U); }

    void ask() const
    {
        edit();
        pointer::click(profileKey(8));
    }
    void warn() const
    {
        dropText(mouseButton(5), QStringLiteral("42"));
        saveOnBoard();
    }
    void tellVersions() const { chooseFromMenu(button("BtnHelpMenu"), {"About"}); }
    void openList() const { pointer::rightClick(mouseButton(5)); }
    void openMenu() const { pointer::click(button("BtnToolsMenu")); }

    bool isFileUntouched() const { return settings.bytes() == fullSettings(); }
};

/// Opens something: a dialog, which is over when this returns, or a list or menu, which is not.
struct Opening
{
    const char *name;
    void (BusyStage::*open)() const;
};

constexpr Opening kDialogs[] = {
    {"question", &BusyStage::ask},
    {"warning", &BusyStage::warn},
    {"versions", &BusyStage::tellVersions},
};
constexpr Opening kOthers[] = {
    {"list", &BusyStage::openList},
    {"menu", &BusyStage::openMenu},
};

/// A report, and whether it has been taken.
struct Report
{
    const char *name;
    void (*send)(BusyStage &stage);
    bool (*isTaken)(const BusyStage &stage);
};

constexpr Report kReports[] = {
    {"profile", [](BusyStage &stage) { stage.reportProfile(5); },
     [](const BusyStage &stage) {
         return m_Config.PROFILE_ID == 4 && stage.profileKeysOn() == std::vector{5} &&
                stage.mouseButton(1).captionText() == QLatin1String("Profile 5");
     }},
    {"progress", [](BusyStage &stage) { stage.progress(60); },
     [](const BusyStage &stage) {
         return stage.showsProgress() && stage.progressView().progressPos() == 60;
     }},
    {"end of progress", [](BusyStage &stage) { stage.progress(100); },
     [](const BusyStage &stage) { return !stage.showsProgress(); }},
    {"firmware", [](BusyStage &stage) { stage.report("Kt7R4DeviceFWVersion", "Kt7R4FWNumber", 9); },
     [](const BusyStage &stage) { return stage.view().firmwareNumber() == 9; }},
    {"lift distance",
     [](BusyStage &stage) { stage.report("Kt7R4LiftDistance", "Kt7R4LiftDistance", 2); },
     [](const BusyStage &stage) { return stage.view().liftDistance() == 2; }},
};

void reportRows(std::span<const Opening> openings)
{
    QTest::addColumn<Opening>("opening");
    QTest::addColumn<Report>("report");
    for (const Opening &opening : openings) {
        for (const Report &report : kReports)
            QTest::addRow("%s, %s", opening.name, report.name) << opening << report;
    }
}

void openingRows(std::span<const Opening> openings)
{
    QTest::addColumn<Opening>("opening");
    for (const Opening &opening : openings)
        QTest::newRow(opening.name) << opening;
}

/// Whether a list or a menu is open.
bool isSomethingOpen()
{
    return !openLists().empty() || QApplication::activePopupWidget();
}

bool isAnyWindowLeft()
{
    return std::ranges::any_of(QApplication::topLevelWidgets(),
                               [](const QWidget *window) { return window->isVisible(); });
}

} // namespace

void tst_interruptions::dialogRows()
{
    openingRows(kDialogs);
}

void tst_interruptions::reportsBehindADialogAreTakenAtOnce_data()
{
    reportRows(kDialogs);
}

void tst_interruptions::reportsBehindADialogAreTakenAtOnce()
{
    QFETCH(Opening, opening);
    QFETCH(Report, report);
    BusyStage stage;
    stage.makeStorable();
    stage.saveOnBoard();
    QVERIFY(!report.isTaken(stage));
    const DialogVisitor visitor([&](const OpenDialog &dialog) {
        report.send(stage);
        QVERIFY(report.isTaken(stage));
        QCOMPARE(QApplication::activeModalWidget(), &dialog.window());
        dialog.click("ButtonClose");
    });
    (stage.*opening.open)();
    QCOMPARE(visitor.count(), 1);
    QVERIFY(!QApplication::activeModalWidget());
    pointer::click(stage.profileKey(2)); // all goes on
    QCOMPARE(stage.profileKeysOn(), std::vector{2});
}

void tst_interruptions::reportsBehindAListOrMenuAreTakenAtOnce_data()
{
    reportRows(kOthers);
}

void tst_interruptions::reportsBehindAListOrMenuAreTakenAtOnce()
{
    QFETCH(Opening, opening);
    QFETCH(Report, report);
    BusyStage stage;
    stage.makeStorable();
    stage.saveOnBoard();
    (stage.*opening.open)();
    QVERIFY(isSomethingOpen());
    report.send(stage);
    QVERIFY(report.isTaken(stage));
    QVERIFY(isSomethingOpen());
}

void tst_interruptions::reportsBehindAFilePanelAreTakenAtOnce_data()
{
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<Report>("report");
    for (const char *command : {"Import Profile", "Export Profile"}) {
        for (const Report &report : kReports)
            QTest::addRow("%s, %s", command, report.name) << QByteArray(command) << report;
    }
}

void tst_interruptions::reportsBehindAFilePanelAreTakenAtOnce()
{
    QFETCH(QByteArray, command);
    QFETCH(Report, report);
    BusyStage stage;
    stage.makeStorable();
    stage.saveOnBoard();
    stage.panels.meanwhile = [&] {
        report.send(stage);
        QVERIFY(report.isTaken(stage));
    };
    chooseFromMenu(stage.button("BtnProfileMenu"), {command.constData()});
    QCOMPARE(stage.panels.questions.size(), std::size_t{1});
    QVERIFY(report.isTaken(stage));
}

void tst_interruptions::theAnswerFollowsAReportedProfile_data()
{
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<int>("inTheFile");
    QTest::newRow("OK") << QByteArray("ButtonOK") << 4; // the one current by then
    QTest::newRow("Cancel") << QByteArray("ButtonCancel") << 2;
    QTest::newRow("close button") << QByteArray("ButtonClose") << 2;
}

void tst_interruptions::theAnswerFollowsAReportedProfile()
{
    QFETCH(QByteArray, answer);
    BusyStage stage;
    const Record loaded = copyOf();
    stage.edit();
    const Record edited = copyOf();
    const DialogVisitor visitor([&](const OpenDialog &question) {
        stage.reportProfile(5);
        question.click(answer.constData());
    });
    pointer::click(stage.profileKey(8));
    const bool dropped = answer == "ButtonCancel";
    QVERIFY(isRecord(*withProfile(dropped ? *loaded : *edited, 8)));
    QCOMPARE(stage.profileKeysOn(), std::vector{8});
    QCOMPARE(stage.mouseButton(1).captionText(), QStringLiteral("Profile 8"));
    QTEST(stage.written()[QStringLiteral("PROFILE_ID")].toInt(), "inTheFile");
}

void tst_interruptions::theOnBoardWriteMayEndBehindTheQuestion()
{
    BusyStage stage;
    stage.makeStorable();
    stage.saveOnBoard();
    const DialogVisitor visitor([&](const OpenDialog &question) {
        for (const int position : {99, 100, 100, 3})
            stage.progress(position);
        QVERIFY(!stage.showsProgress());
        question.click("ButtonOK");
    });
    stage.ask();
    QCOMPARE(visitor.count(), 1);
    QCOMPARE(stage.progressView().progressPos(), 100);
    QVERIFY(!stage.showsProgress());
}

void tst_interruptions::aReportedProfileDoesNotStopADrag()
{
    BusyStage stage;
    const QPoint before = stage.window().pos();
    const QPoint held(40, 300);
    const QPoint step(20, 10);
    pointer::press(stage.window(), held);
    pointer::move(stage.window(), held + step);
    stage.reportProfile(5);
    QCOMPARE(stage.profileKeysOn(), std::vector{5});
    pointer::move(stage.window(), held + step);
    QCOMPARE(stage.window().pos(), before + 2 * step);
    pointer::release(stage.window(), held);
    pointer::move(stage.window(), held + step);
    QCOMPARE(stage.window().pos(), before + 2 * step);
}

void tst_interruptions::theEndOfTheProgramAnswersNoDialog()
{
    QFETCH(Opening, opening);
    BusyStage stage;
    bool returned = false;
    const auto open = [&] {
        (stage.*opening.open)();
        returned = true;
    };
    QMetaObject::invokeMethod(qApp, open, Qt::QueuedConnection);
    const DialogVisitor visitor([&](const OpenDialog &) { QCoreApplication::exit(7); });
    QCOMPARE(QCoreApplication::exec(), 7);
    QCOMPARE(visitor.count(), 1);
    QVERIFY(returned);
    QVERIFY(stage.isFileUntouched());
    QVERIFY(stage.requestsSinceStart().empty());
}

void tst_interruptions::theWindowsMayGoDuringADialog()
{
    QFETCH(Opening, opening);
    BusyStage stage;
    const DialogVisitor visitor([&](const OpenDialog &) { stage.interface.reset(); });
    (stage.*opening.open)();
    QCOMPARE(visitor.count(), 1);
    QVERIFY(!isAnyWindowLeft());
    QVERIFY(stage.isFileUntouched());
    stage.reportProfile(5);
    QCOMPARE(m_Config.PROFILE_ID, 2U);
}

void tst_interruptions::theWindowsMayGoBehindAListOrMenu_data()
{
    openingRows(kOthers);
}

void tst_interruptions::theWindowsMayGoBehindAListOrMenu()
{
    QFETCH(Opening, opening);
    BusyStage stage;
    (stage.*opening.open)();
    QVERIFY(isSomethingOpen());
    stage.interface.reset();
    QVERIFY(!isAnyWindowLeft());
    QVERIFY(stage.isFileUntouched());
}

KYR_GUI_TEST(tst_interruptions)
#include "tst_interruptions.moc"
