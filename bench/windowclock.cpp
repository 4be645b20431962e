#include "windowclock.h"

#include <csignal>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <chrono>
#include <cstdlib>
#include <cstring>
#include <thread>

namespace {

template <class Event>
std::unique_ptr<Event, decltype(&std::free)> owned(Event *event)
{
    return {event, &std::free};
}

pid_t start(const std::string &program)
{
    const pid_t child = ::fork();
    if (child != 0)
        return child;
    const int nowhere = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
    ::dup2(nowhere, STDERR_FILENO);
    ::execl(program.c_str(), program.c_str(), nullptr);
    ::_exit(127);
}

/// Ends the program; the most memory it held, in KiB.
long endOf(pid_t child)
{
    ::kill(child, SIGKILL);
    struct rusage usage = {};
    ::wait4(child, nullptr, 0, &usage);
    return usage.ru_maxrss;
}

} // namespace

void WindowClock::Disconnect::operator()(xcb_connection_t *connection) const
{
    xcb_disconnect(connection);
}

WindowClock::WindowClock() : m_connection(xcb_connect(nullptr, nullptr))
{
    if (xcb_connection_has_error(m_connection.get())) {
        m_connection.reset();
        return;
    }
    const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection.get())).data;
    m_root = screen->root;
    m_middleX = static_cast<short>(screen->width_in_pixels / 2);
    m_middleY = static_cast<short>(screen->height_in_pixels / 2);
    const std::uint32_t events = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(m_connection.get(), m_root, XCB_CW_EVENT_MASK, &events);
    xcb_flush(m_connection.get());
    m_hasWindowManager = rootValues("_NET_SUPPORTING_WM_CHECK") > 0;
}

/// How many values a property of the root window holds.
unsigned WindowClock::rootValues(const char *property) const
{
    constexpr std::uint32_t most = 1000;
    const auto name = owned(xcb_intern_atom_reply(
        m_connection.get(),
        xcb_intern_atom(m_connection.get(), 0, static_cast<std::uint16_t>(std::strlen(property)),
                        property),
        nullptr));
    if (!name)
        return 0;
    const auto values = owned(xcb_get_property_reply(
        m_connection.get(),
        xcb_get_property(m_connection.get(), 0, m_root, name->atom, XCB_ATOM_WINDOW, 0, most),
        nullptr));
    return values ? values->value_len : 0;
}

WindowClock::Result WindowClock::measure(const std::string &program, Until until, unsigned windows)
{
    using Clock = std::chrono::steady_clock;
    while (const auto stale = owned(xcb_poll_for_event(m_connection.get()))) {
    }
    const unsigned others = managedWindows();
    const auto begin = Clock::now();
    const pid_t child = start(program);
    until == Until::Mapped ? waitForMapped() : waitForPixel(false);
    const std::chrono::duration<double, std::milli> taken = Clock::now() - begin;
    waitForPixel(false);
    while (m_hasWindowManager && managedWindows() < others + windows) {
    }
    const long resident = endOf(child);
    while (managedWindows() > others) {
    }
    waitForPixel(true);
    return {taken.count(), resident};
}

void WindowClock::waitForMapped()
{
    constexpr unsigned sentByClient = 0x80;
    while (const auto event = owned(xcb_wait_for_event(m_connection.get()))) {
        if ((event->response_type & ~sentByClient) == XCB_MAP_NOTIFY)
            return;
    }
}

unsigned WindowClock::managedWindows() const
{
    return rootValues("_NET_CLIENT_LIST");
}

/// Looks now and then: looking all the time would take the display, and one of the processors, from
/// the program that is measured.
void WindowClock::waitForPixel(bool black)
{
    constexpr std::chrono::microseconds betweenLooks(200);
    while (isMiddleBlack() != black)
        std::this_thread::sleep_for(betweenLooks);
}

bool WindowClock::isMiddleBlack()
{
    constexpr std::uint32_t colours = 0xFFFFFF;
    const auto cookie = xcb_get_image(m_connection.get(), XCB_IMAGE_FORMAT_Z_PIXMAP, m_root,
                                      m_middleX, m_middleY, 1, 1, colours);
    const auto image = owned(xcb_get_image_reply(m_connection.get(), cookie, nullptr));
    return !image ||
           (*reinterpret_cast<std::uint32_t *>(xcb_get_image_data(image.get())) & colours) == 0;
}
