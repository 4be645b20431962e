#pragma once

#include <QtCore/QObject>

#include <functional>
#include <string>

class OnboardMemory;

/// Writes a profile into the on-board memory in twenty blocks, one at each turn of the event loop,
/// and tells the progress after each: 5, 10, ... 100 per cent.
class OnboardWrite : public QObject
{
public:
    using Progress = std::function<void(int percent)>;

    /// `memory` must outlive the write. At 100 the profile is in effect and saved.
    OnboardWrite(OnboardMemory &memory, Progress progress);

    /// Begins to write `bytes` from the event loop. A write under way is given up: its progress
    /// ends short of 100.
    void start(std::string bytes);

private:
    void queueStep();
    void step();
    void writeNextBlock();

    OnboardMemory &m_memory;
    Progress m_progress;
    std::string m_bytes;
    std::size_t m_blocksDone = 0;
    bool m_stepQueued = false;
};
