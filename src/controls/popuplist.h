#pragma once

#include "controls/custumwindow.h"
#include "controls/HoverButton.h"
#include "controls/pngListBox.h"
#include "platform/doubleclickguard.h"

#include <QtCore/QElapsedTimer>

#include <span>

/// What a view opens below its buttons: a list, or anything else to choose from, in a window of its
/// own that takes the keyboard and closes on a choice or when it loses the keyboard. A view has one
/// of these for all its buttons, so that one window at a time is open.
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
        Qt::FocusReason reason = Qt::OtherFocusReason; ///< why the view has the keyboard then
    };

    /// Tells presses of `button`, one that opens a list when it is clicked, to pressed().
    void attachTo(QAbstractButton &button);
    /// A control that opens a list was pressed; its click may follow.
    void pressed();
    /// Whether the click may open a list: none is open, and the press of the click was not the one
    /// that closed it by taking the keyboard away.
    bool mayOpen() const { return !isOpen() && !m_isClosingPress; }

    /// Opens a list directly below `button`, as wide as that; one that is open is to be closed
    /// first. `closeAction` is sent when the list is to be closed, which close() then does.
    void open(const HoverButton &button, const Rows &rows,
              const Action<PopupContent *> &closeAction);
    void open(const QWidget &button, const Content &content,
              const Action<PopupContent *> &closeAction);

    /// A choice was made: sends the close action once that has been handled.
    void chosen();
    /// Closes the window and gives the keyboard to `keyWindow`, unless another list has taken it.
    /// Nothing when no window is open.
    void close(QWidget &keyWindow);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool isOpen() const;
    bool hasJustLost() const;
    bool isAnotherOpen() const;
    void keyboardLost(QWidget &keyWindow);
    void sendClose(const QPointer<custumwindow> &chosenIn);
    void giveKeyboardTo(QWidget &keyWindow) const;

    QPointer<custumwindow> pListbox;
    QPointer<PopupContent> pListboxView;
    bool bListboxPresent = false;
    Action<PopupContent *> m_closeAction;
    bool m_isClosingPress = false;   ///< the last press took the keyboard from a list
    QElapsedTimer m_sinceLost;       ///< runs from a list's loss of the keyboard to the next press
    QPointer<QWidget> m_keyWindow;   ///< had the keyboard after that loss
    DoubleClickGuard m_secondClicks; ///< for those who double click a row
};

/// Where a window that belongs below `button`, at `below`, goes: there, or as far above the button
/// where only that is neither too low nor too high for `visible`.
UpRect popupFrame(UpRect button, UpRect below, UpRect visible);
