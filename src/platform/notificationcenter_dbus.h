#pragma once

#include "platform/notificationcenter.h"

#include <QtCore/QObject>
#include <QtDBus/QDBusConnection>

#include <vector>

/// One observer: the slot that the bus library calls.
class DBusObserver : public QObject
{
    Q_OBJECT

public:
    explicit DBusObserver(NotificationCenter::Handler handler);

public Q_SLOTS:
    void receive(const QString &name, const QString &object, const QVariantMap &userInfo);

private:
    NotificationCenter::Handler m_handler;
};

/// Distributed notifications as D-Bus signals on a message bus.
class DBusNotificationCenter : public NotificationCenter
{
public:
    /// A bus that is not connected swallows every post and delivers nothing.
    explicit DBusNotificationCenter(const QDBusConnection &bus);

    void post(const QString &name, const QString &object, const QVariantMap &userInfo) override;
    void addObserver(const QString &name, const QString &object, Handler handler) override;

private:
    void waitUntilSent();

    QDBusConnection m_bus;
    DBusObserver m_nobody{[](const QVariantMap &) {}};
    std::vector<std::unique_ptr<DBusObserver>> m_observers;
};
