#include "daemon/onboardmemory.h"

void OnboardMemory::beginWrite()
{
    m_spare.clear();
}

void OnboardMemory::writeBlock(std::string_view block)
{
    m_spare += block;
}

void OnboardMemory::finishWrite()
{
    m_bytes.swap(m_spare);
    m_spare.clear();
    m_store.saveMemory(m_bytes);
}
