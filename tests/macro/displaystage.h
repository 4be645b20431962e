#pragma once

#include "controls/custumwindow.h"
#include "controls/HoverButton.h"
#include "macro/MacroDisplay.h"
#include "support/keystroke.h"
#include "support/logcapture.h"
#include "support/pointer.h"

#include <vector>

/// A recording view in a window of its own that has the keyboard, and another control in it.
struct DisplayStage
{
    DisplayStage()
    {
        other.setObjectName(QStringLiteral("other"));
        display.setObjectName(QStringLiteral("display"));
        window.show();
        if (!QTest::qWaitForWindowActive(&window))
            qFatal("the window does not get the keyboard");
    }

    /// As a person starts a recording.
    void click() { pointer::click(display); }
    /// The working list.
    std::vector<KeymapEvent> events() const
    {
        const auto slots = display.getKeymapInfo().first(display.count());
        return {slots.begin(), slots.end()};
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
