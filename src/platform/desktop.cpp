#include "platform/desktop.h"

#include <QtCore/QByteArray>
#include <QtCore/QtGlobal>

void preferPlacedWindows()
{
#ifdef Q_OS_LINUX
    // A Wayland session offers X11 beside; a choice already made by the user stands.
    if (qEnvironmentVariableIsSet("WAYLAND_DISPLAY") && qEnvironmentVariableIsSet("DISPLAY") &&
        !qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "xcb");
#endif
}
