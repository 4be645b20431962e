#include "app/application.h"

#include "app/appicon.h"
#include "app/firstpainting.h"
#include "app/interface.h"
#include "app/KyrGMAppDelegate.h"
#include "app/skinpalette.h"
#include "platform/canvas.h"
#include "platform/desktop.h"
#include "platform/desktoppanels.h"
#include "platform/notificationcenter.h"
#include "platform/opening.h"

#include <QtGui/QFontDatabase>
#include <QtWidgets/QApplication>

#include <thread>

namespace {

/// Reading the list of the installed fonts takes longest of all that the first picture waits for,
/// and needs nothing of the program's: it is read while the display and the desktop put up the
/// window.
void findFonts()
{
    QFontDatabase::families();
}

} // namespace

int runKyrGM(int argc, char **argv, const Places &places)
{
    preferPlacedWindows();
    const QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("KyrGM"));
    QApplication::setFont(skinFont());
    QGuiApplication::setDesktopFileName(QStringLiteral("KyrGM"));
    useSkinPalette();
    const std::jthread fonts(findFonts);

    const auto notifications = NotificationCenter::distributed();
    // Not quit(): that asks the windows to close first, and to the main window closing means to
    // commit, which Cancel must not do.
    DesktopPanels panels;
    const Interface interface({places.settingsPath, notifications.get(),
                               [] { QCoreApplication::exit(); }, &panels, openFile, openAddress,
                               places.hosts});
    afterFirstPainting(interface.mainWindow(), setIcon);
    KyrGMAppDelegate delegate;
    delegate.setWindow(&interface.mainWindow());
    delegate.applicationDidFinishLaunching();
    return QApplication::exec();
}
