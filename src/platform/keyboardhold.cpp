#include "platform/keyboardhold.h"

#include "platform/systemlog.h"
#include "platform/x11connection.h"

#include <QtGui/QWindow>
#include <QtWidgets/QWidget>

#ifdef Q_OS_LINUX

#include <cstdlib>

// The library's header uses a word of the language as a name.
#define explicit explicit_
#include <xcb/xkb.h>
#undef explicit

namespace {

/// By itself the display sends a release and a press for each repetition. The toolkit tells them
/// from real ones by what has arrived already, and so by chance not always.
void setDetectableRepeat(xcb_connection_t &connection, bool detectable)
{
    const xcb_query_extension_reply_t *const keyboard =
        xcb_get_extension_data(&connection, &xcb_xkb_id);
    if (!keyboard || !keyboard->present)
        return;
    constexpr std::uint32_t flag = XCB_XKB_PER_CLIENT_FLAG_DETECTABLE_AUTO_REPEAT;
    const auto request = xcb_xkb_per_client_flags(&connection, XCB_XKB_ID_USE_CORE_KBD, flag,
                                                  detectable ? flag : 0, 0, 0, 0);
    std::free(xcb_xkb_per_client_flags_reply(&connection, request, nullptr));
}

} // namespace

void holdKeyboard(QWidget &window, bool hold)
{
    xcb_connection_t *const connection = x11Connection();
    QWindow *const handle = window.windowHandle();
    if (!connection || !handle)
        return;
    if (!handle->setKeyboardGrabEnabled(hold) && hold)
        systemLog("another program holds the keyboard: the desktop's shortcuts stay the desktop's");
    setDetectableRepeat(*connection, hold);
}

#else

void holdKeyboard(QWidget & /*window*/, bool /*hold*/) {}

#endif
