#pragma once

#include <QtCore/QAnimationDriver>
#include <QtCore/QCoreApplication>

/// The time of all animations while it lives: it stands still until a test lets some pass. It must
/// outlive them.
class AnimationClock : public QAnimationDriver
{
public:
    AnimationClock() { install(); }
    ~AnimationClock() override { settle(); }

    /// Lets that many milliseconds pass in one step, also for an animation just started.
    void pass(int milliseconds)
    {
        settle();
        m_elapsed += milliseconds;
        advance();
    }

    qint64 elapsed() const override { return m_elapsed; }

protected:
    void start() override
    {
        m_elapsed = 0;
        QAnimationDriver::start();
    }

private:
    /// Animations join and leave from the event loop, and start and stop the clock from there.
    static void settle()
    {
        for (int step = 0; step < 2; ++step)
            QCoreApplication::processEvents();
    }

    qint64 m_elapsed = 0; ///< since start()
};
