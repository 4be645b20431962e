#include "platform/notificationcenter.h"

#include <QtCore/QCoreApplication>

#include <cstdlib>

/// Posts one notification with the number given as argument and ends at once: nothing that runs at
/// a program's end helps the message out.
int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const auto center = NotificationCenter::distributed();
    center->post(QStringLiteral("name"), QStringLiteral("object"),
                 {{QStringLiteral("number"), argc > 1 ? std::atoi(argv[1]) : 0}});
    std::_Exit(0);
}
