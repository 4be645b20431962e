#pragma once

#include "macro/keymapevents.h"
#include "platform/keystrokeview.h"

#include <array>
#include <optional>
#include <span>

/// Shows a list of keyboard events and records one from the keyboard: a click makes it the control
/// with the keyboard and starts anew.
///
/// It works on a list of its own. Events beyond its limit are dropped, keys without a name are
/// recorded and show as nothing.
class MacroDisplay : public KeyStrokeView
{
public:
    explicit MacroDisplay(QWidget *parent, UpRect frame = {});

    /// The most events that recording accepts and loading takes, up to 500; 32 at first.
    void setMaxKeymapEvent(std::uint32_t most);
    /// Whether the view gets higher as its text needs more lines; at first it does not. The next
    /// redraw shows the effect, as for the two below.
    void enableScroll(bool enable) { m_bEnableScroll = enable; }
    /// Whether delays show, and whether presses are told from releases; at first both.
    void setDisplayDelay(bool display) { m_DisplayDelay = display; }
    void setDisplayUpAndDown(bool display) { m_DisplayUpAndDown = display; }
    /// A view that is not enabled is grey and neither records nor takes clicks; its list stays.
    void enablewindow(bool enable);

    /// Loads a stored list: up to the first empty slot, its end, or the limit.
    void setKeymapInfo(std::span<const KeymapEvent> stored);
    /// All slots of the working list, also those that a click has taken out of use.
    std::span<const KeymapEvent> getKeymapInfo() const { return m_MacroInfo.events; }
    /// How many of the slots are in use.
    std::uint32_t count() const { return m_MacroInfo.count; }

    /// The name of a key; empty for a code without one.
    static QString GetKeycodeString(std::uint8_t keycode);
    /// The list as one line of text, which is also logged.
    QString GetMacroOutputString() const;

protected:
    void keyDown(const KeyStroke &stroke) override;
    void keyUp(const KeyStroke &stroke) override;
    void flagsChanged(const KeyStroke &stroke) override;
    // A press in it is not one on the window behind, which it would drag.
    void mouseDown(const ViewMouseEvent & /*event*/) override {}
    void mouseDragged(const ViewMouseEvent & /*event*/) override {}
    void mouseUp(const ViewMouseEvent &event) override;
    void drawRect(Canvas &canvas) override;

private:
    bool isFull() const { return m_MacroInfo.count >= m_MaxKeymapEvent; }
    bool isHeld(std::uint16_t keycode) const;
    void record(const KeyStroke &stroke, std::uint32_t kind);
    void endDelay(std::uint32_t time);
    void append(std::uint16_t keycode, std::uint32_t kind);
    void drawCells(Canvas &canvas, const QString &text);
    bool needsLine(const QString &text) const;
    void growByOneLine();
    void showBeginning();
    void showNewest();
    QString text() const;

    struct
    {
        std::uint32_t count = 0;
        std::array<KeymapEvent, kEventCount> events{};
    } m_MacroInfo;
    int m_charWidth = 10; ///< of the cell last drawn
    int m_charHeight = 15;
    int m_MaxCharofsingleLine = 20; ///< assumed in deciding whether the view must grow
    std::uint32_t m_MaxKeymapEvent = 32;
    SkinImage m_Imageup;
    SkinImage m_Imagedown;
    bool m_bEnable = true;
    bool m_bEnableScroll = false;
    bool m_DisplayDelay = true;
    bool m_DisplayUpAndDown = true;
    std::optional<std::uint32_t> starttimer; ///< the time of the last accepted event

    bool m_isGrowing = false;   ///< will be a line higher in a moment
    bool m_showsNewest = false; ///< the newest event is to be scrolled into sight
    QRect m_newest;             ///< the line drawn last, y downwards; null for none
};
