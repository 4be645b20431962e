#include "model/fieldio.h"

#include "model/eventlist.h"
#include "model/fixedtext.h"

#include <algorithm>
#include <cstdio>

namespace {

/// The field of a record as an array of `size` elements of the type that its kind calls for.
template <class Element, class Record>
auto elements(const Field &field, Record *record, unsigned size)
{
    constexpr bool reading = std::is_const_v<Record>;
    using Byte = std::conditional_t<reading, const std::byte, std::byte>;
    using Target = std::conditional_t<reading, const Element, Element>;
    auto *const first = static_cast<Byte *>(record) + field.offset;
    return std::span<Target>(reinterpret_cast<Target *>(first), size);
}

std::string keyOf(const Field &field, unsigned index)
{
    return field.count > 1 ? numberedKey(field.key, index + 1) : std::string(field.key);
}

void readIntegers(const Field &field, plist::Dictionary from, void *record)
{
    const auto numbers = elements<std::uint32_t>(field, record, field.count);
    for (unsigned i = 0; i < field.count; ++i)
        numbers[i] = static_cast<std::uint32_t>(from.integer(keyOf(field, i).c_str()).value_or(0));
}

void writeIntegers(const Field &field, const void *record, plist::Dictionary to)
{
    const auto numbers = elements<std::uint32_t>(field, record, field.count);
    for (unsigned i = 0; i < field.count; ++i)
        to.setInteger(keyOf(field, i).c_str(), static_cast<std::int32_t>(numbers[i]));
}

std::string textOf(const Field &field, const void *record)
{
    if (field.kind == FieldKind::Text)
        return std::string(GetText(elements<char>(field, record, field.capacity)));
    const auto events = elements<KeymapEvent>(field, record, field.capacity);
    return field.kind == FieldKind::UsedEvents ? usedEventsText(events) : allEventsText(events);
}

} // namespace

std::string numberedKey(const char *key, unsigned number)
{
    std::string result(key);
    const auto place = result.find("%d");
    return place == std::string::npos ? result : result.replace(place, 2, std::to_string(number));
}

void readFields(std::span<const Field> fields, plist::Dictionary from, void *record)
{
    for (const Field &field : fields) {
        if (field.kind == FieldKind::Integer) {
            readIntegers(field, from, record);
            continue;
        }
        const auto text = from.text(field.key).value_or(std::string_view());
        if (field.kind == FieldKind::Text)
            SetText(elements<char>(field, record, field.capacity), text);
        else
            readEventList(text, elements<KeymapEvent>(field, record, field.capacity));
    }
}

void writeFields(std::span<const Field> fields, const void *record, plist::Dictionary to)
{
    for (const Field &field : fields) {
        if (field.kind == FieldKind::Integer)
            writeIntegers(field, record, to);
        else
            to.setText(field.key, textOf(field, record));
    }
}

void setDefaults(std::span<const Field> fields, const std::uint32_t *Field::*column, void *record)
{
    for (const Field &field : fields) {
        if (const std::uint32_t *values = field.*column) {
            const auto numbers = elements<std::uint32_t>(field, record, field.count);
            std::copy_n(values, field.count, numbers.begin());
        }
    }
}
