#include "fullsettings.h"
#include "quickliststage.h"
#include "support/dialogs.h"
#include "support/drop.h"
#include "support/mainwindow.h"
#include "support/menus.h"
#include "support/paintwatch.h"
#include "support/pictures.h"
#include "support/suite.h"

/// The commands of the Profile menu: exporting the current profile to a file, and importing one.
class tst_importexport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anExportAsksForTheFile_data();
    void anExportAsksForTheFile();
    void anExportTouchesNothingElse_data() { states(); }
    void anExportTouchesNothingElse();
    void anExportTakesTheEditsAlong();
    void aCancelledExportDoesNothing();
    void anImportAsksForTheFile();
    void anImportReplacesTheCurrentProfile();
    void anImportRefreshesWhatIsShown();
    void anImportWritesTheSettings_data() { importRows(); }
    void anImportWritesTheSettings();
    void anImportTellsNobody_data() { importRows(); }
    void anImportTellsNobody();
    void anImportLeavesTheChangeMark_data() { states(); }
    void anImportLeavesTheChangeMark();
    void anImportKeepsTheGauge();
    void theCaptionsAreRebuiltAfterEveryImport_data() { importRows(); }
    void theCaptionsAreRebuiltAfterEveryImport();
    void whatCannotBeReadChangesNothing_data();
    void whatCannotBeReadChangesNothing();
    void aProfileIsTheSameInAnotherSlot();
    void reportsMeanwhileDoNotRedirectAnImport();
    void reportsMeanwhileDoNotRedirectAnExport();
    void theWindowsMayGoMeanwhile_data();
    void theWindowsMayGoMeanwhile();

private:
    static void states()
    {
        QTest::addColumn<bool>("edited");
        QTest::newRow("edited") << true;
        QTest::newRow("unedited") << false;
    }
    static void importRows()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::newRow("a profile") << plistOf(plistEntry("DPI_VALUE", "<integer>4</integer>"));
        QTest::newRow("no property list") << QByteArray("junk");
        QTest::newRow("cancelled") << QByteArray();
    }
};

namespace {

using Question = FakeFilePanels::Question;
using Questions = std::vector<Question>;

/// The program on full settings, with a folder for profile files.
struct PanelStage : QuickListStage
{
    PanelStage() : QuickListStage(fullSettings()) { choose(); }

    QString path() const { return m_folder.filePath(QStringLiteral("Exported.XML")); }
    /// The next panels are answered with the file, or cancelled.
    void choose() { panels.answer = path().toStdString(); }
    void cancel() { panels.answer.reset(); }
    /// Makes the file the answer of the next panels; without bytes they are cancelled.
    void choose(const QByteArray &bytes)
    {
        if (bytes.isEmpty())
            return cancel();
        QFile file(path());
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write the profile file");
    }
    QVariantMap exported() const
    {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? readPlist(file.readAll()) : QVariantMap();
    }

    void importProfile() const { chooseFromMenu(button("BtnProfileMenu"), {"Import Profile"}); }
    void exportProfile() const { chooseFromMenu(button("BtnProfileMenu"), {"Export Profile"}); }
    void edit() const { dropText(mouseButton(5), QStringLiteral("11")); }
    void editIf(bool edited) const
    {
        if (edited)
            edit();
    }
    bool isFileUntouched() const { return settings.bytes() == fullSettings(); }
    /// Whether a switch of the profile asks about changes.
    bool asksAboutChanges() const
    {
        const DialogVisitor visitor(
            [](const OpenDialog &question) { question.click("ButtonClose"); });
        pointer::click(profileKey(7));
        return visitor.count() == 1;
    }

    const Record loaded = copyOf();

private:
    QTemporaryDir m_folder;
};

QString profileKey(int number)
{
    return QStringLiteral("PROFILE_%1").arg(number);
}

} // namespace

void tst_importexport::anExportAsksForTheFile_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<std::string>("name");
    for (int number = 1; number <= 10; ++number)
        QTest::addRow("%d", number) << number << "Profile" + std::to_string(number - 1);
}

