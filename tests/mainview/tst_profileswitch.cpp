#include "fullsettings.h"
#include "quickliststage.h"
#include "support/dialogs.h"
#include "support/drop.h"
#include "support/suite.h"

/// Switching profiles with the profile keys, and the question about unsaved changes.
class tst_profileswitch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void withoutEditsTheProfileIsShownAtOnce_data() { keyRows(); }
    void withoutEditsTheProfileIsShownAtOnce();
    void aSwitchIsNoEdit_data() { keyRows(); }
    void aSwitchIsNoEdit();
    void applyCommitsTheProfileSwitchedTo();
    void withEditsTheQuestionIsAsked_data() { keyRows(); }
    void withEditsTheQuestionIsAsked();
    void everyKindOfEditIsAskedAbout_data();
    void everyKindOfEditIsAskedAbout();
    void whatIsSavedIsNotAskedAbout_data();
    void whatIsSavedIsNotAskedAbout();
    void theInGameModeLeavesTheChangeMark_data();
    void theInGameModeLeavesTheChangeMark();
    void theOtherControlsWaitForTheAnswer();
    void okWritesTheFileAndSwitches_data() { keyRows(); }
    void okWritesTheFileAndSwitches();
    void cancelReloadsTheFileAndSwitches_data() { keyRows(); }
    void cancelReloadsTheFileAndSwitches();
    void closingTheQuestionNeitherWritesNorReloads_data();
    void closingTheQuestionNeitherWritesNorReloads();
    void cancelDropsTheEditsOfAllProfiles();
    void cancelWithoutAFileGivesTheFirstStart();
    void afterEveryAnswerNoEditIsPending_data();
    void afterEveryAnswerNoEditIsPending();

private:
    static void keyRows()
    {
        QTest::addColumn<int>("key");
        for (int key = 1; key <= 10; ++key)
            QTest::addRow("%d", key) << key;
    }
};

namespace {

/// The program on full settings.
struct SwitchStage : QuickListStage
{
    SwitchStage() : QuickListStage(fullSettings()) {}

    void edit() const { dropText(mouseButton(5), QStringLiteral("11")); }
    void switchTo(int key) const { pointer::click(profileKey(key)); }
    /// Switches to a profile and answers the question, which must come.
    void switchTo(int key, const DialogVisitor::Visit &answer) const
    {
        const DialogVisitor visitor(answer);
        switchTo(key);
        QCOMPARE(visitor.count(), 1);
    }
    /// Whether a profile is shown as the current one.
    bool shows(int key) const
    {
        return profileKeysOn() == std::vector{key} &&
               mouseButton(14).captionText() == QStringLiteral("Profile %1").arg(key);
    }
    bool isFileUntouched() const { return settings.bytes() == fullSettings(); }

    const Record loaded = copyOf();
};

void answerOK(const OpenDialog &dialog)
{
    dialog.click("ButtonOK");
}

void answerCancel(const OpenDialog &dialog)
{
    dialog.click("ButtonCancel");
}

/// Switching to the sixth profile disables Apply.
bool appliesAfter(int key)
{
    return key != 6;
}

} // namespace

void tst_profileswitch::withoutEditsTheProfileIsShownAtOnce()
{
    QFETCH(int, key);
    const SwitchStage stage;
    const DialogVisitor visitor([](const OpenDialog &) {});
    stage.switchTo(key);
    QCOMPARE(visitor.count(), 0);
    QVERIFY(stage.shows(key));
    QVERIFY(isRecord(*withProfile(*stage.loaded, key)));
    QCOMPARE(stage.applyIsEnabled(), appliesAfter(key));
    QVERIFY(stage.isFileUntouched());
    QVERIFY(stage.requestsSinceStart().empty());
}

void tst_profileswitch::aSwitchIsNoEdit()
{
    QFETCH(int, key);
    const SwitchStage stage;
    const DialogVisitor visitor([](const OpenDialog &) {});
    stage.switchTo(key);
    stage.switchTo(key % 10 + 1);
    QCOMPARE(visitor.count(), 0);
    QVERIFY(stage.shows(key % 10 + 1));
    QCOMPARE(stage.applyIsEnabled(), appliesAfter(key % 10 + 1));
}

