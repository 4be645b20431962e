#pragma once

#include "model/settings.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>

/// The text form of an event list in files: for each event "%d,%d,%d,", nothing between.

/// Takes the next token of `srcString` at `cursor`: the characters up to the next comma, past
/// which the cursor moves. Nothing at the end, or when no comma follows.
std::optional<std::string_view> GetSubString(unsigned &cursor, std::string_view srcString);

/// Clears `events`, then fills slot after slot from `text` until a token is missing or the slots
/// are full; the fields already taken for a slot cut short stay set. A number is read as by
/// leadingNumber(): 0..2147483647.
void readEventList(std::string_view text, std::span<KeymapEvent> events);

/// The text of the events before the first empty slot.
std::string usedEventsText(std::span<const KeymapEvent> events);
/// The text of all events, empty slots included.
std::string allEventsText(std::span<const KeymapEvent> events);
