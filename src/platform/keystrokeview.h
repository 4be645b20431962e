#pragma once

#include "platform/keystrokes.h"
#include "platform/view.h"

/// A view that is told of keys and not of what they type. While it has the keyboard every key comes
/// to it, the tab key, those that close a dialog and the desktop's own shortcuts included; no key
/// takes the keyboard away again.
class KeyStrokeView : public View
{
protected:
    explicit KeyStrokeView(QWidget *parent);

    virtual void keyDown(const KeyStroke &stroke) = 0;
    virtual void keyUp(const KeyStroke &stroke) = 0;
    /// A modifier key went down or up.
    virtual void flagsChanged(const KeyStroke &stroke) = 0;

    bool event(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    using View::flagsChanged;
    using View::keyDown;
    using View::keyUp;

    void take(QKeyEvent *event);

    KeyStrokes m_strokes;
};
