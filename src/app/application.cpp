#include "app/application.h"

#include "app/appicon.h"
#include "app/interface.h"
#include "app/KyrGMAppDelegate.h"
#include "app/skinpalette.h"
#include "platform/canvas.h"
#include "platform/desktop.h"
#include "platform/desktoppanels.h"
#include "platform/notificationcenter.h"
#include "platform/opening.h"

#include <QtWidgets/QApplication>

int runKyrGM(int argc, char **argv, const Places &places)
{
    preferPlacedWindows();
    const QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("KyrGM"));
    QApplication::setFont(skinFont());
    QGuiApplication::setDesktopFileName(QStringLiteral("KyrGM"));
    useSkinPalette();

    const auto notifications = NotificationCenter::distributed();
    // Not quit(): that asks the windows to close first, and to the main window closing means to
    // commit, which Cancel must not do.
    DesktopPanels panels;
    const Interface interface({places.settingsPath, notifications.get(),
                               [] { QCoreApplication::exit(); }, &panels, openFile, openAddress,
                               places.hosts});
    setIconOncePainted(interface.mainWindow());
    KyrGMAppDelegate delegate;
    delegate.setWindow(&interface.mainWindow());
    delegate.applicationDidFinishLaunching();
    return QApplication::exec();
}
