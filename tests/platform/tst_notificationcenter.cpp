#include "platform/notificationcenter_dbus.h"
#include "support/logcapture.h"
#include "support/privatebus.h"
#include "support/suite.h"

#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusVariant>

#include <limits>

namespace {

const QString kName = QStringLiteral("name");
const QString kObject = QStringLiteral("object");
const QString kNumber = QStringLiteral("number");

QDBusMessage signalMessage()
{
    return QDBusMessage::createSignal(QStringLiteral("/org/kt7r4/DistributedNotificationCenter"),
                                      QStringLiteral("org.kt7r4.DistributedNotificationCenter"),
                                      QStringLiteral("Notification"));
}

} // namespace

/// A program's end of the bus, with the notifications that it was told.
struct NotificationEnd
{
    NotificationEnd(const PrivateBus &bus, const QString &name)
        : connection(bus.connection(name)), center(connection)
    {
    }

    void observe(const QString &name, const QString &object)
    {
        center.addObserver(name, object, [this](const QVariantMap &userInfo) {
            received.append(integerValue(userInfo, kNumber).value_or(-1));
        });
    }

    QDBusConnection connection;
    DBusNotificationCenter center;
    QList<std::int32_t> received;
};

class tst_notificationcenter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void integersOfAnyTypeAreTaken_data();
    void integersOfAnyTypeAreTaken();
    void anIntegerIsCutToItsLowHalf();
    void whatIsNoIntegerIsNotTaken_data();
    void whatIsNoIntegerIsNotTaken();

    void aNotificationReachesAnotherProgram();
    void aNotificationReachesEveryObserver();
    void aProgramHearsItself();
    void nameAndObjectMustBothBeTheSame();
    void aMessageOfAnotherShapeIsNotReceived();
    void everyIntegerTypeOfTheBusArrives_data();
    void everyIntegerTypeOfTheBusArrives();
    void aValueIsSentAsA32BitInteger();
    void notificationsArriveInOrder();
    void aHandlerMayPostAndObserve();
    void withoutABusPostsGoNowhere();

private:
    /// Posted last: when it is here, so is all that was posted before it by `from`.
    void waitForAll(NotificationEnd &from)
    {
        from.center.post(kName, kObject, {{kNumber, kLast}});
        QTRY_VERIFY(m_receiver->received.contains(kLast));
        m_receiver->received.removeAll(kLast);
    }

    static constexpr std::int32_t kLast = 999;
    std::unique_ptr<PrivateBus> m_bus;
    std::unique_ptr<NotificationEnd> m_sender;
    std::unique_ptr<NotificationEnd> m_receiver;
};

void tst_notificationcenter::initTestCase()
{
    m_bus = std::make_unique<PrivateBus>();
}

void tst_notificationcenter::init()
{
    m_sender = std::make_unique<NotificationEnd>(*m_bus, QStringLiteral("sender"));
    m_receiver = std::make_unique<NotificationEnd>(*m_bus, QStringLiteral("receiver"));
    QVERIFY(m_sender->connection.isConnected() && m_receiver->connection.isConnected());
    m_receiver->observe(kName, kObject);
    // A round trip: the bus knows the observer.
    QVERIFY(m_receiver->connection.registerService(QStringLiteral("test.Receiver")));
}

void tst_notificationcenter::cleanup()
{
    m_sender.reset();
    m_receiver.reset();
    QDBusConnection::disconnectFromBus(QStringLiteral("sender"));
    QDBusConnection::disconnectFromBus(QStringLiteral("receiver"));
}

void tst_notificationcenter::integersOfAnyTypeAreTaken_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("char") << QVariant::fromValue(char{7});
    QTest::newRow("signed char") << QVariant::fromValue(static_cast<signed char>(7));
    QTest::newRow("uchar") << QVariant::fromValue(uchar{7});
    QTest::newRow("short") << QVariant::fromValue(short{7});
    QTest::newRow("ushort") << QVariant::fromValue(ushort{7});
    QTest::newRow("int") << QVariant::fromValue(7);
    QTest::newRow("uint") << QVariant::fromValue(7U);
    QTest::newRow("long") << QVariant::fromValue(7L);
    QTest::newRow("ulong") << QVariant::fromValue(7UL);
    QTest::newRow("longlong") << QVariant::fromValue(7LL);
    QTest::newRow("ulonglong") << QVariant::fromValue(7ULL);
}

void tst_notificationcenter::integersOfAnyTypeAreTaken()
{
    QFETCH(const QVariant, value);
    QCOMPARE(integerValue({{kNumber, value}}, kNumber).value_or(-1), 7);
    QVERIFY(!integerValue({{kName, value}}, kNumber));
}

void tst_notificationcenter::anIntegerIsCutToItsLowHalf()
{
    const auto cut = [](const QVariant &value) {
        return integerValue({{kNumber, value}}, kNumber).value_or(0);
    };
    QCOMPARE(cut(QVariant::fromValue(short{-2})), -2);
    QCOMPARE(cut(0xFFFFFFFEU), -2);
    QCOMPARE(cut((1LL << 32) + 5), 5);
    QCOMPARE(cut(std::numeric_limits<qulonglong>::max()), -1);
}

void tst_notificationcenter::whatIsNoIntegerIsNotTaken_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("nothing") << QVariant();
    QTest::newRow("text") << QVariant(QStringLiteral("7"));
    QTest::newRow("double") << QVariant(7.0);
    QTest::newRow("float") << QVariant(7.0F);
    QTest::newRow("bool") << QVariant(true);
    QTest::newRow("list") << QVariant(QVariantList{7});
    QTest::newRow("bytes") << QVariant(QByteArray("7"));
    QTest::newRow("variant") << QVariant::fromValue(QDBusVariant(7));
}

