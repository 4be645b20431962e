#include "daemon/onboardwrite.h"

#include "daemon/onboardmemory.h"

namespace {

constexpr std::size_t kBlockCount = 20;

} // namespace

OnboardWrite::OnboardWrite(OnboardMemory &memory, Progress progress)
    : m_memory(memory), m_progress(std::move(progress))
{
}

void OnboardWrite::start(std::string bytes)
{
    m_bytes = std::move(bytes);
    m_blocksDone = 0;
    m_memory.beginWrite();
    queueStep();
}

void OnboardWrite::queueStep()
{
    if (m_stepQueued)
        return;
    m_stepQueued = true;
    QMetaObject::invokeMethod(
        this, [this] { step(); }, Qt::QueuedConnection);
}

void OnboardWrite::step()
{
    m_stepQueued = false;
    writeNextBlock();
    const auto percent = static_cast<int>(m_blocksDone * 100 / kBlockCount);
    if (m_blocksDone < kBlockCount)
        queueStep();
    else
        m_memory.finishWrite();
    // Last: whoever hears of the progress may start another write.
    m_progress(percent);
}

void OnboardWrite::writeNextBlock()
{
    const std::size_t from = m_bytes.size() * m_blocksDone / kBlockCount;
    ++m_blocksDone;
    const std::size_t to = m_bytes.size() * m_blocksDone / kBlockCount;
    m_memory.writeBlock(std::string_view(m_bytes).substr(from, to - from));
}
