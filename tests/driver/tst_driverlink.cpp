#include "driver/driverlink.h"
#include "support/localnotificationcenter.h"
#include "support/suite.h"

using driver::DriverLink;
using driver::Report;
using driver::RequestType;

/// What goes over the link to the driver process and what is taken from it.
class tst_driverlink : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aRequestIsExactlyItsMessage_data();
    void aRequestIsExactlyItsMessage();
    void aReportHandsOutItsNumber_data();
    void aReportHandsOutItsNumber();
    void anyIntegerTypeIsTaken_data();
    void anyIntegerTypeIsTaken();
    void aReportWithoutItsNumberIsIgnored_data();
    void aReportWithoutItsNumberIsIgnored();
    void aReportUnderAnotherNameIsNotReceived_data();
    void aReportUnderAnotherNameIsNotReceived();
    void everyReceiverOfAReportGetsIt();
};

namespace {

QVariantMap numbers(std::initializer_list<std::pair<const char *, int>> entries)
{
    QVariantMap result;
    for (const auto &[key, value] : entries)
        result[QString::fromLatin1(key)] = value;
    return result;
}

/// The numbers that a link hands out for one kind of report.
struct Listener
{
    explicit Listener(const Report &report)
    {
        link.observe(report, [this](std::int32_t number) { received.push_back(number); });
    }
    void post(const char *name, const char *object, const QVariantMap &userInfo)
    {
        center.post(QString::fromLatin1(name), QString::fromLatin1(object), userInfo);
    }

    LocalNotificationCenter center;
    DriverLink link{center};
    std::vector<int> received;
};

using Request = void (*)(DriverLink &);

} // namespace

void tst_driverlink::aRequestIsExactlyItsMessage_data()
{
    QTest::addColumn<Request>("request");
    QTest::addColumn<QVariantMap>("userInfo");
    const auto row = [](const char *name, Request request, const QVariantMap &userInfo) {
        QTest::newRow(name) << request << userInfo;
    };
    row(
        "take the settings", [](DriverLink &link) { link.request(RequestType::TakeSettings); },
        numbers({{"Kt7R4SettingChangeType", 0}}));
    row(
        "polling rate",
        [](DriverLink &link) {
            link.request(RequestType::SetPollingRate, driver::kPollingRateKey, 3);
        },
        numbers({{"Kt7R4SettingChangeType", 2}, {"PollingRate", 3}}));
    row(
        "report the firmware", [](DriverLink &link) { link.request(RequestType::ReportFirmware); },
        numbers({{"Kt7R4SettingChangeType", 9}}));
    row(
        "report the lift distance",
        [](DriverLink &link) { link.request(RequestType::ReportLiftDistance); },
        numbers({{"Kt7R4SettingChangeType", 11}}));
    row(
        "lift distance",
        [](DriverLink &link) {
            link.request(RequestType::SetLiftDistance, driver::kSetLiftDistanceKey, 0);
        },
        numbers({{"Kt7R4SettingChangeType", 12}, {"SetLiftDistance", 0}}));
}

void tst_driverlink::aRequestIsExactlyItsMessage()
{
    QFETCH(Request, request);
    QFETCH(QVariantMap, userInfo);
    LocalNotificationCenter center;
    DriverLink link(center);
    request(link);
    QCOMPARE(center.posted.size(), std::size_t{1});
    QCOMPARE(center.posted[0].name, QStringLiteral("QuarnsetKt7R4"));
    QCOMPARE(center.posted[0].object, QStringLiteral("Kt7R4SettingChange"));
    QCOMPARE(center.posted[0].userInfo, userInfo);
    for (const QVariant &value : center.posted[0].userInfo)
        QCOMPARE(value.typeId(), int{QMetaType::Int});
}

void tst_driverlink::aReportHandsOutItsNumber_data()
{
    QTest::addColumn<const Report *>("report");
    QTest::addColumn<QString>("object");
    QTest::addColumn<QString>("key");
    const auto row = [](const Report &report, const char *object, const char *key) {
        QTest::newRow(object) << &report << QString::fromLatin1(object) << QString::fromLatin1(key);
    };
    row(driver::kProfileReport, "Kt7R4ProfileChange", "ProfileNumber");
    row(driver::kProgressReport, "Kt7R4WriteToDeviceChange", "PosNumber");
    row(driver::kFirmwareReport, "Kt7R4DeviceFWVersion", "Kt7R4FWNumber");
    row(driver::kLiftDistanceReport, "Kt7R4LiftDistance", "Kt7R4LiftDistance");
}

