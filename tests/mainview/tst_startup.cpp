#include "support/mainwindow.h"
#include "support/suite.h"

#include <QtCore/QDir>

/// How the main view starts.
class tst_startup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void onlyFirmwareAndLiftDistanceAreAskedFor();
    void answersToTheFirstRequestsArrive();
    void nothingIsWritten_data();
    void nothingIsWritten();
    void applyIsDisabled();
    void noMouseButtonIsSelected();
    void theStoredProfileIsShown_data();
    void theStoredProfileIsShown();
    void theStoredInGameModeIsShown();
    void aFirstStartShowsTheDefaults();
    void anUnreadableFileShowsTheDefaults();
    void versionAndLiftDistanceAreUnknownAtFirst();
    void aMissingFolderIsNoObstacle();
};

namespace {

QVariantMap request(int type)
{
    return {{QStringLiteral("Kt7R4SettingChangeType"), type}};
}

/// A driver process that answers while it is being asked.
struct AnsweringCenter : LocalNotificationCenter
{
    AnsweringCenter()
    {
        addObserver(QStringLiteral("QuarnsetKt7R4"), QStringLiteral("Kt7R4SettingChange"),
                    [this](const QVariantMap &asked) { answer(asked); });
    }
    void answer(const QVariantMap &asked)
    {
        if (asked == request(9))
            post(QStringLiteral("QuarnsetKt7R4"), QStringLiteral("Kt7R4DeviceFWVersion"),
                 {{QStringLiteral("Kt7R4FWNumber"), 102}});
        if (asked == request(11))
            post(QStringLiteral("QuarnsetKt7R4"), QStringLiteral("Kt7R4LiftDistance"),
                 {{QStringLiteral("Kt7R4LiftDistance"), 2}});
    }
};

} // namespace

void tst_startup::onlyFirmwareAndLiftDistanceAreAskedFor()
{
    const MainWindowStage stage(settingsWith({{"POLLING_RATE", 3}, {"PROFILE_ID", 4}}));
    const QString name = QStringLiteral("QuarnsetKt7R4");
    const QString object = QStringLiteral("Kt7R4SettingChange");
    const std::vector<LocalNotificationCenter::Posted> expected = {{name, object, request(9)},
                                                                   {name, object, request(11)}};
    QVERIFY(stage.center.posted == expected);
}

void tst_startup::answersToTheFirstRequestsArrive()
{
    const TestSettings settings;
    AnsweringCenter center;
    const Interface interface({settings.path(), &center, [] {}});
    QCOMPARE(interface.mainView().firmwareNumber(), 102U);
    QCOMPARE(interface.mainView().liftDistance(), 2U);
}

void tst_startup::nothingIsWritten_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::newRow("no file") << QByteArray();
    QTest::newRow("settings") << settingsWith({{"PROFILE_ID", 3}});
    QTest::newRow("no settings") << QByteArray("not a property list");
}

void tst_startup::nothingIsWritten()
{
    QFETCH(QByteArray, file);
    const MainWindowStage stage(file);
    QCOMPARE(stage.settings.bytes(), file);
    QCOMPARE(QDir(stage.settings.folder()).entryList(QDir::Files).size(), file.isEmpty() ? 0 : 1);
}

void tst_startup::applyIsDisabled()
{
    const MainWindowStage stage;
    QVERIFY(!stage.applyIsEnabled());
}

void tst_startup::noMouseButtonIsSelected()
{
    const MainWindowStage stage;
    QCOMPARE(stage.buttonsOn(), std::vector<int>{});
    QVERIFY(stage.view().currentButton() < 0);
}

void tst_startup::theStoredProfileIsShown_data()
{
    QTest::addColumn<int>("stored");
    QTest::addColumn<int>("key");
    for (int stored = 0; stored < 10; ++stored)
        QTest::addRow("%d", stored) << stored << stored + 1;
    QTest::newRow("beyond the last") << 10 << 1;
    QTest::newRow("negative") << -1 << 1;
    QTest::newRow("far") << INT_MAX << 1;
}

void tst_startup::theStoredProfileIsShown()
{
    QFETCH(int, stored);
    QFETCH(int, key);
    const QByteArray button = plistDictionary(plistEntry("BUTTON_5", "<integer>12</integer>"));
    const QByteArray profile = plistEntry("PROFILE_" + QByteArray::number(key), button);
    const QByteArray number = "<integer>" + QByteArray::number(stored) + "</integer>";
    const MainWindowStage stage(plistOf(plistEntry("PROFILE_ID", number) + profile));
    QCOMPARE(stage.profileKeysOn(), std::vector{key});
    QCOMPARE(stage.mouseButton(5).captionText(), QStringLiteral("Scroll Down"));
    QCOMPARE(stage.mouseButton(6).captionText(), QString());
}

void tst_startup::theStoredInGameModeIsShown()
{
    const MainWindowStage stage(settingsWith({{"GAME_MODE", 1}}));
    QVERIFY(stage.button("chkGameMode").isChecked());
    QVERIFY(!stage.mouseButton(1).isEnabled());
}

void tst_startup::aFirstStartShowsTheDefaults()
{
    const MainWindowStage stage;
    QCOMPARE(stage.profileKeysOn(), std::vector{1});
    QVERIFY(!stage.button("chkGameMode").isChecked());
    QCOMPARE(stage.mouseButton(1).captionText(), QStringLiteral("Left-Click"));
    QCOMPARE(stage.mouseButton(2).captionText(), QStringLiteral("Right-Click"));
    for (int number = 3; number <= 14; ++number)
        QCOMPARE(stage.mouseButton(number).captionText(), QStringLiteral("Disable/Clear"));
    QCOMPARE(stage.view().memoryUsage(), 0U);
}

void tst_startup::anUnreadableFileShowsTheDefaults()
{
    const MainWindowStage stage("not a property list");
    QCOMPARE(stage.mouseButton(1).captionText(), QStringLiteral("Left-Click"));
}

void tst_startup::versionAndLiftDistanceAreUnknownAtFirst()
{
    const MainWindowStage stage;
    QCOMPARE(stage.view().firmwareNumber(), 0U);
    QCOMPARE(stage.view().liftDistance(), 0U);
}

void tst_startup::aMissingFolderIsNoObstacle()
{
    LocalNotificationCenter center;
    const TestSettings settings;
    const std::string path = settings.folder().toStdString() + "/missing/KT7R4Setting.xml";
    const Interface interface({path, &center, [] {}});
    QCOMPARE(center.posted.size(), std::size_t{2});
    QVERIFY(!QFile::exists(settings.folder() + QStringLiteral("/missing")));
}

KYR_GUI_TEST(tst_startup)
#include "tst_startup.moc"
