#include "platform/notificationcenter_dbus.h"

#include "platform/systemlog.h"

#include <QtDBus/QDBusMessage>

namespace {

const QString kPath = QStringLiteral("/org/kt7r4/DistributedNotificationCenter");
const QString kInterface = QStringLiteral("org.kt7r4.DistributedNotificationCenter");
const QString kSignal = QStringLiteral("Notification");
const QString kSignature = QStringLiteral("ssa{sv}");

} // namespace

DBusObserver::DBusObserver(NotificationCenter::Handler handler) : m_handler(std::move(handler)) {}

void DBusObserver::receive(const QString & /*name*/, const QString & /*object*/,
                           const QVariantMap &userInfo)
{
    m_handler(userInfo);
}

DBusNotificationCenter::DBusNotificationCenter(const QDBusConnection &bus) : m_bus(bus)
{
    if (!m_bus.isConnected())
        systemLog("no session bus: the driver process cannot be reached");
}

void DBusNotificationCenter::post(const QString &name, const QString &object,
                                  const QVariantMap &userInfo)
{
    if (!m_bus.isConnected())
        return;
    QDBusMessage message = QDBusMessage::createSignal(kPath, kInterface, kSignal);
    message << name << object << userInfo;
    m_bus.send(message);
    waitUntilSent();
}

/// The bus library hands messages over to a thread of its own, which writes them to the socket: the
/// program could end before that. That thread does things in order, and taking back an observer is
/// one that the library waits for; taking back one that was never added does nothing else, and
/// sends nothing.
void DBusNotificationCenter::waitUntilSent()
{
    m_bus.disconnect(QString(), kPath, kInterface, kSignal, {}, kSignature, &m_nobody,
                     SLOT(receive(QString, QString, QVariantMap)));
}

void DBusNotificationCenter::addObserver(const QString &name, const QString &object,
                                         Handler handler)
{
    auto observer = std::make_unique<DBusObserver>(std::move(handler));
    // The bus itself compares name and object, so that nothing else wakes the process; the
    // signature keeps out messages of another shape.
    m_bus.connect(QString(), kPath, kInterface, kSignal, {name, object}, kSignature, observer.get(),
                  SLOT(receive(QString, QString, QVariantMap)));
    m_observers.push_back(std::move(observer));
}

std::unique_ptr<NotificationCenter> NotificationCenter::distributed()
{
    return std::make_unique<DBusNotificationCenter>(QDBusConnection::sessionBus());
}
