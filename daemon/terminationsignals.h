#pragma once

#include <QtCore/QSocketNotifier>

#include <functional>
#include <memory>

/// Takes SIGTERM and SIGINT as events of the event loop. Make it before any thread is started: the
/// signals are blocked in this thread and in those that it starts.
class TerminationSignals
{
public:
    explicit TerminationSignals(std::function<void()> handler);
    ~TerminationSignals();
    TerminationSignals(const TerminationSignals &) = delete;
    TerminationSignals &operator=(const TerminationSignals &) = delete;

private:
    int m_descriptor;
    std::unique_ptr<QSocketNotifier> m_notifier;
};
