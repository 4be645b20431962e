#include "platform/numbers.h"

namespace {

bool isBlank(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

std::string_view withoutLeadingBlanks(std::string_view text)
{
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    return text;
}

/// The number of the digits that `text` begins with, at most `most`.
std::int64_t digits(std::string_view text, std::int64_t most)
{
    std::int64_t value = 0;
    for (const char c : text) {
        if (c < '0' || c > '9')
            break;
        value = value * 10 + (c - '0');
        if (value > most)
            return most;
    }
    return value;
}

} // namespace

std::int32_t leadingNumber(std::string_view text)
{
    return static_cast<std::int32_t>(digits(withoutLeadingBlanks(text), INT32_MAX));
}

std::int32_t leadingInteger(std::string_view text)
{
    const auto rest = withoutLeadingBlanks(text);
    if (rest.starts_with('-'))
        return static_cast<std::int32_t>(-digits(rest.substr(1), -std::int64_t{INT32_MIN}));
    const auto unsignedPart = rest.starts_with('+') ? rest.substr(1) : rest;
    return static_cast<std::int32_t>(digits(unsignedPart, INT32_MAX));
}
