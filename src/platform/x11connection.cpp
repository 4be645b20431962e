#include "platform/x11connection.h"

#include <QtGui/QGuiApplication>

xcb_connection_t *x11Connection()
{
#ifdef Q_OS_LINUX
    const auto *const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    // Without a screen there is an interface, but no connection behind it.
    return x11 ? x11->connection() : nullptr;
#else
    return nullptr;
#endif
}
