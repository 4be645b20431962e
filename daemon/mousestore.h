#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// What the mouse remembers of itself. A member holds a value of its range at all times.
struct MouseState
{
    std::int32_t pollingRate = 1;   ///< 1 = 1000 Hz, 2 = 500 Hz, 3 = 250 Hz
    std::int32_t liftDistance = 2;  ///< 0 = lowest, 1 = lower, 2 = default
    std::int32_t activeProfile = 1; ///< 1..10

    static bool isPollingRate(std::int32_t code) { return code >= 1 && code <= 3; }
    static bool isLiftDistance(std::int32_t code) { return code >= 0 && code <= 2; }
    static bool isProfileNumber(std::int32_t number) { return number >= 1 && number <= 10; }

    bool operator==(const MouseState &) const = default;
};

/// The folder in which the virtual mouse keeps its memory while it is switched off: one property
/// list for the state, one for the on-board memory.
class MouseStore
{
public:
    /// A store without a folder: it remembers nothing.
    MouseStore() = default;
    /// Makes the folder when it is missing. When that fails, says so in the log and remembers
    /// nothing.
    explicit MouseStore(const std::string &folder);

    /// The state last saved; the state as delivered for what is missing or out of range.
    MouseState loadState() const;
    /// The on-board memory last saved; empty when there is none.
    std::string loadMemory() const;

    /// What cannot be saved is said in the log.
    void saveState(const MouseState &state) const;
    void saveMemory(std::string_view bytes) const;

private:
    std::string load(const char *name) const;
    void save(const char *name, std::string_view bytes) const;

    std::string m_folder;
};