void tst_importexport::anExportAsksForTheFile()
{
    QFETCH(int, number);
    QFETCH(std::string, name);
    PanelStage stage;
    stage.reportProfile(number);
    stage.exportProfile();
    QVERIFY(stage.panels.questions ==
            (Questions{{Question::Kind::Save, "Export Profile", name, "XML"}}));
    QCOMPARE(QVariant(stage.exported()), stage.written()[profileKey(number)]);
}

void tst_importexport::anExportTouchesNothingElse()
{
    QFETCH(bool, edited);
    const PanelStage stage;
    stage.editIf(edited);
    const Record before = copyOf();
    stage.exportProfile();
    QVERIFY(!stage.exported().isEmpty());
    QVERIFY(isRecord(*before));
    QVERIFY(stage.isFileUntouched());
    QVERIFY(stage.requestsSinceStart().empty());
    QCOMPARE(stage.applyIsEnabled(), edited);
    QCOMPARE(stage.asksAboutChanges(), edited);
}

void tst_importexport::anExportTakesTheEditsAlong()
{
    const PanelStage stage;
    stage.edit();
    stage.exportProfile();
    QCOMPARE(stage.exported()[QStringLiteral("BUTTON_5")], 11);
    QCOMPARE(stage.exported()[QStringLiteral("BUTTON_6")], 34);
}

void tst_importexport::aCancelledExportDoesNothing()
{
    PanelStage stage;
    stage.cancel();
    stage.exportProfile();
    QCOMPARE(stage.panels.questions.size(), std::size_t{1});
    QVERIFY(!QFile::exists(stage.path()));
    QVERIFY(stage.isFileUntouched());
    QVERIFY(isRecord(*stage.loaded));
}

void tst_importexport::anImportAsksForTheFile()
{
    const PanelStage stage;
    stage.importProfile();
    QVERIFY(stage.panels.questions ==
            (Questions{{Question::Kind::Open, "Import Profile", "", "XML"}}));
}

void tst_importexport::anImportReplacesTheCurrentProfile()
{
    PanelStage stage;
    stage.choose(plistOf(plistEntry("BUTTON_2", "<integer>4</integer>")));
    stage.importProfile();
    const Record expected = copyOf(*stage.loaded);
    expected->PROFILE[2] = {};
    expected->PROFILE[2].BUTTON[1] = 4;
    QVERIFY(isRecord(*expected));
}

void tst_importexport::anImportRefreshesWhatIsShown()
{
    PanelStage stage;
    stage.choose(plistOf(plistEntry("BUTTON_2", "<integer>4</integer>") +
                         plistEntry("LED_COLOR_G", "<integer>200</integer>")));
    QCOMPARE(stage.mouseButton(2).captionText(), QStringLiteral("Profile 3"));
    const QPoint onTheColourLine(260, 640 - 504);
    std::optional<PaintWatch> watch;
    stage.panels.meanwhile = [&] { watch.emplace(stage.view()); }; // the menu is closed by then
    stage.importProfile();
    QCOMPARE(stage.mouseButton(2).captionText(), QStringLiteral("Button 4"));
    QCOMPARE(stage.mouseButton(3).captionText(), QString());
    QTRY_VERIFY(watch->hasPainted(onTheColourLine));
    QCOMPARE(shownAt(stage.window(), onTheColourLine), QColor(0, 200, 0));
}

void tst_importexport::anImportWritesTheSettings()
{
    QFETCH(QByteArray, file);
    PanelStage stage;
    stage.choose(file);
    stage.edit(); // in the file, too, afterwards
    stage.importProfile();
    QVERIFY(!stage.isFileUntouched());
    QVERIFY(isInFile(stage.settings.bytes(), m_Config));
}

void tst_importexport::anImportTellsNobody()
{
    QFETCH(QByteArray, file);
    PanelStage stage;
    stage.choose(file);
    stage.importProfile();
    QVERIFY(stage.requestsSinceStart().empty());
}

void tst_importexport::anImportLeavesTheChangeMark()
{
    QFETCH(bool, edited);
    PanelStage stage;
    stage.choose(plistOf(plistEntry("BUTTON_2", "<integer>4</integer>")));
    stage.editIf(edited);
    stage.importProfile();
    QCOMPARE(stage.applyIsEnabled(), edited);
    QCOMPARE(stage.asksAboutChanges(), edited);
}

