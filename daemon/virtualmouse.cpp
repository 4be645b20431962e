#include "daemon/virtualmouse.h"

#include "daemon/onboardprofile.h"

bool VirtualMouse::setPollingRate(std::int32_t code)
{
    if (!MouseState::isPollingRate(code))
        return false;
    change(&MouseState::pollingRate, code);
    return true;
}

bool VirtualMouse::setLiftDistance(std::int32_t code)
{
    if (!MouseState::isLiftDistance(code))
        return false;
    change(&MouseState::liftDistance, code);
    return true;
}

bool VirtualMouse::setActiveProfile(std::int32_t number)
{
    if (!MouseState::isProfileNumber(number))
        return false;
    change(&MouseState::activeProfile, number);
    return true;
}

std::int32_t VirtualMouse::nextProfile() const
{
    const std::int32_t next = m_state.activeProfile + 1;
    return MouseState::isProfileNumber(next) ? next : 1;
}

std::string VirtualMouse::description() const
{
    return "POLLING_RATE=" + std::to_string(m_state.pollingRate) +
           " LIFT_DISTANCE=" + std::to_string(m_state.liftDistance) +
           " ACTIVE_PROFILE=" + std::to_string(m_state.activeProfile) + ' ' +
           describeProfile(m_memory.bytes());
}

void VirtualMouse::change(std::int32_t MouseState::*member, std::int32_t value)
{
    if (m_state.*member == value)
        return;
    m_state.*member = value;
    m_store.saveState(m_state);
}
