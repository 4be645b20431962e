#include "fullsettings.h"
#include "progressstage.h"
#include "support/dialogs.h"
#include "support/drop.h"
#include "support/filesizelimit.h"
#include "support/menus.h"
#include "support/suite.h"
#include "support/unprivileged.h"

#include <QtCore/QDir>

#include <sys/stat.h>

#include <filesystem>

/// Settings that cannot be written: that is logged, and all goes on as if they had been.
class tst_writefailures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFailedWriteIsLoggedAndAllGoesOn_data();
    void aFailedWriteIsLoggedAndAllGoesOn();
    void theNextCommitWritesWhatWasNotWritten_data();
    void theNextCommitWritesWhatWasNotWritten();
    void anExportThatFailsLeavesEverything();
    void whatIsNoFileIsKeptBeside_data();
    void whatIsNoFileIsKeptBeside();
};

namespace {

/// The program on full settings, the current profile edited and fit for the mouse.
struct FailingStage : ProgressStage
{
    FailingStage() : ProgressStage(fullSettings())
    {
        std::fill_n(m_Config.PROFILE[2].BUTTON, kButtonCount, 9U);
        dropText(mouseButton(5), QStringLiteral("11"));
    }
    void clickOn(const char *name) const { pointer::click(button(name)); }
    void chooseTool(std::initializer_list<const char *> items) const
    {
        chooseFromMenu(button("BtnToolsMenu"), items);
    }

    /// The names of all that is in the settings' folder.
    QStringList entries() const
    {
        return QDir(settings.folder())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                       QDir::Name);
    }
    std::filesystem::path path() const { return settings.path(); }
    void setFolderMode(unsigned mode) const
    {
        std::filesystem::permissions(path().parent_path(), std::filesystem::perms{mode});
    }
};

/// What makes the program write, and what else it does then.
struct Write
{
    const char *name = "";
    void (*act)(const FailingStage &stage) = nullptr;
    void (*change)(ConfigData &record) = nullptr; ///< what becomes of the record
    std::vector<QVariantMap> requests;
    bool applyEnabled = true; ///< afterwards
    int quits = 0;
};

void asItWas(ConfigData & /*record*/) {}

std::vector<Write> writes()
{
    const QVariantMap rate{{QStringLiteral("Kt7R4SettingChangeType"), 2},
                           {QStringLiteral("PollingRate"), 2}};
    const std::vector told{takeSettings()};
    return {
        {"Apply", [](const FailingStage &stage) { stage.clickOn("ButtonApply"); }, asItWas, told,
         false},
        {"OK", [](const FailingStage &stage) { stage.clickOn("ButtonOK"); }, asItWas, told, true,
         1},
        {"close button", [](const FailingStage &stage) { stage.clickOn("BtnClose"); }, asItWas,
         told, true, 1},
        {"OK to the question",
         [](const FailingStage &stage) {
             const DialogVisitor visitor(
                 [](const OpenDialog &question) { question.click("ButtonOK"); });
             stage.clickOn("BtnProfile8");
         },
         [](ConfigData &record) { record.PROFILE_ID = 7; },
         {}},
        {"Save On Board",
         [](const FailingStage &stage) {
             stage.saveOnBoard();
             QVERIFY(stage.showsProgress());
         },
         asItWas, told, false},
        {"import",
         [](const FailingStage &stage) {
             chooseFromMenu(stage.button("BtnProfileMenu"), {"Import Profile"});
         },
         asItWas,
         {}},
        {"polling rate",
         [](const FailingStage &stage) {
             stage.chooseTool({"Polling Rate", "500hz/ms"});
         },
         [](ConfigData &record) { record.POLLING_RATE = 2; },
         {rate}},
        {"deletion warning",
         [](const FailingStage &stage) { stage.chooseTool({"Show macro deletion confirmation"}); },
         [](ConfigData &record) { record.MACRODEL_CONFIRM = 0; },
         {}},
    };
}

/// Makes every write fail while `act` is done.
struct Failure
{
    const char *name = "";
    void (*during)(const FailingStage &stage, const std::function<void()> &act) = nullptr;
    bool keepsTheFile = true; ///< the previous file is still there
};

