#pragma once

#include <array>
#include <cstddef>
#include <iterator>
#include <string>

/// A region of the game service. A region's code, which a character holds, is its row.
struct RegionRow
{
    const char *caption = "";
    const char *portraitPath = ""; ///< at the region's host, before what the service calls it
};

inline constexpr RegionRow kRegions[] = {
    {"US&Oceanic", "/static-render/us/"}, {"Europe", "/static-render/eu/"},
    {"Korea", "/static-render/kr/"},      {"Taiwan", "/static-render/tw/"},
    {"China", "/static-render/cn/"},
};

inline constexpr std::size_t kRegionCount = std::size(kRegions);

/// The game service's host in each region, with a port where it is not the usual one.
using RegionHosts = std::array<std::string, kRegionCount>;
