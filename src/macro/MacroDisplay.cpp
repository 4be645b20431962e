#include "macro/MacroDisplay.h"

#include "macro/keynames.h"
#include "platform/systemlog.h"

#include <algorithm>

namespace {

constexpr std::uint16_t kInsert = 114;

unsigned numberOf(KeyEventType type)
{
    return static_cast<unsigned>(type);
}

} // namespace

MacroDisplay::MacroDisplay(QWidget *parent, UpRect frame)
    : KeyStrokeView(parent),
      m_Imageup(SkinImage::named("up")),
      m_Imagedown(SkinImage::named("down"))
{
    setFrame(frame);
}

void MacroDisplay::setMaxKeymapEvent(std::uint32_t most)
{
    m_MaxKeymapEvent = std::min<std::uint32_t>(most, kEventCount);
}

void MacroDisplay::enablewindow(bool enable)
{
    m_bEnable = enable;
    if (!enable)
        clearFocus();
    update();
}

void MacroDisplay::setKeymapInfo(std::span<const KeymapEvent> stored)
{
    auto &[count, events] = m_MacroInfo;
    const auto loaded = stored.first(std::min<std::size_t>(stored.size(), m_MaxKeymapEvent));
    const auto end = std::ranges::find(loaded, 0U, &KeymapEvent::kind);
    count = static_cast<std::uint32_t>(end - loaded.begin());
    const auto behind = std::copy(loaded.begin(), end, events.begin());
    std::fill(behind, events.end(), KeymapEvent{});
    showBeginning();
}

QString MacroDisplay::GetKeycodeString(std::uint8_t keycode)
{
    return QLatin1String(keyName(keycode));
}

QString MacroDisplay::text() const
{
    const std::span<const KeymapEvent> list(m_MacroInfo.events);
    return eventText(list.first(m_MacroInfo.count), {m_DisplayDelay, m_DisplayUpAndDown});
}

QString MacroDisplay::GetMacroOutputString() const
{
    QString output = text();
    systemLog("%s", qPrintable(output));
    return output;
}

void MacroDisplay::keyDown(const KeyStroke &stroke)
{
    if (!m_bEnable)
        return;
    systemLog("Get Keydown Event:keycode:%x,type:%x", stroke.keyCode, numberOf(stroke.type));
    if (isFull() || isHeld(stroke.keyCode))
        return;
    record(stroke, kKeyPress);
}

void MacroDisplay::keyUp(const KeyStroke &stroke)
{
    if (!m_bEnable)
        return;
    logKeyUp(stroke);
    // The release of Insert is left out on purpose.
    if (isFull() || stroke.keyCode == kInsert)
        return;
    record(stroke, kKeyRelease);
}

void MacroDisplay::flagsChanged(const KeyStroke &stroke)
{
    if (!m_bEnable || isFull())
        return;
    const std::uint32_t mask = modifierMask(stroke.keyCode);
    const std::uint32_t flag = stroke.modifierFlags & mask;
    systemLog("Get flagsChanged Event:keycode:%x,type:%x,Downup:%x", stroke.keyCode,
              numberOf(stroke.type), flag);
    // The flag is that of both keys: one released while the other is held counts as a press.
    const bool isPress = mask == 0 || flag != 0 || stroke.keyCode == kCapsLockKey;
    record(stroke, isPress ? kKeyPress : kKeyRelease);
    // Caps Lock tells of its lock only. With one slot left its release goes beyond the limit, on
    // purpose.
    if (stroke.keyCode == kCapsLockKey)
        append(stroke.keyCode, kKeyRelease);
}

/// Whether the key has been pressed last: a key that is held down repeats itself.
bool MacroDisplay::isHeld(std::uint16_t keycode) const
{
    if (m_MacroInfo.count == 0)
        return false;
    const KeymapEvent &last = m_MacroInfo.events.at(m_MacroInfo.count - 1);
    return last.keycode == keycode && last.kind == kKeyPress;
}

void MacroDisplay::record(const KeyStroke &stroke, std::uint32_t kind)
{
    endDelay(stroke.time);
    append(stroke.keyCode, kind);
}

/// Taken from the events themselves: a window that is busy for a moment does not lengthen a pause.
void MacroDisplay::endDelay(std::uint32_t time)
{
    // The display's clock wraps, and what comes out of order came at once.
    const auto elapsed = static_cast<std::int32_t>(time - starttimer.value_or(time));
    if (m_MacroInfo.count > 0)
        m_MacroInfo.events.at(m_MacroInfo.count - 1).delay =
            static_cast<std::uint32_t>(std::max(0, elapsed)) / kDelayUnit;
    starttimer = time;
}

void MacroDisplay::append(std::uint16_t keycode, std::uint32_t kind)
{
    auto &[count, events] = m_MacroInfo;
    if (count >= events.size()) // beyond the greatest limit
        return;
    events.at(count) = {keycode, kind, 0};
    ++count;
    m_showsNewest = true;
    m_newest = {}; // not drawn yet
    update();
}

void MacroDisplay::mouseUp(const ViewMouseEvent &event)
{
    // Let go of elsewhere, the press was no click.
    if (!m_bEnable || !rect().contains(event.event->position().toPoint()))
        return;
    setFocus(Qt::MouseFocusReason);
    // The events stay in their slots, out of use, on purpose.
    m_MacroInfo.count = 0;
    showBeginning();
}
