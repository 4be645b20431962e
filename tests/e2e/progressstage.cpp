// The utility with the progress window shown as soon as the main window has the keyboard, on a
// settings file at the path given. There is no driver process: the progress stays where it is.

#include "app/interface.h"
#include "mainview/MainView.h"
#include "support/localnotificationcenter.h"

#include <QtGui/QWindow>
#include <QtWidgets/QApplication>

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    LocalNotificationCenter center;
    const Interface interface({argc == 2 ? argv[1] : "", &center, [] { QApplication::quit(); }});
    QObject::connect(
        &application, &QGuiApplication::focusWindowChanged, &interface.mainView(),
        [&] { interface.mainView().DisplayWriteDeviceBar(); }, Qt::SingleShotConnection);
    return QApplication::exec();
}
