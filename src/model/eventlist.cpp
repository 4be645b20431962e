#include "model/eventlist.h"

#include "platform/numbers.h"

#include <algorithm>
#include <charconv>

namespace {

bool takeNumber(unsigned &cursor, std::string_view text, std::uint32_t &number)
{
    const auto token = GetSubString(cursor, text);
    if (token)
        number = static_cast<std::uint32_t>(leadingNumber(*token));
    return token.has_value();
}

/// "-2147483648,"
constexpr std::size_t kLongestNumber = 12;

/// Puts `number` and its comma at `place`; what follows it.
char *putNumber(char *place, std::uint32_t number)
{
    // Written signed, as the file's integers are.
    const auto value = static_cast<std::int32_t>(number);
    char *const end = std::to_chars(place, place + kLongestNumber, value).ptr;
    *end = ',';
    return end + 1;
}

} // namespace

std::optional<std::string_view> GetSubString(unsigned &cursor, std::string_view srcString)
{
    if (cursor >= srcString.size())
        return {};
    const auto comma = srcString.find(',', cursor);
    if (comma == std::string_view::npos)
        return {};
    const auto token = srcString.substr(cursor, comma - cursor);
    cursor = static_cast<unsigned>(comma + 1);
    return token;
}

void readEventList(std::string_view text, std::span<KeymapEvent> events)
{
    std::ranges::fill(events, KeymapEvent{});
    unsigned cursor = 0;
    for (KeymapEvent &event : events) {
        if (!takeNumber(cursor, text, event.keycode) || !takeNumber(cursor, text, event.kind) ||
            !takeNumber(cursor, text, event.delay))
            return;
    }
}

std::string allEventsText(std::span<const KeymapEvent> events)
{
    // One buffer of the greatest length: a file may hold 500 lists of 1500 numbers.
    std::string text(events.size() * 3 * kLongestNumber, '\0');
    char *place = text.data();
    for (const KeymapEvent &event : events) {
        place = putNumber(place, event.keycode);
        place = putNumber(place, event.kind);
        place = putNumber(place, event.delay);
    }
    text.resize(static_cast<std::size_t>(place - text.data()));
    return text;
}

std::string usedEventsText(std::span<const KeymapEvent> events)
{
    const auto end = std::ranges::find(events, 0U, &KeymapEvent::kind);
    return allEventsText({events.begin(), end});
}
