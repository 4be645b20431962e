#include "daemon/buswatch.h"

#include "platform/systemlog.h"

#include <QtCore/QCoreApplication>

BusWatch::BusWatch(QDBusConnection bus)
{
    bus.connect(QString(), QStringLiteral("/org/freedesktop/DBus/Local"),
                QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"), this,
                SLOT(lost()));
}

void BusWatch::lost()
{
    systemLog("the session bus is gone");
    QCoreApplication::exit(1);
}
