#include "model/settings.h"

constinit ConfigData m_Config = {};

namespace {

std::uint32_t bounded(std::uint32_t index)
{
    return index < kProfileCount ? index : 0;
}

} // namespace

ProfileInfo &ProfileAt(std::uint32_t index)
{
    return m_Config.PROFILE[bounded(index)];
}

ProfileInfo &CurrentProfile()
{
    return ProfileAt(m_Config.PROFILE_ID);
}

std::uint32_t CurrentProfileIndex()
{
    return bounded(m_Config.PROFILE_ID);
}

const MacroInfo &MacroAt(const ProfileInfo &profile, std::uint32_t slot)
{
    static constexpr MacroInfo empty = {};
    return slot < kMacroCount ? profile.MACRO[slot] : empty;
}
