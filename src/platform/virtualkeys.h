#pragma once

#include <cstdint>
#include <optional>
#include <span>

class QKeyEvent;

/// Keys by their place on the keyboard, whatever a layout writes on them: the virtual key codes of
/// macOS, 0..127.

/// A key by its two numbers.
struct KeyCodeRow
{
    std::uint16_t scanCode; ///< as Linux numbers keys (input-event-codes.h)
    std::uint16_t keyCode;  ///< as macOS numbers them (HIToolbox/Events.h)
};

/// All keys that have both numbers. Each number is in one row only.
std::span<const KeyCodeRow> keyCodeRows();

/// The virtual key code of the key that an event is about; nothing for a key without one.
std::optional<std::uint16_t> virtualKeyCode(const QKeyEvent &event);
