#pragma once

#include "controls/custumwindow.h"
#include "controls/HoverButton.h"
#include "macro/MacroDisplay.h"
#include "support/keystroke.h"
#include "support/logcapture.h"
#include "support/pointer.h"

#include <vector>

using Events = std::vector<KeymapEvent>;

/// Events as text: "30:1:20 30:2:0" of code, kind and delay.
inline QString listed(std::span<const KeymapEvent> events)
{
    QStringList texts;
    for (const KeymapEvent &event : events)
        texts.append(
            QStringLiteral("%1:%2:%3").arg(event.keycode).arg(event.kind).arg(event.delay));
    return texts.join(QLatin1Char(' '));
}

/// A recording view in a window of its own that has the keyboard, and another control in it.
struct DisplayStage
{
    DisplayStage()
    {
        other.setObjectName(QStringLiteral("other"));
        display.setObjectName(QStringLiteral("display"));
        window.show();
        window.activateWindow();
        if (!QTest::qWaitForWindowActive(&window))
            qFatal("the window does not get the keyboard");
    }

    /// As a person starts a recording.
    void click() { pointer::click(display); }
    /// The working list.
    Events events() const
    {
        const auto slots = display.getKeymapInfo().first(display.count());
        return {slots.begin(), slots.end()};
    }
    QString list() const { return listed(events()); }
    /// The first slots, in use or not.
    QString firstSlots(std::size_t count) const
    {
        return listed(display.getKeymapInfo().first(count));
    }
    /// What is logged of keys; the view also logs its text whenever it is drawn.
    std::vector<std::string> keyLog() const
    {
        std::vector<std::string> lines;
        std::ranges::copy_if(log.lines, std::back_inserter(lines),
                             [](const std::string &line) { return line.starts_with("Get "); });
        return lines;
    }

    LogCapture log;
    custumwindow window{{100, 100, 300, 200}, nullptr};
    HoverButton other{&window, {250, 10, 40, 20}};
    MacroDisplay display{&window, {10, 40, 230, 140}};
};

inline bool operator==(const KeymapEvent &left, const KeymapEvent &right)
{
    return left.keycode == right.keycode && left.kind == right.kind && left.delay == right.delay;
}

/// A key event at a moment, in milliseconds on the display's clock.
inline keystroke::Circumstances at(quint64 time)
{
    return {.time = time, .modifiers = {}};
}

namespace keystroke {

inline const HardwareKey kF12{88, Qt::Key_F12};
inline const HardwareKey kLeftControl{29, Qt::Key_Control};
inline const HardwareKey kPause{119, Qt::Key_Pause};

/// Taps keys in turn, so that every event is accepted.
inline void tapMany(int times)
{
    for (int time = 0; time < times; ++time)
        tap(time % 2 == 0 ? kA : kB);
}

} // namespace keystroke
