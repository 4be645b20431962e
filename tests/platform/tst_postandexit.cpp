#include "platform/notificationcenter_dbus.h"
#include "support/privatebus.h"
#include "support/suite.h"

/// A program may post and end at once, as the utility does when it is closed.
class tst_postandexit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsPostedLeavesAProgramThatEndsAtOnce();
};

void tst_postandexit::whatIsPostedLeavesAProgramThatEndsAtOnce()
{
    constexpr int runs = 50;
    const PrivateBus bus;
    DBusNotificationCenter center(bus.connection(QStringLiteral("receiver")));
    QList<int> received;
    center.addObserver(QStringLiteral("name"), QStringLiteral("object"),
                       [&received](const QVariantMap &userInfo) {
                           received.append(userInfo.value(QStringLiteral("number")).toInt());
                       });
    QList<int> posted;
    for (int number = 1; number <= runs; ++number) {
        QProcess program;
        program.setProcessEnvironment(bus.environment());
        program.start(QStringLiteral(POSTANDEXIT), {QString::number(number)});
        QVERIFY(program.waitForFinished());
        QCOMPARE(program.exitCode(), 0);
        posted.append(number);
    }
    // Posted last by this process itself: when it is here, so is all that came before.
    DBusNotificationCenter(bus.connection(QStringLiteral("sender")))
        .post(QStringLiteral("name"), QStringLiteral("object"), {{QStringLiteral("number"), 0}});
    QTRY_VERIFY(received.contains(0));
    posted.append(0);
    QCOMPARE(received, posted);
}

KYR_CORE_TEST(tst_postandexit)
#include "tst_postandexit.moc"
