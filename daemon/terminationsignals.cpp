#include "daemon/terminationsignals.h"

#include "platform/systemlog.h"

#include <sys/signalfd.h>
#include <unistd.h>

#include <csignal>

namespace {

int openSignals()
{
    sigset_t signals;
    ::sigemptyset(&signals);
    ::sigaddset(&signals, SIGTERM);
    ::sigaddset(&signals, SIGINT);
    const int descriptor = ::signalfd(-1, &signals, SFD_NONBLOCK | SFD_CLOEXEC);
    // Blocked only when they can be taken otherwise; else they end the program at once.
    if (descriptor >= 0)
        ::pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    return descriptor;
}

} // namespace

TerminationSignals::TerminationSignals(std::function<void()> handler) : m_descriptor(openSignals())
{
    if (m_descriptor < 0) {
        systemLog("signals cannot be watched");
        return;
    }
    m_notifier = std::make_unique<QSocketNotifier>(m_descriptor, QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(),
                     [this, handler = std::move(handler)] {
                         signalfd_siginfo taken = {};
                         if (::read(m_descriptor, &taken, sizeof taken) > 0)
                             handler();
                     });
}

TerminationSignals::~TerminationSignals()
{
    m_notifier.reset();
    if (m_descriptor >= 0)
        ::close(m_descriptor);
}
