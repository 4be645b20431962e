#include "daemon/driverprogram.h"
#include "driver/driverlink.h"
#include "platform/notificationcenter_dbus.h"
#include "support/suite.h"
#include "support/testsettings.h"

#include <QtCore/QDir>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusReply>

#include <csignal>

using driver::RequestType;

namespace {

const QString kClient = QStringLiteral("client");

} // namespace

/// The settings utility's end: posts requests and keeps the reports.
struct DriverClient
{
    explicit DriverClient(const PrivateBus &bus)
        : connection(bus.connection(kClient)), center(connection)
    {
        link.observe(driver::kProgressReport, [this](int value) { progress.append(value); });
        link.observe(driver::kFirmwareReport, [this](int value) { firmware.append(value); });
        link.observe(driver::kLiftDistanceReport, [this](int value) { lift.append(value); });
        link.observe(driver::kProfileReport, [this](int value) { profiles.append(value); });
    }
    ~DriverClient() { QDBusConnection::disconnectFromBus(kClient); }
    DriverClient(const DriverClient &) = delete;
    DriverClient &operator=(const DriverClient &) = delete;

    void post(const QVariantMap &userInfo)
    {
        center.post(QString::fromLatin1(driver::kNotificationName),
                    QString::fromLatin1(driver::kSettingChange), userInfo);
    }
    QDBusMessage call(const char *method, const QVariantList &arguments = {})
    {
        auto message = QDBusMessage::createMethodCall(
            QStringLiteral("org.kt7r4.Driver"), QStringLiteral("/org/kt7r4/Driver"),
            QStringLiteral("org.kt7r4.VirtualMouse"), QLatin1String(method));
        message.setArguments(arguments);
        return connection.call(message);
    }
    QString description() { return QDBusReply<QString>(call("Describe")).value(); }

    QDBusConnection connection;
    DBusNotificationCenter center;
    driver::DriverLink link{center};
    QList<int> progress;
    QList<int> firmware;
    QList<int> lift;
    QList<int> profiles;
};

namespace {

/// A settings file with the first-start defaults but for a few values.
void writeSettings(const TestSettings &settings, std::uint32_t profileId, FunctionCode fifthButton)
{
    xmlconfig store;
    store.setConfigfileName(settings.path());
    store.InitialConfigData();
    m_Config.PROFILE_ID = profileId;
    CurrentProfile().BUTTON[4] = fifthButton;
    store.WriteConfigFile();
}

QString settingsLine(int profile, int fifthButton)
{
    return QStringLiteral("profile %1: DPI_VALUE=2 DBCLICK_SPEED=10 SCROLL_SPEED=3 SENSITIVITY=6 "
                          "ADVANCED_SEN_X=10 ADVANCED_SEN_Y=10 LED_COLOR_R=255 LED_COLOR_G=60 "
                          "LED_COLOR_B=0 LED_INTENSITY=1 LED_PULSATION=1 BUTTON_1=1 BUTTON_2=2 "
                          "BUTTON_3=9 BUTTON_4=9 BUTTON_5=%2 BUTTON_6=9 BUTTON_7=9 BUTTON_8=9 "
                          "BUTTON_9=9 BUTTON_10=9 BUTTON_11=9 BUTTON_12=9 BUTTON_13=9 BUTTON_14=9")
        .arg(profile)
        .arg(fifthButton);
}

} // namespace

/// The driver process as other programs see it.
class tst_kt7r4d : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void takingSettingsIsLoggedAndProgressRisesToAHundred();
    void everyRequestToTakeSettingsIsCarriedOut();
    void theFirmwareVersionIsReported();
    void theLiftDistanceIsReportedAsSet();
    void aLiftDistanceOutOfRangeIsIgnored();
    void thePollingRateIsKept();
    void aPollingRateOutOfRangeIsIgnored();
    void theProfileButtonGoesRoundAndIsReported();
    void anActiveProfileOutOfRangeIsRefused();
    void theMouseKeepsItsMemoryOverARestart();
    void badFilesAreNamedAndTheNextGoodOneIsTaken_data();
    void badFilesAreNamedAndTheNextGoodOneIsTaken();
    void malformedRequestsAreNamedAndIgnored_data();
    void malformedRequestsAreNamedAndIgnored();
    void aStateFolderThatCannotBeMadeIsNamed();
    void terminationEndsWithSuccess_data();
    void terminationEndsWithSuccess();
    void aSecondDriverProcessEndsAtOnce();
    void withoutABusItEndsAtOnce();
    void whenTheBusGoesItEnds();
    void theOptionsAreExplained();

