#pragma once

#include "daemon/mousestore.h"

#include <string>
#include <string_view>

/// The mouse's memory for one profile. A write goes block by block into a spare bank and takes
/// effect as a whole, so that a write cut short leaves the old profile.
class OnboardMemory
{
public:
    /// Starts with what `store` holds.
    explicit OnboardMemory(const MouseStore &store) : m_store(store), m_bytes(store.loadMemory()) {}

    /// The profile in effect, as encodeProfile() made it; empty when there is none.
    const std::string &bytes() const { return m_bytes; }

    /// Empties the spare bank.
    void beginWrite();
    void writeBlock(std::string_view block);
    /// Puts the spare bank into effect and saves it.
    void finishWrite();

private:
    MouseStore m_store;
    std::string m_bytes;
    std::string m_spare;
};
