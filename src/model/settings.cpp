#include "model/settings.h"

constinit ConfigData m_Config = {};

ProfileInfo &ProfileAt(std::uint32_t index)
{
    return m_Config.PROFILE[index < kProfileCount ? index : 0];
}

ProfileInfo &CurrentProfile()
{
    return ProfileAt(m_Config.PROFILE_ID);
}

const MacroInfo &MacroAt(const ProfileInfo &profile, std::uint32_t slot)
{
    static constexpr MacroInfo empty = {};
    return slot < kMacroCount ? profile.MACRO[slot] : empty;
}
