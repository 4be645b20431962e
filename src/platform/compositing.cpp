#include "platform/compositing.h"

#include "platform/x11connection.h"

#include <QtCore/QAbstractNativeEventFilter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

#ifdef Q_OS_LINUX
#include <cstdlib>
#include <memory>
#include <string>

#include <xcb/xcb.h>
#include <xcb/xfixes.h>
#endif

QEvent::Type compositingChangedEvent()
{
    static const int type = QEvent::registerEventType();
    return static_cast<QEvent::Type>(type);
}

#ifdef Q_OS_LINUX

namespace {

struct FreedReply
{
    void operator()(void *reply) const { std::free(reply); }
};

template <class Reply>
using Received = std::unique_ptr<Reply, FreedReply>;

/// A compositing manager owns a selection that is named after its screen.
std::string selectionName()
{
    char *host = nullptr;
    int display = 0;
    int screen = 0;
    if (xcb_parse_display(nullptr, &host, &display, &screen))
        std::free(host);
    return "_NET_WM_CM_S" + std::to_string(screen);
}

xcb_atom_t askSelection(xcb_connection_t *connection)
{
    const std::string name = selectionName();
    const Received<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(
        connection,
        xcb_intern_atom(connection, 0, static_cast<uint16_t>(name.size()), name.c_str()), nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

bool isOwned(xcb_connection_t *connection, xcb_atom_t selection)
{
    const Received<xcb_get_selection_owner_reply_t> reply(xcb_get_selection_owner_reply(
        connection, xcb_get_selection_owner(connection, selection), nullptr));
    return reply && reply->owner != XCB_WINDOW_NONE;
}

/// Knows whether a compositing manager runs. The toolkit has the display tell each change of the
/// selection's owner, for its own use.
class CompositingManager : public QObject, public QAbstractNativeEventFilter
{
public:
    CompositingManager(xcb_connection_t *connection, QObject *parent)
        : QObject(parent),
          m_selection(askSelection(connection)),
          m_runs(isOwned(connection, m_selection))
    {
        const auto *const xfixes = xcb_get_extension_data(connection, &xcb_xfixes_id);
        if (!xfixes || !xfixes->present)
            return;
        m_ownerChange = xfixes->first_event + XCB_XFIXES_SELECTION_NOTIFY;
        QCoreApplication::instance()->installNativeEventFilter(this);
    }

    bool runs() const { return m_runs; }

    bool nativeEventFilter(const QByteArray & /*type*/, void *message,
                           qintptr * /*result*/) override
    {
        constexpr int sentByProgram = 0x80;
        const auto *const event = static_cast<const xcb_generic_event_t *>(message);
        if ((event->response_type & ~sentByProgram) == m_ownerChange)
            ownerChanged(*static_cast<const xcb_xfixes_selection_notify_event_t *>(message));
        return false;
    }

private:
    void ownerChanged(const xcb_xfixes_selection_notify_event_t &change)
    {
        const bool runs = change.owner != XCB_WINDOW_NONE;
        if (change.selection != m_selection || runs == m_runs)
            return;
        m_runs = runs;
        QEvent changed(compositingChangedEvent());
        const QWidgetList windows = QApplication::topLevelWidgets();
        for (QWidget *window : windows)
            QCoreApplication::sendEvent(window, &changed);
    }

    xcb_atom_t m_selection;
    bool m_runs;
    int m_ownerChange = 0; ///< the number of the event; no event has the number 0
};

} // namespace

bool isComposited()
{
    xcb_connection_t *const connection = x11Connection();
    if (!connection)
        return true;
    static const auto *const manager = new CompositingManager(connection, qApp);
    return manager->runs();
}

#else

bool isComposited()
{
    return true;
}

#endif