private:
    QStringList arguments() const
    {
        return {QStringLiteral("--settings"), QString::fromStdString(m_settings->path()),
                QStringLiteral("--state-dir"), m_stateFolder};
    }
    void start()
    {
        m_driver.reset(); // the name must be free before the next one asks for it
        m_driver = std::make_unique<DriverProgram>(m_bus->environment(), arguments());
        QTRY_VERIFY(m_driver->isReady());
    }
    void logs(const QString &line)
    {
        QTRY_VERIFY2(m_driver->says(QStringLiteral("kt7r4d: ") + line),
                     qPrintable(m_driver->lines().join(QLatin1Char('\n'))));
    }

    std::unique_ptr<TestSettings> m_settings;
    std::unique_ptr<PrivateBus> m_bus;
    std::unique_ptr<DriverClient> m_client;
    std::unique_ptr<DriverProgram> m_driver;
    QString m_stateFolder;
};

void tst_kt7r4d::init()
{
    m_settings = std::make_unique<TestSettings>();
    m_stateFolder = m_settings->folder() + QStringLiteral("/state/mouse");
    m_bus = std::make_unique<PrivateBus>();
    m_client = std::make_unique<DriverClient>(*m_bus);
    start();
}

void tst_kt7r4d::cleanup()
{
    m_driver.reset();
    m_client.reset();
    m_bus.reset();
}

void tst_kt7r4d::takingSettingsIsLoggedAndProgressRisesToAHundred()
{
    writeSettings(*m_settings, 0, 4);
    m_client->link.request(RequestType::TakeSettings);
    QTRY_VERIFY(m_client->progress.contains(100));
    const QList<int> &progress = m_client->progress;
    QVERIFY(progress.size() > 2);
    QVERIFY(std::ranges::adjacent_find(progress, std::greater_equal()) == progress.end());
    QVERIFY(progress.first() >= 0);
    QCOMPARE(progress.last(), 100);
    logs(settingsLine(1, 4));
    logs(QStringLiteral("profile 1 is on board"));
    QVERIFY(m_client->description().endsWith(settingsLine(1, 4)));
}

void tst_kt7r4d::everyRequestToTakeSettingsIsCarriedOut()
{
    writeSettings(*m_settings, 0, 4);
    m_client->link.request(RequestType::TakeSettings);
    QTRY_COMPARE(m_client->progress.count(100), 1);
    const auto steps = m_client->progress.size();
    writeSettings(*m_settings, 6, 16);
    m_client->link.request(RequestType::TakeSettings);
    QTRY_COMPARE(m_client->progress.count(100), 2);
    QCOMPARE(m_client->progress.size(), 2 * steps);
    logs(settingsLine(7, 16));
    logs(QStringLiteral("profile 7 is on board"));
    QVERIFY(m_client->description().contains(QStringLiteral("ACTIVE_PROFILE=7 ")));
}

void tst_kt7r4d::theFirmwareVersionIsReported()
{
    m_client->link.request(RequestType::ReportFirmware);
    QTRY_COMPARE(m_client->firmware, QList<int>{0x0102});
}

void tst_kt7r4d::theLiftDistanceIsReportedAsSet()
{
    m_client->link.request(RequestType::ReportLiftDistance);
    QTRY_COMPARE(m_client->lift, QList<int>{2});
    m_client->link.request(RequestType::SetLiftDistance, driver::kSetLiftDistanceKey, 0);
    m_client->link.request(RequestType::ReportLiftDistance);
    QTRY_COMPARE(m_client->lift, (QList<int>{2, 0}));
    logs(QStringLiteral("SetLiftDistance is now 0"));
}

void tst_kt7r4d::aLiftDistanceOutOfRangeIsIgnored()
{
    for (const int value : {-1, 3})
        m_client->link.request(RequestType::SetLiftDistance, driver::kSetLiftDistanceKey, value);
    logs(QStringLiteral("SetLiftDistance -1 is out of range and ignored"));
    logs(QStringLiteral("SetLiftDistance 3 is out of range and ignored"));
    QVERIFY(m_client->description().contains(QStringLiteral("LIFT_DISTANCE=2 ")));
}

void tst_kt7r4d::thePollingRateIsKept()
{
    QVERIFY(m_client->description().contains(QStringLiteral("POLLING_RATE=1 ")));
    m_client->link.request(RequestType::SetPollingRate, driver::kPollingRateKey, 3);
    logs(QStringLiteral("PollingRate is now 3"));
    QVERIFY(m_client->description().contains(QStringLiteral("POLLING_RATE=3 ")));
}

