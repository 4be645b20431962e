#pragma once

#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>
#include <QtCore/QTimer>

#include <algorithm>

/// While it lives, measures how long the event loop does not turn. What a busy machine lets the
/// program wait for a processor does not count.
class LoopPauses
{
public:
    LoopPauses()
    {
        m_statistics.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
        m_waited = waited();
        m_sinceTurn.start();
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { turn(); });
        m_timer.start(0);
    }

    /// The longest time so far, in milliseconds.
    qint64 longest()
    {
        turn();
        return m_longest / 1'000'000;
    }
    /// Whether the figure tells anything: a program with sanitizers takes several times as long.
    static constexpr bool isTelling()
    {
#ifdef __SANITIZE_ADDRESS__
        return false;
#else
        return true;
#endif
    }

private:
    /// Nanoseconds that this thread was ready to run and did not.
    qint64 waited()
    {
        m_statistics.seek(0);
        return m_statistics.readAll().split(' ').value(1).toLongLong();
    }
    void turn()
    {
        const qint64 elapsed = m_sinceTurn.nsecsElapsed();
        const qint64 waitedNow = waited();
        m_longest = std::max(m_longest, elapsed - (waitedNow - m_waited));
        m_waited = waitedNow;
        m_sinceTurn.start();
    }

    QFile m_statistics{QStringLiteral("/proc/thread-self/schedstat")};
    QTimer m_timer;
    QElapsedTimer m_sinceTurn;
    qint64 m_waited = 0;
    qint64 m_longest = 0;
};
