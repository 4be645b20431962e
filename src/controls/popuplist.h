#pragma once

#include "controls/custumwindow.h"
#include "controls/HoverButton.h"
#include "controls/pngListBox.h"
#include "platform/doubleclickguard.h"

#include <QtCore/QElapsedTimer>

#include <span>

/// What opens in a window of its own below a button, takes the keyboard, and closes on a choice or
/// when another window takes the keyboard. Of the lists that one of these opens, one at a time is
/// open.
///
/// Where the screen ends too early below the button, the window opens above it.
class PopupList : public QObject
{
public:
    /// A list of rows, each as high as a list box makes it.
    struct Rows
    {
        const char *title = ""; ///< the window's, for assistive technology
        int tag = 0;
        std::span<const char *const> texts;
        int selected = -1; ///< the row that is selected at first; none where there is no such row
        Action<pngListBox *> changeAction;
    };
    /// Any other content. `frame` is where it opens, in the view that holds the button.
    struct Content
    {
        const char *windowName = ""; ///< the window's object name
        const char *title = "";
        PopupContent *view = nullptr; ///< the window takes it over
        UpRect frame;
    };

    /// True while a window is open.
    bool bListboxPresent() const { return m_bListboxPresent; }

    /// Tells presses of `button` to pressed().
    void attachTo(QAbstractButton &button);
    /// A control that opens a list was pressed; its click may follow.
    void pressed();
    /// Whether the click may open a list: none is open, and the press of the click was not the one
    /// that closed it by taking the keyboard away.
    bool mayOpen() const { return !m_bListboxPresent && !m_isClosingPress; }

    /// Opens a list directly below `button`, as wide as that; none may be open. `closeAction` is
    /// sent when the list is to be closed, which close() then does.
    void open(const HoverButton &button, const Rows &rows,
              const Action<PopupContent *> &closeAction);
    void open(const QWidget &button, const Content &content,
              const Action<PopupContent *> &closeAction);

    /// A choice was made: sends the close action once that has been handled.
    void chosen();
    /// Closes the window and gives the keyboard to `keyWindow`, unless another list has taken it.
    /// Nothing when no window is open.
    void close(QWidget &keyWindow);

private:
    void sendClose(const QPointer<custumwindow> &chosenIn);

    QPointer<custumwindow> pListbox;
    QPointer<PopupContent> pListboxView;
    bool m_bListboxPresent = false;
    Action<PopupContent *> m_closeAction;
    bool m_isClosingPress = false;
    QElapsedTimer m_sinceLost;       ///< runs from the loss of the keyboard to the next press
    DoubleClickGuard m_secondClicks; ///< for those who double click a row
};

/// Where a window goes that is to lie at `below`, a place below `button`: there, or mirrored above
/// the button where only that lies within `visible`.
UpRect popupFrame(UpRect button, UpRect below, UpRect visible);