void tst_kt7r4d::aPollingRateOutOfRangeIsIgnored()
{
    for (const int value : {0, 4})
        m_client->link.request(RequestType::SetPollingRate, driver::kPollingRateKey, value);
    logs(QStringLiteral("PollingRate 0 is out of range and ignored"));
    logs(QStringLiteral("PollingRate 4 is out of range and ignored"));
    QVERIFY(m_client->description().contains(QStringLiteral("POLLING_RATE=1 ")));
}

void tst_kt7r4d::theProfileButtonGoesRoundAndIsReported()
{
    const QList<int> expected = {2, 3, 4, 5, 6, 7, 8, 9, 10, 1};
    QList<int> answered;
    for (qsizetype press = 0; press < expected.size(); ++press)
        answered.append(QDBusReply<int>(m_client->call("PressProfileButton")).value());
    QCOMPARE(answered, expected);
    QTRY_COMPARE(m_client->profiles, expected);
}

void tst_kt7r4d::anActiveProfileOutOfRangeIsRefused()
{
    QCOMPARE(QDBusReply<bool>(m_client->call("SetActiveProfile", {10})).value(), true);
    for (const int number : {-1, 0, 11}) {
        const QDBusReply<bool> reply = m_client->call("SetActiveProfile", {number});
        QVERIFY(reply.isValid());
        QCOMPARE(reply.value(), false);
    }
    QCOMPARE(QDBusReply<int>(m_client->call("PressProfileButton")).value(), 1);
    QTRY_COMPARE(m_client->profiles, (QList<int>{10, 1}));
}

void tst_kt7r4d::theMouseKeepsItsMemoryOverARestart()
{
    writeSettings(*m_settings, 2, 4);
    m_client->link.request(RequestType::SetPollingRate, driver::kPollingRateKey, 2);
    m_client->link.request(RequestType::SetLiftDistance, driver::kSetLiftDistanceKey, 1);
    m_client->link.request(RequestType::TakeSettings);
    QTRY_VERIFY(m_client->progress.contains(100));
    m_client->call("PressProfileButton");
    const QString before = m_client->description();
    QCOMPARE(before, QStringLiteral("POLLING_RATE=2 LIFT_DISTANCE=1 ACTIVE_PROFILE=4 ") +
                         settingsLine(3, 4));
    start();
    QCOMPARE(m_client->description(), before);
}

void tst_kt7r4d::badFilesAreNamedAndTheNextGoodOneIsTaken_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("said");
    QTest::newRow("missing") << "missing" << QStringLiteral("is missing");
    QTest::newRow("folder") << "folder" << QStringLiteral("cannot be read");
    QTest::newRow("text") << "text" << QStringLiteral("is not a property list");
    QTest::newRow("empty") << "empty" << QStringLiteral("is not a property list");
    QTest::newRow("cut short") << "cut" << QStringLiteral("is not a property list");
}

void tst_kt7r4d::badFilesAreNamedAndTheNextGoodOneIsTaken()
{
    QFETCH(const QString, kind);
    QFETCH(const QString, said);
    writeSettings(*m_settings, 0, 4);
    m_client->link.request(RequestType::TakeSettings);
    QTRY_COMPARE(m_client->progress.count(100), 1);
    const QString before = m_client->description();
    const auto steps = m_client->progress.size();

    const QString path = QString::fromStdString(m_settings->path());
    const QByteArray good = m_settings->bytes();
    QVERIFY(QFile::remove(path));
    if (kind == QLatin1String("folder"))
        QVERIFY(QDir().mkdir(path));
    else if (kind != QLatin1String("missing"))
        m_settings->put(kind == QLatin1String("cut")    ? good.left(good.size() / 2)
                        : kind == QLatin1String("text") ? QByteArray("PROFILE_ID = 1\n")
                                                        : QByteArray());
    m_client->link.request(RequestType::TakeSettings);
    logs(path + QLatin1Char(' ') + said + QStringLiteral(": the mouse stays as it is"));
    QCOMPARE(m_client->description(), before);
    QCOMPARE(m_client->progress.size(), steps);

    QDir().rmdir(path);
    writeSettings(*m_settings, 1, 5);
    m_client->link.request(RequestType::TakeSettings);
    logs(settingsLine(2, 5));
    QTRY_COMPARE(m_client->progress.count(100), 2);
}