void tst_profileswitch::applyCommitsTheProfileSwitchedTo()
{
    const SwitchStage stage;
    stage.switchTo(9);
    pointer::click(stage.button("ButtonApply"));
    QCOMPARE(stage.written()[QStringLiteral("PROFILE_ID")], 8);
    QCOMPARE(stage.requestsSinceStart(), std::vector{takeSettings()});
    QVERIFY(!stage.applyIsEnabled());
}

void tst_profileswitch::withEditsTheQuestionIsAsked()
{
    QFETCH(int, key);
    const SwitchStage stage;
    stage.edit();
    stage.switchTo(key, [&](const OpenDialog &question) {
        QCOMPARE(question.caption(), QStringLiteral("Warnning!"));
        QCOMPARE(question.text(), QStringLiteral("Would you like to save changes?"));
        QVERIFY(stage.shows(3));
        QCOMPARE(m_Config.PROFILE_ID, 2U);
        QVERIFY(stage.applyIsEnabled());
        QVERIFY(stage.isFileUntouched());
        question.click("ButtonOK");
    });
}

using Edit = std::function<void(const SwitchStage &stage)>;

void tst_profileswitch::everyKindOfEditIsAskedAbout_data()
{
    QTest::addColumn<Edit>("edit");
    const auto row = [](const char *name, const Edit &edit) { QTest::newRow(name) << edit; };
    row("a drop", [](const SwitchStage &stage) { stage.edit(); });
    row("the quick list", [](const SwitchStage &stage) {
        clickRow(stage.open(5), 3);
        QTRY_VERIFY(openLists().empty());
    });
    row("Restore Defaults",
        [](const SwitchStage &stage) { pointer::click(stage.button("ButtonRestore")); });
    row("one after a switch", [](const SwitchStage &stage) {
        stage.switchTo(5);
        stage.edit();
    });
}

void tst_profileswitch::everyKindOfEditIsAskedAbout()
{
    QFETCH(Edit, edit);
    const SwitchStage stage;
    edit(stage);
    stage.switchTo(8, answerOK);
    QVERIFY(stage.shows(8));
}

void tst_profileswitch::whatIsSavedIsNotAskedAbout_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("Apply") << QStringLiteral("ButtonApply");
    QTest::newRow("Save On Board") << QStringLiteral("ButtonSaveToDevice");
}

void tst_profileswitch::whatIsSavedIsNotAskedAbout()
{
    QFETCH(QString, name);
    const SwitchStage stage;
    std::fill_n(m_Config.PROFILE[2].BUTTON, kButtonCount, 9); // the mouse can store it
    stage.edit();
    const DialogVisitor visitor([](const OpenDialog &dialog) { dialog.click("ButtonClose"); });
    pointer::click(stage.button(name));
    stage.switchTo(8);
    QCOMPARE(visitor.count(), 0);
}

void tst_profileswitch::theInGameModeLeavesTheChangeMark_data()
{
    QTest::addColumn<bool>("edited");
    QTest::newRow("edited") << true;
    QTest::newRow("unedited") << false;
}

void tst_profileswitch::theInGameModeLeavesTheChangeMark()
{
    QFETCH(bool, edited);
    const SwitchStage stage;
    if (edited)
        stage.edit();
    pointer::click(stage.button("chkGameMode"));
    const DialogVisitor visitor(answerOK);
    stage.switchTo(4);
    QCOMPARE(visitor.count(), edited ? 1 : 0);
    QVERIFY(stage.shows(4));
}

void tst_profileswitch::theOtherControlsWaitForTheAnswer()
{
    const SwitchStage stage;
    stage.edit();
    stage.switchTo(8, [&](const OpenDialog &question) {
        for (const char *name : {"ButtonOK", "BtnClose", "BtnProfile9", "BtnProfileMenu"})
            pointer::click(stage.button(name));
        QVERIFY(!QApplication::activePopupWidget());
        question.click("ButtonClose");
    });
    QCOMPARE(stage.quits, 0);
    QVERIFY(stage.isFileUntouched());
    QVERIFY(stage.shows(8));
}

void tst_profileswitch::okWritesTheFileAndSwitches()
{
    QFETCH(int, key);
    const SwitchStage stage;
    stage.edit();
    const Record edited = copyOf();
    stage.switchTo(key, answerOK);
    QVERIFY(isRecord(*withProfile(*edited, key)));
    QCOMPARE(stage.profileKeysOn(), std::vector{key});
    QCOMPARE(stage.applyIsEnabled(), appliesAfter(key));
    QVERIFY(stage.requestsSinceStart().empty());
    QVERIFY(isInFile(stage.settings.bytes(), *edited)); // the profile not yet switched
}

