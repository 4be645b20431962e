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

std::int32_t digits(std::string_view text)
{
    std::int64_t value = 0;
    for (const char c : text) {
        if (c < '0' || c > '9')
            break;
        value = value * 10 + (c - '0');
        if (value > INT32_MAX)
            return INT32_MAX;
    }
    return static_cast<std::int32_t>(value);
}

} // namespace

std::int32_t leadingNumber(std::string_view text)
{
    return digits(withoutLeadingBlanks(text));
}

std::int32_t leadingInteger(std::string_view text)
{
    const auto rest = withoutLeadingBlanks(text);
    if (rest.starts_with('-'))
        return -digits(rest.substr(1));
    return digits(rest.starts_with('+') ? rest.substr(1) : rest);
}
