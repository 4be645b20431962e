#pragma once

#include <cstddef>

/// A category of game commands as it is to be. Written out, so that the program's own table is held
/// against something.
struct KnownCategory
{
    unsigned number;
    const char *name;
    std::size_t commands;
};

inline constexpr KnownCategory kKnownCategories[] = {
    {0, "Movement Keys", 14},
    {1, "Chat Functions", 10},
    {2, "Action Bar Functions", 52},
    {3, "Targeting Functions", 21},
    {4, "Interface Panel Functions", 21},
    {5, "Camera Functions", 4},
    {6, "Miscellaneous Functions", 9},
};
