#pragma once

#include <QtCore/QString>

#include <bitset>
#include <cstdint>
#include <optional>

class QKeyEvent;

/// What happened to a key, by macOS's numbers for it.
enum class KeyEventType : std::uint32_t { KeyDown = 10, KeyUp = 11, FlagsChanged = 12 };

/// A key going down or up as macOS tells it: whatever the desktop, by virtual key code, and a
/// modifier key as a change of the modifier flags.
struct KeyStroke
{
    KeyEventType type = KeyEventType::KeyDown;
    std::uint16_t keyCode = 0;
    std::uint32_t modifierFlags = 0; ///< as they are after the event; see modifierMask()
    QString characters;              ///< what it types, if anything
    std::uint32_t time = 0;          ///< on the display's monotonic clock, in milliseconds; wraps
};

/// Logs the release of a key, with what it types where that is visible ASCII.
void logKeyUp(const KeyStroke &stroke);

/// Virtual key codes that are told apart.
inline constexpr std::uint16_t kReturnKey = 36;
inline constexpr std::uint16_t kEscapeKey = 53;
inline constexpr std::uint16_t kCapsLockKey = 57;

/// The flag of a modifier key, shared by the left and the right one; 0 for any other key.
std::uint32_t modifierMask(std::uint16_t keyCode);

/// Turns the toolkit's key events into key strokes, one after the other.
///
/// A key that is held down is pressed again and again and released once, whether the display sends
/// releases between the presses or not. Caps Lock is told when it goes down only: macOS reports it
/// once for each press.
class KeyStrokes
{
public:
    /// The key stroke of an event; nothing for an event that macOS would not report. A key without
    /// a virtual key code is logged.
    std::optional<KeyStroke> read(const QKeyEvent &event);
    /// The keyboard was elsewhere: no modifier key counts as held down any more.
    void forget() { *this = {}; }

private:
    std::optional<KeyStroke> readModifier(const QKeyEvent &event, std::uint16_t keyCode);
    void pressed(const QKeyEvent &event, std::uint16_t keyCode);
    void released(std::uint16_t keyCode);
    std::uint32_t heldFlags() const;

    std::bitset<128> m_held;        ///< modifier keys, by virtual key code
    std::uint32_t m_heldBefore = 0; ///< flags of those that were down before their events came here
};
