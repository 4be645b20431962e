#include "app/interface.h"
#include "app/KyrGMAppDelegate.h"
#include "platform/desktop.h"
#include "platform/notificationcenter.h"

#include <QtWidgets/QApplication>

namespace {

constexpr char kSettingsPath[] = "/Users/Shared/KT7R4/KT7R4Setting.xml";

} // namespace

int main(int argc, char **argv)
{
    preferPlacedWindows();
    const QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("KyrGM"));

    const auto notifications = NotificationCenter::distributed();
    const Interface interface({kSettingsPath, notifications.get(), &QCoreApplication::quit});
    KyrGMAppDelegate delegate;
    delegate.setWindow(&interface.mainWindow());
    delegate.applicationDidFinishLaunching();
    return QApplication::exec();
}
