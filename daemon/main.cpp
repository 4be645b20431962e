#include "daemon/buswatch.h"
#include "daemon/driverprocess.h"
#include "daemon/options.h"
#include "daemon/terminationsignals.h"
#include "daemon/virtualmouse.h"
#include "daemon/virtualmouseinterface.h"
#include "platform/notificationcenter_dbus.h"
#include "platform/systemlog.h"

#include <QtCore/QCoreApplication>

namespace {

const QString kService = QStringLiteral("org.kt7r4.Driver");
const QString kObject = QStringLiteral("/org/kt7r4/Driver");

int run(QDBusConnection bus, const Options &options)
{
    const BusWatch watch(bus);
    DBusNotificationCenter center(bus);
    xmlconfig().setConfigfileName(options.settings);
    VirtualMouse mouse{MouseStore(options.stateFolder)};
    DriverProcess driver(center, mouse);
    VirtualMouseInterface interface(driver);
    bus.registerObject(kObject, &interface, QDBusConnection::ExportScriptableInvokables);
    // Comes last: the bus answers it only after it has taken the observers' matches, so that no
    // request is missed from here on.
    if (!bus.registerService(kService)) {
        systemLog("%s is taken: another driver process is running", qPrintable(kService));
        return 1;
    }
    systemLog("ready");
    return QCoreApplication::exec();
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("kt7r4d"));
    QCoreApplication::setApplicationVersion(QStringLiteral(KT7R4D_VERSION));
    setSystemLogName("kt7r4d");
    const Options options = parseOptions(application);
    const TerminationSignals termination([] { QCoreApplication::quit(); });
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        systemLog("there is no session bus");
        return 1;
    }
    return run(bus, options);
}
