#pragma once

#include "model/fixedtext.h"
#include "model/settings.h"

#include <string>

/// A character as a lookup leaves it.
struct KnownCharacter
{
    std::string name = {};
    std::string realm = {};
    std::string className = {};
    std::uint32_t level = 0;
    std::string portrait = {};
    std::uint32_t region = 0;
};

/// Gives a profile a character.
inline void putCharacter(ProfileInfo &profile, const KnownCharacter &known)
{
    CharacterInfo &character = profile.CHARACTER_INFO;
    character.REGION = known.region;
    character.LEVEL = known.level;
    SetText(character.NAME, known.name);
    SetText(character.SERVER, known.realm);
    SetText(character.CLASS, known.className);
    SetText(character.RACE, known.portrait);
}
