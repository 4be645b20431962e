#pragma once

#include "lightingstage.h"
#include "mainview/fullsettings.h"

inline constexpr const KnownBar &kOtherBar = kKnownBars[0];

/// The bottom bar open, and nothing changed since.
struct LightClosingStage : LightingStage
{
    LightClosingStage()
    {
        makeRoomBelow();
        toggleBottom();
        before = copyOf();
    }

    bool isUnchanged() const { return isRecord(*before) && !program.applyIsEnabled(); }
    /// Gives the bar the keyboard, as the desktop does when a control in it is pressed.
    bool activateBar() const
    {
        bar(kBottomBar).activateWindow();
        return QTest::qWaitFor([] { return openPopups().empty(); });
    }
    HoverButton &cpiButton() const
    {
        return *static_cast<HoverButton *>(PanelsStage::part(&bar(kOtherBar), "btnDPI"));
    }

    Record before;
};

/// The one window that is open; null when there is none or more.
inline QWidget *onlyPopup()
{
    const auto popups = openPopups();
    return popups.size() == 1 ? popups[0] : nullptr;
}