void tst_importexport::anImportKeepsTheGauge()
{
    PanelStage stage;
    stage.choose(plistOf(""));
    std::fill_n(m_Config.PROFILE[2].BUTTON, 14, 3U); // double clicks: 75 + 14 * 10 bytes
    stage.reportProfile(3);
    QCOMPARE(stage.view().memoryUsage(), 1U);
    stage.importProfile();
    QCOMPARE(stage.view().memoryUsage(), 1U);
    stage.reportProfile(3);
    QCOMPARE(stage.view().memoryUsage(), 0U);
}

void tst_importexport::theCaptionsAreRebuiltAfterEveryImport()
{
    QFETCH(QByteArray, file);
    PanelStage stage;
    stage.choose(file);
    clickRow(stage.open(1), 3);
    QTRY_VERIFY(openLists().empty());
    const QString rebuilt = file.startsWith("<?xml")
                                ? QString()
                                : QStringLiteral("Button 4"); // the list says it longer
    QCOMPARE(stage.mouseButton(1).captionText(), QStringLiteral("Mouse Button 4"));
    stage.importProfile();
    QCOMPARE(stage.mouseButton(1).captionText(), rebuilt);
}

void tst_importexport::whatCannotBeReadChangesNothing_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::newRow("cancelled") << QByteArray();
    QTest::newRow("no property list") << QByteArray("junk");
    QTest::newRow("cut short") << fullSettings().left(5000);
    QTest::newRow("no dictionary") << plistWithRoot("<array></array>");
}

void tst_importexport::whatCannotBeReadChangesNothing()
{
    QFETCH(QByteArray, file);
    PanelStage stage;
    stage.choose(file);
    stage.importProfile();
    QVERIFY(isRecord(*stage.loaded));
    QCOMPARE(stage.mouseButton(2).captionText(), QStringLiteral("Profile 3"));
    QCOMPARE(stage.written(), readPlist(fullSettings()));
}

void tst_importexport::aProfileIsTheSameInAnotherSlot()
{
    PanelStage stage;
    stage.exportProfile();
    pointer::click(stage.profileKey(7));
    stage.importProfile();
    const Record expected = withProfile(*stage.loaded, 7);
    expected->PROFILE[6] = stage.loaded->PROFILE[2];
    QVERIFY(isRecord(*expected));
    QVERIFY(isInFile(stage.settings.bytes(), *expected));
}

void tst_importexport::reportsMeanwhileDoNotRedirectAnImport()
{
    PanelStage stage;
    stage.choose(plistOf(plistEntry("BUTTON_2", "<integer>4</integer>")));
    stage.panels.meanwhile = [&] { stage.reportProfile(5); };
    stage.importProfile();
    const Record expected = withProfile(*stage.loaded, 5);
    expected->PROFILE[2] = {};
    expected->PROFILE[2].BUTTON[1] = 4;
    QVERIFY(isRecord(*expected));
    QVERIFY(isInFile(stage.settings.bytes(), *expected));
    QCOMPARE(stage.profileKeysOn(), std::vector{5});
    QCOMPARE(stage.mouseButton(2).captionText(), QStringLiteral("Profile 5"));
}

void tst_importexport::reportsMeanwhileDoNotRedirectAnExport()
{
    PanelStage stage;
    stage.panels.meanwhile = [&] { stage.reportProfile(5); };
    stage.exportProfile();
    QCOMPARE(QVariant(stage.exported()), stage.written()[profileKey(3)]);
    QCOMPARE(stage.panels.questions.front().proposedName, "Profile2");
}

using Command = void (PanelStage::*)() const;

void tst_importexport::theWindowsMayGoMeanwhile_data()
{
    QTest::addColumn<Command>("command");
    QTest::newRow("import") << &PanelStage::importProfile;
    QTest::newRow("export") << &PanelStage::exportProfile;
}

/// A panel counts as cancelled when the window that it belongs to goes.
void tst_importexport::theWindowsMayGoMeanwhile()
{
    QFETCH(Command, command);
    PanelStage stage;
    stage.cancel();
    stage.panels.meanwhile = [&] { stage.interface.reset(); };
    (stage.*command)();
    QCOMPARE(stage.panels.questions.size(), std::size_t{1});
    QVERIFY(stage.isFileUntouched());
}

KYR_GUI_TEST(tst_importexport)
#include "tst_importexport.moc"
