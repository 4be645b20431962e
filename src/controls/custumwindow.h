#pragma once

#include "platform/action.h"
#include "platform/view.h"

/// Where a window goes when the pointer drags it. `frame` is the window's frame on the screen,
/// `location` and `initialLocation` the pointer now and at the press, in the window; `visible` is
/// the screen without panels and docks. Only the top edge is limited: it never goes above
/// `visible`.
UpPoint draggedOrigin(UpRect frame, UpPoint location, UpPoint initialLocation, UpRect visible);

/// A borderless window of the program: it can take the keyboard, its skin's transparent parts show
/// what is behind it, and where wanted it is dragged by any point of its background.
class custumwindow : public View
{
public:
    /// A window of its own, or one attached to `owner`: above it, without an entry in the task
    /// switcher.
    custumwindow(UpRect contentRect, QWidget *owner);

    /// Fills the window with `view`, at every size; the window then owns it.
    void setContentView(View *view);

    /// Whether dragging the background moves the window; at first it does not.
    bool bCanDragWindow() const { return m_bCanDragWindow; }
    void setBCanDragWindow(bool can) { m_bCanDragWindow = can; }
    /// Where in the window the pointer was at the last press.
    UpPoint initialLocation() const { return m_initialLocation; }
    void setInitialLocation(UpPoint location) { m_initialLocation = location; }

    /// Called in place of closing when the desktop asks the window to close.
    void setCloseRequest(const Action<> &request) { m_closeRequest = request; }

    /// Puts the window into the middle of its screen.
    void center();

protected:
    void mouseDown(const ViewMouseEvent &event) override;
    void mouseDragged(const ViewMouseEvent &event) override;
    void resizeEvent(QResizeEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    UpRect visibleFrame() const;

    QPointer<View> m_contentView;
    bool m_bCanDragWindow = false;
    UpPoint m_initialLocation; ///< of the pointer in the window at the last press
    Action<> m_closeRequest;
};
