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

void appendNumber(std::string &text, std::uint32_t number)
{
    char digits[12];
    // Written signed, as the file's integers are.
    const auto end = std::to_chars(digits, std::end(digits), static_cast<std::int32_t>(number)).ptr;
    text.append(digits, end);
    text += ',';
}

} // namespace

std::optional<std::string_view> GetSubString(unsigned &cursor, std::string_view srcString)
{
    if (cursor >= srcString.size())
        return {};
    const auto comma = srcString.find(',', cursor);
    if (comma == srcString.npos)
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
    std::string text;
    for (const KeymapEvent &event : events) {
        appendNumber(text, event.keycode);
        appendNumber(text, event.kind);
        appendNumber(text, event.delay);
    }
    return text;
}

std::string usedEventsText(std::span<const KeymapEvent> events)
{
    const auto end = std::ranges::find(events, 0U, &KeymapEvent::kind);
    return allEventsText({events.begin(), end});
}
