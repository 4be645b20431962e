#pragma once

#include <cstddef>
#include <string_view>

/// What the property-list parser is given at most. It recurses into containers, moves the rest of a
/// text for every entity in it, and in the binary form copies an object for every reference to it,
/// so a small file could take all stack, memory or time. The settings need 1021 containers and
/// about 12 000 nodes.
namespace plist {

inline constexpr std::size_t kMostContainers = 2000;
inline constexpr std::size_t kMostBinaryNodes = 200'000;
inline constexpr std::size_t kMostBinaryText = 32U << 20U;
/// The bytes moved for entities: the sum of each text's length times its entities. The settings
/// need about 200 million when every text is full of them.
inline constexpr std::size_t kMostEntityWork = 10'000'000'000;

bool isBinary(std::string_view bytes);

/// Whether the text holds at most kMostContainers dictionaries and arrays, and takes at most
/// kMostEntityWork.
bool isXmlWithinBounds(std::string_view bytes);

/// Whether the binary property list is of at most kMostContainers dictionaries and arrays and
/// kMostBinaryNodes nodes with texts of at most kMostBinaryText characters together, an object
/// counted as often as it is referred to. False for one that refers to places outside.
bool isBinaryWithinBounds(std::string_view bytes);

} // namespace plist
