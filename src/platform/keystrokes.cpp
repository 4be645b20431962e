#include "platform/keystrokes.h"

#include "platform/systemlog.h"
#include "platform/virtualkeys.h"

#include <QtGui/QKeyEvent>

#include <algorithm>

namespace {

constexpr std::uint16_t kCapsLock = 57;

struct ModifierKey
{
    std::uint16_t keyCode;
    std::uint32_t mask;
};

constexpr ModifierKey kModifierKeys[] = {
    {54, 0x100000},       {55, 0x100000}, // Command
    {56, 0x20000},        {60, 0x20000},  // Shift
    {58, 0x80000},        {61, 0x80000},  // Option
    {59, 0x40000},        {62, 0x40000},  // Control
    {63, 0x800000},                       // Function
    {kCapsLock, 0x10000},
};

/// X11's bit for Caps Lock in the modifiers of an event, as they were before it.
constexpr std::uint32_t kLockBit = 2;

/// A press of Caps Lock switches the lock over.
std::uint32_t lockFlagAfter(const QKeyEvent &press)
{
    return (press.nativeModifiers() & kLockBit) != 0 ? 0 : modifierMask(kCapsLock);
}

KeyStroke strokeOf(const QKeyEvent &event, KeyEventType type, std::uint16_t keyCode,
                   std::uint32_t flags)
{
    return {type, keyCode, flags, event.text(), static_cast<std::uint32_t>(event.timestamp())};
}

} // namespace

std::uint32_t modifierMask(std::uint16_t keyCode)
{
    const auto *const row = std::ranges::find(kModifierKeys, keyCode, &ModifierKey::keyCode);
    return row == std::end(kModifierKeys) ? 0 : row->mask;
}

std::optional<KeyStroke> KeyStrokes::read(const QKeyEvent &event)
{
    const bool isPress = event.type() == QEvent::KeyPress;
    // The display sends the repetition of a held key as pairs of a release and a press.
    if (!isPress && event.isAutoRepeat())
        return {};
    const auto keyCode = virtualKeyCode(event);
    if (!keyCode) {
        systemLog("no virtual key code for scan code %u", event.nativeScanCode());
        return {};
    }
    if (modifierMask(*keyCode) != 0)
        return readModifier(event, *keyCode);
    return strokeOf(event, isPress ? KeyEventType::KeyDown : KeyEventType::KeyUp, *keyCode,
                    heldFlags());
}

std::optional<KeyStroke> KeyStrokes::readModifier(const QKeyEvent &event, std::uint16_t keyCode)
{
    const bool isPress = event.type() == QEvent::KeyPress;
    if (event.isAutoRepeat() || (keyCode == kCapsLock && !isPress))
        return {};
    if (keyCode == kCapsLock)
        return strokeOf(event, KeyEventType::FlagsChanged, keyCode,
                        heldFlags() | lockFlagAfter(event));
    m_held.set(keyCode, isPress);
    return strokeOf(event, KeyEventType::FlagsChanged, keyCode, heldFlags());
}

/// The events themselves carry the modifiers as they were before, and not which of two keys is
/// down.
std::uint32_t KeyStrokes::heldFlags() const
{
    std::uint32_t flags = 0;
    for (const ModifierKey &key : kModifierKeys)
        flags |= m_held.test(key.keyCode) ? key.mask : 0;
    return flags;
}
