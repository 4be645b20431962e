#include "support/drop.h"
#include "support/mainwindow.h"
#include "support/suite.h"

#include <QtCore/QDir>

#include <cstring>

/// Apply, OK, Cancel and the close button.
class tst_commit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aCommitWritesTellsAndMayQuit_data();
    void aCommitWritesTellsAndMayQuit();
    void theFileIsCompleteWhenTheDriverProcessIsTold_data() { commits(); }
    void theFileIsCompleteWhenTheDriverProcessIsTold();
    void quittingComesLast_data();
    void quittingComesLast();
    void everythingIsWritten();
    void applyCanBeUsedAgainAfterTheNextChange();
    void aDisabledApplyDoesNothing();
    void cancelLosesTheChanges();
    void aFailingWriteIsLoggedAndStillTold_data() { commits(); }
    void aFailingWriteIsLoggedAndStillTold();

private:
    static void commits()
    {
        QTest::addColumn<QString>("name");
        for (const char *name : {"ButtonApply", "ButtonOK", "BtnClose"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }
};

namespace {

/// A main window with a change that is not saved: Button3 scrolls up.
struct ChangedStage : MainWindowStage
{
    ChangedStage() { change(); }
    void change() const { dropText(mouseButton(3), QStringLiteral("11")); }
    void clickOn(const QString &name) const { pointer::click(button(name)); }
    qlonglong writtenCode() const
    {
        const QVariantMap profile = written()[QStringLiteral("PROFILE_1")].toMap();
        return profile[QStringLiteral("BUTTON_3")].toLongLong();
    }
};

constexpr char kName[] = "QuarnsetKt7R4";
constexpr char kObject[] = "Kt7R4SettingChange";

} // namespace

void tst_commit::aCommitWritesTellsAndMayQuit_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("commits");
    QTest::addColumn<int>("quits");
    QTest::addColumn<bool>("applyEnabled");
    const auto row = [](const char *name, bool commits, int quits, bool applyEnabled) {
        QTest::newRow(name) << QString::fromLatin1(name) << commits << quits << applyEnabled;
    };
    row("ButtonApply", true, 0, false);
    row("ButtonOK", true, 1, true);
    row("BtnClose", true, 1, true);
    row("ButtonCancel", false, 1, true);
}

void tst_commit::aCommitWritesTellsAndMayQuit()
{
    QFETCH(QString, name);
    QFETCH(bool, commits);
    const ChangedStage stage;
    stage.clickOn(name);
    QCOMPARE(stage.settings.bytes().isEmpty(), !commits);
    QCOMPARE(stage.writtenCode(), commits ? 11 : 0);
    const auto told = commits ? std::vector{takeSettings()} : std::vector<QVariantMap>{};
    QCOMPARE(stage.requestsSinceStart(), told);
    QTEST(stage.quits, "quits");
    QTEST(stage.applyIsEnabled(), "applyEnabled");
}

void tst_commit::theFileIsCompleteWhenTheDriverProcessIsTold()
{
    QFETCH(QString, name);
    ChangedStage stage;
    std::vector<qlonglong> read;
    stage.center.addObserver(QLatin1String(kName), QLatin1String(kObject),
                             [&](const QVariantMap &) { read.push_back(stage.writtenCode()); });
    stage.clickOn(name);
    QCOMPARE(read, std::vector<qlonglong>{11});
    QCOMPARE(stage.center.posted.back().name, QLatin1String(kName));
    QCOMPARE(stage.center.posted.back().object, QLatin1String(kObject));
}

void tst_commit::quittingComesLast_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("ButtonOK") << QStringLiteral("ButtonOK");
    QTest::newRow("BtnClose") << QStringLiteral("BtnClose");
}

void tst_commit::quittingComesLast()
{
    QFETCH(QString, name);
    ChangedStage stage;
    int quitsWhenTold = -1;
    stage.center.addObserver(QLatin1String(kName), QLatin1String(kObject),
                             [&](const QVariantMap &) { quitsWhenTold = stage.quits; });
    stage.clickOn(name);
    QCOMPARE(quitsWhenTold, 0);
    QCOMPARE(stage.quits, 1);
}

void tst_commit::everythingIsWritten()
{
    ChangedStage stage;
    stage.reportProfile(8);
    m_Config.PROFILE[9].MACRO[49].MACRO_LOOP = 77;
    stage.clickOn(QStringLiteral("ButtonApply"));
    const QVariantMap root = stage.written();
    QCOMPARE(root[QStringLiteral("PROFILE_ID")], 7);
    QCOMPARE(root[QStringLiteral("POLLING_RATE")], 1);
    const QVariantMap last = root[QStringLiteral("PROFILE_10")].toMap();
    QCOMPARE(last[QStringLiteral("MACRO_50")].toMap()[QStringLiteral("MACRO_LOOP")], 77);

    const std::unique_ptr<ConfigData> before = std::make_unique<ConfigData>(m_Config);
    std::memset(&m_Config, 0xA5, sizeof m_Config);
    xmlconfig store;
    store.setConfigfileName(stage.settings.path());
    store.LoadConfigFile();
    QCOMPARE(std::memcmp(&m_Config, before.get(), sizeof m_Config), 0);
}

void tst_commit::applyCanBeUsedAgainAfterTheNextChange()
{
    const ChangedStage stage;
    stage.clickOn(QStringLiteral("ButtonApply"));
    QVERIFY(!stage.applyIsEnabled());
    dropText(stage.mouseButton(3), QStringLiteral("12"));
    QVERIFY(stage.applyIsEnabled());
    stage.clickOn(QStringLiteral("ButtonApply"));
    QCOMPARE(stage.writtenCode(), 12);
    QCOMPARE(stage.requestsSinceStart(), (std::vector{takeSettings(), takeSettings()}));
}

void tst_commit::aDisabledApplyDoesNothing()
{
    const MainWindowStage stage;
    pointer::click(stage.button("ButtonApply"));
    QVERIFY(stage.settings.bytes().isEmpty());
    QVERIFY(stage.requestsSinceStart().empty());
}

void tst_commit::cancelLosesTheChanges()
{
    const ChangedStage stage;
    stage.clickOn(QStringLiteral("ButtonApply"));
    dropText(stage.mouseButton(3), QStringLiteral("12"));
    const QByteArray before = stage.settings.bytes();
    stage.clickOn(QStringLiteral("ButtonCancel"));
    QCOMPARE(stage.settings.bytes(), before);
    QCOMPARE(stage.quits, 1);
    QCOMPARE(stage.log.count("Button 1 was clicked"), 1L);
}

void tst_commit::aFailingWriteIsLoggedAndStillTold()
{
    QFETCH(QString, name);
    const ChangedStage stage;
    QVERIFY(QDir(stage.settings.folder()).removeRecursively());
    stage.clickOn(name);
    QCOMPARE(stage.log.count("write fail!"), 1L);
    QCOMPARE(stage.requestsSinceStart(), std::vector{takeSettings()});
    QCOMPARE(stage.quits, name == QLatin1String("ButtonApply") ? 0 : 1);
    QCOMPARE(m_Config.PROFILE[0].BUTTON[2], 11U);
}

KYR_GUI_TEST(tst_commit)
#include "tst_commit.moc"