const Failure kFailures[] = {
    {"folder missing",
     [](const FailingStage &stage, const std::function<void()> &act) {
         std::filesystem::remove_all(stage.path().parent_path());
         act();
         QVERIFY(!std::filesystem::exists(stage.path().parent_path()));
     },
     false},
    {"read-only",
     [](const FailingStage &stage, const std::function<void()> &act) {
         stage.setFolderMode(0555);
         {
             const Unprivileged nobody;
             act();
         }
         stage.setFolderMode(0755);
     }},
    {"full",
     [](const FailingStage & /*stage*/, const std::function<void()> &act) {
         const FileSizeLimit limit(100'000);
         act();
     }},
    {"a folder in its place",
     [](const FailingStage &stage, const std::function<void()> &act) {
         std::filesystem::remove(stage.path());
         std::filesystem::create_directory(stage.path());
         act();
         QVERIFY(std::filesystem::is_directory(stage.path()));
     },
     false},
};

const QStringList kOnlyTheFile{QStringLiteral("KT7R4Setting.xml")};

} // namespace

void tst_writefailures::aFailedWriteIsLoggedAndAllGoesOn_data()
{
    QTest::addColumn<Write>("write");
    QTest::addColumn<Failure>("failure");
    for (const Failure &failure : kFailures) {
        for (const Write &write : writes())
            QTest::addRow("%s, %s", failure.name, write.name) << write << failure;
    }
}

void tst_writefailures::aFailedWriteIsLoggedAndAllGoesOn()
{
    QFETCH(Write, write);
    QFETCH(Failure, failure);
    const FailingStage stage;
    const Record expected = copyOf();
    write.change(*expected);
    failure.during(stage, [&] { write.act(stage); });
    QCOMPARE(stage.log.count("write fail!"), 1L);
    QCOMPARE(stage.requestsSinceStart(), write.requests);
    QCOMPARE(stage.quits, write.quits);
    QCOMPARE(stage.applyIsEnabled(), write.applyEnabled);
    QVERIFY(isRecord(*expected));
    if (!failure.keepsTheFile)
        return;
    QCOMPARE(stage.settings.bytes(), fullSettings());
    QCOMPARE(stage.entries(), kOnlyTheFile);
}

void tst_writefailures::theNextCommitWritesWhatWasNotWritten_data()
{
    QTest::addColumn<Failure>("failure");
    for (const Failure &failure : kFailures) {
        if (failure.keepsTheFile)
            QTest::newRow(failure.name) << failure;
    }
}

void tst_writefailures::theNextCommitWritesWhatWasNotWritten()
{
    QFETCH(Failure, failure);
    const FailingStage stage;
    failure.during(stage, [&] { stage.clickOn("ButtonApply"); });
    QVERIFY(!stage.applyIsEnabled());
    stage.clickOn("ButtonOK");
    QCOMPARE(stage.log.count("write fail!"), 1L);
    QVERIFY(isInFile(stage.settings.bytes(), m_Config));
    QCOMPARE(m_Config.PROFILE[2].BUTTON[4], 11U);
    QCOMPARE(stage.entries(), kOnlyTheFile);
}

void tst_writefailures::anExportThatFailsLeavesEverything()
{
    FailingStage stage;
    stage.panels.answer = stage.settings.folder().toStdString() + "/missing/Profile.XML";
    const Record before = copyOf();
    chooseFromMenu(stage.button("BtnProfileMenu"), {"Export Profile"});
    QCOMPARE(stage.log.count("write fail!"), 1L);
    QVERIFY(isRecord(*before));
    QCOMPARE(stage.settings.bytes(), fullSettings());
    QVERIFY(stage.requestsSinceStart().empty());
    QVERIFY(stage.applyIsEnabled());
}

using Maker = std::function<void(const std::string &path)>;

void tst_writefailures::whatIsNoFileIsKeptBeside_data()
{
    QTest::addColumn<Maker>("make");
    QTest::addColumn<std::filesystem::file_type>("type");
    QTest::newRow("folder") << Maker([](const std::string &path) {
        std::filesystem::create_directory(path);
    }) << std::filesystem::file_type::directory;
    QTest::newRow("named pipe") << Maker([](const std::string &path) {
        QCOMPARE(::mkfifo(path.c_str(), 0600), 0);
    }) << std::filesystem::file_type::fifo;
}

/// Something else at the settings' path is no obstacle: the program starts, and the first write
/// puts it aside.
void tst_writefailures::whatIsNoFileIsKeptBeside()
{
    QFETCH(Maker, make);
    MainWindowStage stage;
    stage.interface.reset();
    make(stage.settings.path());
    stage.start(stage.settings.path());
    QCOMPARE(stage.mouseButton(1).captionText(), QStringLiteral("Left-Click"));

    dropText(stage.mouseButton(3), QStringLiteral("11"));
    pointer::click(stage.button("ButtonApply"));
    QCOMPARE(stage.log.count("write fail!"), 0L);
    QVERIFY(isInFile(stage.settings.bytes(), m_Config));
    QTEST(std::filesystem::status(stage.settings.path() + ".unreadable").type(), "type");
}

KYR_GUI_TEST(tst_writefailures)
#include "tst_writefailures.moc"
