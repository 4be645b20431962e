#pragma once

#include <cstdint>
#include <string_view>

/// The decimal number that `text` begins with: leading blanks are skipped, digits are read up to
/// the first other character. No digits give 0; more than 2147483647 gives 2147483647.
std::int32_t leadingNumber(std::string_view text);

/// As leadingNumber, with a sign before the digits honoured, down to -2147483648.
std::int32_t leadingInteger(std::string_view text);