void tst_kt7r4d::malformedRequestsAreNamedAndIgnored_data()
{
    const QString type = QStringLiteral("Kt7R4SettingChangeType");
    const QString noType =
        QStringLiteral("a request without an integer Kt7R4SettingChangeType is ignored");
    QTest::addColumn<QVariantMap>("userInfo");
    QTest::addColumn<QString>("said");
    QTest::newRow("nothing") << QVariantMap() << noType;
    QTest::newRow("no type") << QVariantMap{{QStringLiteral("PollingRate"), 3}} << noType;
    QTest::newRow("text type") << QVariantMap{{type, QStringLiteral("0")}} << noType;
    QTest::newRow("double type") << QVariantMap{{type, 0.0}} << noType;
    QTest::newRow("list type") << QVariantMap{{type, QStringList{QStringLiteral("0")}}} << noType;
    for (const int unknown : {-1, 1, 10, 2147483647}) {
        QTest::addRow("type %d", unknown)
            << QVariantMap{{type, unknown}}
            << QStringLiteral("a request of unknown type %1 is ignored").arg(unknown);
    }
    const QString noRate =
        QStringLiteral("a request of type 2 without an integer PollingRate is ignored");
    QTest::newRow("no rate") << QVariantMap{{type, 2}} << noRate;
    QTest::newRow("text rate") << QVariantMap{{type, 2},
                                              {QStringLiteral("PollingRate"), QStringLiteral("3")}}
                               << noRate;
    QTest::newRow("no distance")
        << QVariantMap{{type, 12}}
        << QStringLiteral("a request of type 12 without an integer SetLiftDistance is ignored");
}

void tst_kt7r4d::malformedRequestsAreNamedAndIgnored()
{
    QFETCH(const QVariantMap, userInfo);
    QFETCH(const QString, said);
    const QString before = m_client->description();
    m_client->post(userInfo);
    logs(said);
    QCOMPARE(m_driver->lines().size(), 2); // "ready" and this one
    QCOMPARE(m_client->description(), before);
}

void tst_kt7r4d::aStateFolderThatCannotBeMadeIsNamed()
{
    m_settings->put("a file, not a folder");
    m_stateFolder = QString::fromStdString(m_settings->path()) + QStringLiteral("/state");
    start();
    logs(m_stateFolder + QStringLiteral(" cannot be made (Not a directory): the mouse forgets its "
                                        "memory when the program ends"));
    m_client->link.request(RequestType::SetLiftDistance, driver::kSetLiftDistanceKey, 1);
    m_client->link.request(RequestType::ReportLiftDistance);
    QTRY_COMPARE(m_client->lift, QList<int>{1});
}

void tst_kt7r4d::terminationEndsWithSuccess_data()
{
    QTest::addColumn<int>("signalNumber");
    QTest::newRow("SIGTERM") << SIGTERM;
    QTest::newRow("SIGINT") << SIGINT;
}

void tst_kt7r4d::terminationEndsWithSuccess()
{
    QFETCH(const int, signalNumber);
    QCOMPARE(::kill(static_cast<pid_t>(m_driver->id()), signalNumber), 0);
    QTRY_VERIFY(m_driver->hasEnded(0));
}

void tst_kt7r4d::aSecondDriverProcessEndsAtOnce()
{
    const DriverProgram second(m_bus->environment(), arguments());
    QTRY_VERIFY(second.hasEnded(1));
    QCOMPARE(second.lines(),
             QStringList{QStringLiteral(
                 "kt7r4d: org.kt7r4.Driver is taken: another driver process is running")});
    QVERIFY(m_driver->isRunning());
}

void tst_kt7r4d::withoutABusItEndsAtOnce()
{
    auto environment = m_bus->environment();
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"),
                       QStringLiteral("unix:path=/nonexistent/bus"));
    const DriverProgram driver(environment, arguments());
    QTRY_VERIFY(driver.hasEnded(1));
    QCOMPARE(driver.lines(), QStringList{QStringLiteral("kt7r4d: there is no session bus")});
}

void tst_kt7r4d::whenTheBusGoesItEnds()
{
    m_bus->stop();
    QTRY_VERIFY(m_driver->hasEnded(1));
    QVERIFY(m_driver->says(QStringLiteral("kt7r4d: the session bus is gone")));
}

void tst_kt7r4d::theOptionsAreExplained()
{
    DriverProgram help(m_bus->environment(), {QStringLiteral("--help")});
    QTRY_VERIFY(help.hasEnded(0));
    const QByteArray text = help.standardOutput();
    for (const char *const option : {"--settings <PATH>", "--state-dir <DIR>", "--version"})
        QVERIFY2(text.contains(option), option);
    const DriverProgram unknown(m_bus->environment(), {QStringLiteral("--unknown")});
    QTRY_VERIFY(unknown.hasEnded(1));
}

KYR_CORE_TEST(tst_kt7r4d)
#include "tst_kt7r4d.moc"
