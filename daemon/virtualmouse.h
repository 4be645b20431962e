#pragma once

#include "daemon/mousestore.h"
#include "daemon/onboardmemory.h"

#include <string>

/// The mouse without the hardware: what the device would keep in its own memory. It starts with
/// what `store` holds and saves every change there.
class VirtualMouse
{
public:
    explicit VirtualMouse(const MouseStore &store)
        : m_store(store), m_state(store.loadState()), m_memory(store)
    {
    }

    const MouseState &state() const { return m_state; }
    OnboardMemory &memory() { return m_memory; }

    /// Each refuses a value out of its range (see MouseState) and leaves the mouse as it is.
    bool setPollingRate(std::int32_t code);
    bool setLiftDistance(std::int32_t code);
    bool setActiveProfile(std::int32_t number);

    /// The profile after the active one, the first after the tenth: 1..10.
    std::int32_t nextProfile() const;

    /// One line, KEY=VALUE each, then describeProfile() of the on-board memory:
    ///
    ///     POLLING_RATE=1 LIFT_DISTANCE=2 ACTIVE_PROFILE=1 profile 1: DPI_VALUE=2 ... BUTTON_14=9
    std::string description() const;

private:
    void change(std::int32_t MouseState::*member, std::int32_t value);

    MouseStore m_store;
    MouseState m_state;
    OnboardMemory m_memory;
};