void tst_profileswitch::cancelReloadsTheFileAndSwitches()
{
    QFETCH(int, key);
    const SwitchStage stage;
    stage.edit();
    stage.switchTo(key, answerCancel);
    QVERIFY(isRecord(*withProfile(*stage.loaded, key)));
    QVERIFY(stage.shows(key));
    QCOMPARE(stage.mouseButton(5).captionText(), QStringLiteral("Profile %1").arg(key));
    QCOMPARE(stage.applyIsEnabled(), appliesAfter(key));
    QVERIFY(stage.isFileUntouched());
    QVERIFY(stage.requestsSinceStart().empty());
}

void tst_profileswitch::closingTheQuestionNeitherWritesNorReloads_data()
{
    QTest::addColumn<DialogVisitor::Visit>("close");
    QTest::addColumn<int>("key");
    const auto rows = [](const char *name, const DialogVisitor::Visit &close) {
        for (const int key : {3, 6, 8})
            QTest::addRow("%s, %d", name, key) << close << key;
    };
    rows("close button", [](const OpenDialog &question) { question.click("ButtonClose"); });
    rows("Escape", [](const OpenDialog &question) { question.key(Qt::Key_Escape); });
    rows("desktop", [](const OpenDialog &question) { question.closeByTheDesktop(); });
}

void tst_profileswitch::closingTheQuestionNeitherWritesNorReloads()
{
    QFETCH(DialogVisitor::Visit, close);
    QFETCH(int, key);
    const SwitchStage stage;
    stage.edit();
    const Record edited = copyOf();
    stage.switchTo(key, close);
    QVERIFY(isRecord(*withProfile(*edited, key)));
    QVERIFY(stage.shows(key));
    QCOMPARE(stage.applyIsEnabled(), appliesAfter(key));
    QVERIFY(stage.isFileUntouched());
    QVERIFY(stage.requestsSinceStart().empty());
}

void tst_profileswitch::cancelDropsTheEditsOfAllProfiles()
{
    SwitchStage stage;
    for (int key = 1; key <= 10; ++key) {
        stage.reportProfile(key); // asks nothing, keeps the edits
        stage.edit();
    }
    QCOMPARE(m_Config.PROFILE[0].BUTTON[4], 11U);
    QCOMPARE(m_Config.PROFILE[9].BUTTON[4], 11U);
    stage.switchTo(1, answerCancel);
    QVERIFY(isRecord(*withProfile(*stage.loaded, 1)));
}

void tst_profileswitch::cancelWithoutAFileGivesTheFirstStart()
{
    const SwitchStage stage;
    stage.edit();
    QVERIFY(QFile::remove(QString::fromStdString(stage.settings.path())));
    const Record expected = withProfile(m_Config, 8);
    expected->POLLING_RATE = 1;
    expected->MACRODEL_CONFIRM = 0;
    for (ProfileInfo &profile : expected->PROFILE)
        putDefaults(profile, {1, 2, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9});
    stage.switchTo(8, answerCancel);
    QVERIFY(isRecord(*expected));
    QCOMPARE(stage.mouseButton(1).captionText(), QStringLiteral("Left-Click"));
    QCOMPARE(stage.mouseButton(5).captionText(), QStringLiteral("Disable/Clear"));
    QVERIFY(stage.settings.bytes().isEmpty()); // nothing is written by that
}

void tst_profileswitch::afterEveryAnswerNoEditIsPending_data()
{
    QTest::addColumn<QString>("answer");
    for (const char *answer : {"ButtonOK", "ButtonCancel", "ButtonClose"})
        QTest::newRow(answer) << QString::fromLatin1(answer);
}

void tst_profileswitch::afterEveryAnswerNoEditIsPending()
{
    QFETCH(QString, answer);
    const SwitchStage stage;
    stage.edit();
    const DialogVisitor visitor(
        [&](const OpenDialog &question) { question.click(qPrintable(answer)); });
    for (const int key : {8, 4, 6, 1})
        stage.switchTo(key);
    QCOMPARE(visitor.count(), 1);
    QVERIFY(stage.shows(1));
}

KYR_GUI_TEST(tst_profileswitch)
#include "tst_profileswitch.moc"