void tst_notificationcenter::whatIsNoIntegerIsNotTaken()
{
    QFETCH(const QVariant, value);
    QVERIFY(!integerValue({{kNumber, value}}, kNumber));
}

void tst_notificationcenter::aNotificationReachesAnotherProgram()
{
    m_sender->center.post(kName, kObject, {{kNumber, 7}});
    QTRY_COMPARE(m_receiver->received, QList<std::int32_t>{7});
}

void tst_notificationcenter::aNotificationReachesEveryObserver()
{
    m_receiver->observe(kName, kObject);
    m_sender->observe(kName, kObject);
    m_sender->center.post(kName, kObject, {{kNumber, 7}});
    QTRY_COMPARE(m_receiver->received, (QList<std::int32_t>{7, 7}));
    QTRY_COMPARE(m_sender->received, QList<std::int32_t>{7});
}

void tst_notificationcenter::aProgramHearsItself()
{
    m_receiver->center.post(kName, kObject, {{kNumber, 7}});
    QTRY_COMPARE(m_receiver->received, QList<std::int32_t>{7});
}

void tst_notificationcenter::nameAndObjectMustBothBeTheSame()
{
    m_sender->center.post(kName, QStringLiteral("other"), {{kNumber, 1}});
    m_sender->center.post(QStringLiteral("other"), kObject, {{kNumber, 2}});
    m_sender->center.post(kObject, kName, {{kNumber, 3}});
    m_sender->center.post(kName, QString(), {{kNumber, 4}});
    m_sender->center.post(kName, QStringLiteral("object2"), {{kNumber, 5}});
    waitForAll(*m_sender);
    QCOMPARE(m_receiver->received, QList<std::int32_t>());
}

void tst_notificationcenter::aMessageOfAnotherShapeIsNotReceived()
{
    const QVariantMap userInfo{{kNumber, 1}};
    const QList<QVariantList> shapes = {{},
                                        {kName, kObject},
                                        {kName, kObject, 1},
                                        {kName, kObject, QStringList{kNumber}},
                                        {kName, kObject, userInfo, 1}};
    for (const QVariantList &arguments : shapes) {
        QDBusMessage message = signalMessage();
        message.setArguments(arguments);
        QVERIFY(m_sender->connection.send(message));
    }
    waitForAll(*m_sender);
    QCOMPARE(m_receiver->received, QList<std::int32_t>());
}

void tst_notificationcenter::everyIntegerTypeOfTheBusArrives_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("y") << QVariant::fromValue(uchar{7});
    QTest::newRow("n") << QVariant::fromValue(short{7});
    QTest::newRow("q") << QVariant::fromValue(ushort{7});
    QTest::newRow("i") << QVariant::fromValue(7);
    QTest::newRow("u") << QVariant::fromValue(7U);
    QTest::newRow("x") << QVariant::fromValue(7LL);
    QTest::newRow("t") << QVariant::fromValue(7ULL);
}

void tst_notificationcenter::everyIntegerTypeOfTheBusArrives()
{
    QFETCH(const QVariant, value);
    m_sender->center.post(kName, kObject, {{kNumber, value}});
    QTRY_COMPARE(m_receiver->received, QList<std::int32_t>{7});
}

void tst_notificationcenter::aValueIsSentAsA32BitInteger()
{
    int type = QMetaType::UnknownType;
    m_receiver->center.addObserver(kName, kObject, [&type](const QVariantMap &userInfo) {
        type = userInfo.value(kNumber).typeId();
    });
    m_sender->center.post(kName, kObject, {{kNumber, std::int32_t{7}}});
    QTRY_COMPARE(type, static_cast<int>(QMetaType::Int));
}

void tst_notificationcenter::notificationsArriveInOrder()
{
    QList<std::int32_t> posted;
    for (std::int32_t number = 0; number < 200; ++number) {
        m_sender->center.post(kName, kObject, {{kNumber, number}});
        posted.append(number);
    }
    waitForAll(*m_sender);
    QCOMPARE(m_receiver->received, posted);
}

void tst_notificationcenter::aHandlerMayPostAndObserve()
{
    const QString answer = QStringLiteral("answer");
    m_sender->observe(kName, answer);
    m_receiver->center.addObserver(kName, kObject, [this, answer](const QVariantMap &) {
        m_receiver->observe(kName, answer);
        m_receiver->center.post(kName, answer, {{kNumber, 8}});
    });
    m_sender->center.post(kName, kObject, {{kNumber, 7}});
    QTRY_COMPARE(m_sender->received, QList<std::int32_t>{8});
    QTRY_COMPARE(m_receiver->received, (QList<std::int32_t>{7, 8}));
}

void tst_notificationcenter::withoutABusPostsGoNowhere()
{
    const LogCapture log;
    DBusNotificationCenter center(QDBusConnection(QStringLiteral("no such connection")));
    center.addObserver(kName, kObject, [](const QVariantMap &) { QFAIL("nothing can arrive"); });
    center.post(kName, kObject, {{kNumber, 7}});
    QVERIFY(log.contains("no session bus: the driver process cannot be reached"));
    waitForAll(*m_sender);
    QCOMPARE(m_receiver->received, QList<std::int32_t>());
}

KYR_CORE_TEST(tst_notificationcenter)
#include "tst_notificationcenter.moc"