void tst_driverlink::aReportHandsOutItsNumber()
{
    QFETCH(const Report *, report);
    QFETCH(QString, object);
    QFETCH(QString, key);
    Listener listener(*report);
    for (int value : {0, 1, -1, INT_MAX, INT_MIN})
        listener.center.post(QStringLiteral("QuarnsetKt7R4"), object,
                             {{key, value}, {QStringLiteral("Another"), 9}});
    QCOMPARE(listener.received, (std::vector<int>{0, 1, -1, INT_MAX, INT_MIN}));
}

void tst_driverlink::anyIntegerTypeIsTaken_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("number");
    QTest::newRow("byte") << QVariant::fromValue<uchar>(200) << 200;
    QTest::newRow("short") << QVariant::fromValue<short>(-7) << -7;
    QTest::newRow("unsigned short") << QVariant::fromValue<ushort>(65535) << 65535;
    QTest::newRow("unsigned") << QVariant(4294967295U) << -1;
    QTest::newRow("long") << QVariant(qlonglong{-5}) << -5;
    QTest::newRow("longer than 32 bits") << QVariant(qlonglong{0x100000002}) << 2;
    QTest::newRow("unsigned long") << QVariant(qulonglong{7}) << 7;
}

void tst_driverlink::anyIntegerTypeIsTaken()
{
    QFETCH(QVariant, value);
    QFETCH(int, number);
    Listener listener(driver::kProfileReport);
    listener.post("QuarnsetKt7R4", "Kt7R4ProfileChange",
                  {{QStringLiteral("ProfileNumber"), value}});
    QCOMPARE(listener.received, std::vector{number});
}

void tst_driverlink::aReportWithoutItsNumberIsIgnored_data()
{
    QTest::addColumn<QVariantMap>("userInfo");
    const QString key = QStringLiteral("ProfileNumber");
    QTest::newRow("nothing") << QVariantMap();
    QTest::newRow("another key") << numbers({{"PosNumber", 3}});
    QTest::newRow("another case") << numbers({{"profilenumber", 3}});
    QTest::newRow("text") << QVariantMap{{key, QStringLiteral("3")}};
    QTest::newRow("fraction") << QVariantMap{{key, 3.0}};
    QTest::newRow("flag") << QVariantMap{{key, true}};
    QTest::newRow("list") << QVariantMap{{key, QVariantList{3}}};
    QTest::newRow("empty value") << QVariantMap{{key, QVariant()}};
}

void tst_driverlink::aReportWithoutItsNumberIsIgnored()
{
    QFETCH(QVariantMap, userInfo);
    Listener listener(driver::kProfileReport);
    listener.post("QuarnsetKt7R4", "Kt7R4ProfileChange", userInfo);
    QVERIFY(listener.received.empty());
}

void tst_driverlink::aReportUnderAnotherNameIsNotReceived_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("object");
    const auto row = [](const char *what, const char *name, const char *object) {
        QTest::newRow(what) << QByteArray(name) << QByteArray(object);
    };
    row("another object", "QuarnsetKt7R4", "Kt7R4ProfileChange");
    row("the requests' object", "QuarnsetKt7R4", "Kt7R4SettingChange");
    row("no object", "QuarnsetKt7R4", "");
    row("another name", "Quarnset", "Kt7R4LiftDistance");
    row("name and object swapped", "Kt7R4LiftDistance", "QuarnsetKt7R4");
}

void tst_driverlink::aReportUnderAnotherNameIsNotReceived()
{
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, object);
    Listener listener(driver::kLiftDistanceReport);
    listener.post(name, object, numbers({{"Kt7R4LiftDistance", 2}}));
    QVERIFY(listener.received.empty());
}

void tst_driverlink::everyReceiverOfAReportGetsIt()
{
    Listener listener(driver::kProfileReport);
    int second = 0;
    listener.link.observe(driver::kProfileReport, [&](std::int32_t number) { second = number; });
    listener.post("QuarnsetKt7R4", "Kt7R4ProfileChange", numbers({{"ProfileNumber", 4}}));
    QCOMPARE(listener.received, std::vector{4});
    QCOMPARE(second, 4);
}

KYR_PLAIN_TEST(tst_driverlink)
#include "tst_driverlink.moc"
