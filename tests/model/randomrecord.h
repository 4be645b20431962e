#pragma once

#include "settingskeys.h"

#include "model/fixedtext.h"

#include <algorithm>
#include <cstring>
#include <random>
#include <string>

/// Records of made-up content, the same for the same seed, that a file can hold in full: texts are
/// repaired, and no event of a macro's list ends it early.

namespace randomrecord {

class Random
{
public:
    explicit Random(unsigned seed) : m_engine(seed) {}

    std::uint32_t below(std::uint32_t limit)
    {
        return static_cast<std::uint32_t>(m_engine() % limit);
    }
    std::uint32_t any() { return static_cast<std::uint32_t>(m_engine()); }

    std::string bytes(std::size_t most)
    {
        std::string result(below(static_cast<std::uint32_t>(most)), '\0');
        // Mostly plain letters, else hardly any text gets through unrepaired.
        for (char &byte : result)
            byte = static_cast<char>(below(20) == 0 ? below(256) : 32 + below(95));
        return result;
    }

    /// Kinds from 1 up, so that no event ends the list.
    KeymapEvent event()
    {
        return {below(INT32_MAX), 1 + below(INT32_MAX), any() % 2 ? below(100) : INT32_MAX};
    }

private:
    std::mt19937 m_engine;
};

inline void fillEvents(std::span<char> member, bool isKeymap, Random &random)
{
    const auto slots = static_cast<std::uint32_t>(member.size() / sizeof(KeymapEvent));
    const bool isFull = random.below(20) == 0;
    const std::uint32_t used = isFull ? slots : random.below(std::min(slots, 12U) + 1);
    for (std::uint32_t slot = 0; slot < used; ++slot) {
        KeymapEvent event = random.event();
        // The start and send keys are kept behind an empty slot too.
        if (!isKeymap && random.below(3) == 0)
            event.kind = 0;
        std::memcpy(&member[slot * sizeof event], &event, sizeof event);
    }
}

inline void fillMember(const Key &key, Place place, Random &random)
{
    const auto member = memberAt(m_Config, key, place);
    const std::uint32_t number = random.any();
    if (key.holds == Holds::Integer)
        std::memcpy(member.data(), &number, sizeof number);
    else if (key.holds == Holds::Text)
        SetText(member, random.bytes(2 * member.size()));
    else
        fillEvents(member, key.size == sizeof(MacroInfo::KEYMAP), random);
}

} // namespace randomrecord

/// Fills the whole of m_Config.
inline void fillRecord(unsigned seed)
{
    randomrecord::Random random(seed);
    m_Config = {};
    for (const Key &key : kSettingsKeys) {
        for (unsigned i = 0; i < kProfileCount * kMacroCount; ++i)
            randomrecord::fillMember(key, {i / kMacroCount, i % kMacroCount}, random);
    }
}
