#pragma once

#include "platform/action.h"
#include "platform/keywindow.h"
#include "platform/view.h"

/// How wide the frame of a pop-up window is, in points.
inline constexpr int kPopupFrame = 2;

/// What a pop-up window shows and the player chooses from. Escape sends what the loss of the
/// keyboard sends.
class PopupContent : public View
{
public:
    using View::View;

    void setTag(int tag) { _tag = tag; }
    int tag() const { return _tag; }
    /// The time stamp of the last release of the left mouse button, in milliseconds; 0 before the
    /// first.
    quint64 releasedAt() const { return m_releasedAt; }

    /// Draws a frame around the content, `kPopupFrame` points wide, for a window that is nothing
    /// but the content.
    void setFramed(bool framed);
    bool isFramed() const { return m_isFramed; }

    /// Sends the action with the view when its window stops being the key window.
    void observeWindowKeyChangeStart(const Action<PopupContent *> &action);
    /// Nothing is sent any more, not for the Escape key either.
    void observeWindowKeyChangeStop();

protected:
    /// What the frame, if there is one, leaves of `place`.
    UpRect insideFrame(UpRect place) const;
    /// What the view shows, without its frame.
    virtual void drawContent(Canvas & /*canvas*/) {}
    void drawRect(Canvas &canvas) final;
    void mouseUp(const ViewMouseEvent &event) override;
    void keyDown(QKeyEvent *event) override;

    int _tag = 0;

private:
    void windowKeyChange();

    bool m_isFramed = false;
    Action<PopupContent *> FocusChangeAction;
    KeyWindowWatch m_keyWatch;
    quint64 m_releasedAt = 0;
};
