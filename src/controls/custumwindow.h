#pragma once

#include "platform/action.h"
#include "platform/view.h"

#include <optional>
#include <vector>

/// Where a window goes when the pointer drags it. `frame` is the window's frame on the screen,
/// `location` and `initialLocation` the pointer now and at the press, in the window; `visible` is
/// the screen without panels and docks. Only the top edge is limited: it never goes above
/// `visible`.
UpPoint draggedOrigin(UpRect frame, UpPoint location, UpPoint initialLocation, UpRect visible);

/// What `screen` leaves to windows, without its panels and docks; a rectangle like a window's
/// frame.
UpRect visibleFrame(const QWidget &window, const QScreen &screen);

/// A borderless window of the program: it can take the keyboard, its skin's transparent parts show
/// what is behind it, and where wanted it is dragged by any point of its background. On a desktop
/// where nothing shows behind see-through pixels it is cut out in the shape of its content, if that
/// is a ShapedContent.
class custumwindow : public View
{
public:
    /// A window of its own, or one that belongs to `owner`: above it, without an entry in the task
    /// switcher. `type` tells the desktop what such a window is: attached, or a dialog.
    custumwindow(UpRect contentRect, QWidget *owner, Qt::WindowType type = Qt::Tool);

    /// Fills the window with `view`, at every size; the window then owns it.
    void setContentView(View *view);
    /// Takes the shape of the content's background as it is now. By itself the window does so when
    /// it comes to the screen and when its size changes.
    void takeShape();

    /// Whether dragging the background moves the window; at first it does not.
    bool bCanDragWindow() const { return m_bCanDragWindow; }
    void setBCanDragWindow(bool can) { m_bCanDragWindow = can; }
    /// Makes a drag of this window's background move `window` in its place: an attached window
    /// takes the whole arrangement along. Null: itself again.
    void setDragMoves(custumwindow *window) { m_dragMoves = window; }
    /// Where in the window the pointer was at the last press.
    UpPoint initialLocation() const { return m_initialLocation; }
    void setInitialLocation(UpPoint location) { m_initialLocation = location; }

    /// Called in place of closing when the desktop asks the window to close.
    void setCloseRequest(const Action<> &request) { m_closeRequest = request; }

    /// The windows that the tab key goes on to past this window's last control, and before its
    /// first. Without them it stays within the window.
    void setTabNeighbours(custumwindow *previous, custumwindow *next);

    /// Brings the window to the front and gives the keyboard to `control` in it, for `reason`.
    void makeKeyFor(QWidget &control, Qt::FocusReason reason);

    /// Puts the window into the middle of its screen, or of its owner's.
    void center();
    /// Puts the window over the middle of the window `other`, as far as its screen allows.
    void centerOver(const QWidget &other);

protected:
    void mouseDown(const ViewMouseEvent &event) override;
    void mouseDragged(const ViewMouseEvent &event) override;
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    bool event(QEvent *event) override;

private:
    std::vector<QWidget *> tabStops() const;
    bool enterByTab(Qt::FocusReason reason);

    QRegion contentShape() const;

    QPointer<View> m_contentView;
    bool m_isCutOut = false;
    bool m_bCanDragWindow = false;
    QPointer<custumwindow> m_dragMoves;
    QPointer<custumwindow> m_tabPrevious;
    QPointer<custumwindow> m_tabNext;
    std::optional<Qt::FocusReason> m_entry; ///< why it has the keyboard, while it becomes active
    UpPoint m_initialLocation;              ///< of the pointer in the window at the last press
    Action<> m_closeRequest;
};
