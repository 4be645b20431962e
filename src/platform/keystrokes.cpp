#include "platform/keystrokes.h"

#include "platform/systemlog.h"
#include "platform/virtualkeys.h"

#include <QtGui/QKeyEvent>

#include <algorithm>

namespace {

struct ModifierKey
{
    std::uint16_t keyCode;
    std::uint32_t mask;
    std::uint32_t x11; ///< X11's bit in an event's modifiers, which are those before it
};

constexpr ModifierKey kModifierKeys[] = {
    {54, 0x100000, 0x40},
    {55, 0x100000, 0x40}, // Command
    {56, 0x20000, 0x1},
    {60, 0x20000, 0x1}, // Shift
    {58, 0x80000, 0x8},
    {61, 0x80000, 0x8}, // Option
    {59, 0x40000, 0x4},
    {62, 0x40000, 0x4}, // Control
    {63, 0x800000, 0},  // Function
    {kCapsLockKey, 0x10000, 0x2},
};

/// Null for any other key.
const ModifierKey *modifierOf(std::uint16_t keyCode)
{
    const auto *const row = std::ranges::find(kModifierKeys, keyCode, &ModifierKey::keyCode);
    return row == std::end(kModifierKeys) ? nullptr : row;
}

bool wasOn(const ModifierKey &key, const QKeyEvent &event)
{
    return (event.nativeModifiers() & key.x11) != 0;
}

/// What a log line can show of what a key types.
char shownCharacter(const QString &typed)
{
    const char first = typed.isEmpty() ? ' ' : typed.front().toLatin1();
    return first > ' ' && first <= '~' ? first : ' ';
}

KeyStroke strokeOf(const QKeyEvent &event, KeyEventType type, std::uint16_t keyCode,
                   std::uint32_t flags)
{
    return {type, keyCode, flags, event.text(), static_cast<std::uint32_t>(event.timestamp())};
}

} // namespace

void logKeyUp(const KeyStroke &stroke)
{
    systemLog("Get keyUp Event:keycode:%x,type:%x,%c", stroke.keyCode,
              static_cast<unsigned>(stroke.type), shownCharacter(stroke.characters));
}

std::uint32_t modifierMask(std::uint16_t keyCode)
{
    const ModifierKey *const key = modifierOf(keyCode);
    return key ? key->mask : 0;
}

std::optional<KeyStroke> KeyStrokes::read(const QKeyEvent &event)
{
    const bool isPress = event.type() == QEvent::KeyPress;
    // Where the display sends the repetition of a held key as pairs of a release and a press.
    if (!isPress && event.isAutoRepeat())
        return {};
    const auto keyCode = virtualKeyCode(event);
    if (!keyCode) {
        if (!isPress) // once, however long it was held
            systemLog("no virtual key code for scan code %u", event.nativeScanCode());
        return {};
    }
    if (modifierOf(*keyCode))
        return readModifier(event, *keyCode);
    return strokeOf(event, isPress ? KeyEventType::KeyDown : KeyEventType::KeyUp, *keyCode,
                    heldFlags());
}

std::optional<KeyStroke> KeyStrokes::readModifier(const QKeyEvent &event, std::uint16_t keyCode)
{
    if (event.isAutoRepeat())
        return {};
    std::uint32_t lock = 0;
    if (keyCode == kCapsLockKey) {
        if (event.type() != QEvent::KeyPress)
            return {};
        // Its press switches the lock over.
        const ModifierKey &key = *modifierOf(keyCode);
        lock = wasOn(key, event) ? 0 : key.mask;
    } else {
        event.type() == QEvent::KeyPress ? pressed(event, keyCode) : released(keyCode);
    }
    return strokeOf(event, KeyEventType::FlagsChanged, keyCode, heldFlags() | lock);
}

/// The events carry the modifiers as they were before, and not which of two keys is down.
void KeyStrokes::pressed(const QKeyEvent &event, std::uint16_t keyCode)
{
    const ModifierKey &key = *modifierOf(keyCode);
    if (!wasOn(key, event))
        m_heldBefore &= ~key.mask;
    else if ((heldFlags() & key.mask) == 0)
        m_heldBefore |= key.mask;
    m_held.set(keyCode);
}

void KeyStrokes::released(std::uint16_t keyCode)
{
    if (!m_held.test(keyCode))
        m_heldBefore &= ~modifierMask(keyCode);
    m_held.reset(keyCode);
}

std::uint32_t KeyStrokes::heldFlags() const
{
    std::uint32_t flags = m_heldBefore;
    for (const ModifierKey &key : kModifierKeys)
        flags |= m_held.test(key.keyCode) ? key.mask : 0;
    return flags;
}
