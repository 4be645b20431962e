// Posts one report of the driver process: its object, its key and its value.

#include "driver/driverprotocol.h"
#include "platform/notificationcenter.h"

#include <QtCore/QCoreApplication>

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 4)
        return 1;
    NotificationCenter::distributed()->post(QLatin1String(driver::kNotificationName), arguments[1],
                                            {{arguments[2], arguments[3].toInt()}});
    return 0;
}
