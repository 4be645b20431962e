#pragma once

class QFocusEvent;
class QWidget;

/// Whether a view shows a frame that says where the keyboard is: only to a player who moves it by
/// key. A window that becomes active hands the keyboard to some control, a menu that closes hands
/// it back; neither changes anything.
class FocusFrame
{
public:
    /// The view has got the keyboard.
    void focusIn(const QFocusEvent &event);
    /// Whether `view`, the one that is told of its focus events, shows the frame now.
    bool isShown(const QWidget &view) const;

private:
    bool m_byKey = false;
};
