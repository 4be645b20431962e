#include "platform/taskswitcher.h"

#include "platform/x11connection.h"

#include <QtWidgets/QWidget>

#ifdef Q_OS_LINUX
#include <array>
#include <cstdlib>
#include <cstring>
#include <memory>

#include <xcb/xcb.h>
#endif

#ifdef Q_OS_LINUX

namespace {

struct Freed
{
    void operator()(xcb_intern_atom_reply_t *reply) const { std::free(reply); }
};

struct Atoms
{
    xcb_atom_t state = XCB_ATOM_NONE;
    std::array<xcb_atom_t, 2> skipped{}; ///< the states of a window that is left out
};

xcb_intern_atom_cookie_t ask(xcb_connection_t *connection, const char *name)
{
    return xcb_intern_atom(connection, 0, static_cast<uint16_t>(std::strlen(name)), name);
}

xcb_atom_t answer(xcb_connection_t *connection, xcb_intern_atom_cookie_t cookie)
{
    const std::unique_ptr<xcb_intern_atom_reply_t, Freed> reply(
        xcb_intern_atom_reply(connection, cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

/// In one round trip to the display.
Atoms askAtoms(xcb_connection_t *connection)
{
    const auto state = ask(connection, "_NET_WM_STATE");
    const auto taskbar = ask(connection, "_NET_WM_STATE_SKIP_TASKBAR");
    const auto pager = ask(connection, "_NET_WM_STATE_SKIP_PAGER");
    return {answer(connection, state), {answer(connection, taskbar), answer(connection, pager)}};
}

} // namespace

void keepOutOfTaskSwitcher(const QWidget &window)
{
    xcb_connection_t *const connection = x11Connection();
    if (!connection)
        return;
    static const Atoms atoms = askAtoms(connection);
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE,
                        static_cast<xcb_window_t>(window.winId()), atoms.state, XCB_ATOM_ATOM, 32,
                        atoms.skipped.size(), atoms.skipped.data());
}

#else

void keepOutOfTaskSwitcher(const QWidget & /*window*/) {}

#endif
