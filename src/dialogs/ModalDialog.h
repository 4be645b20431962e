#pragma once

#include "controls/HoverButton.h"
#include "platform/modalrun.h"

#include <optional>

/// The insides of a window that is run modally until one of its buttons answers it: Escape presses
/// the close button, Return the button with the keyboard.
class ModalDialog : public View
{
public:
    /// Runs the dialog's window until it is answered. Afterwards, in this order: does what the
    /// answer asks for, closes the window, has it deleted later. A window that is closed by the
    /// desktop, or still open when the program ends, is answered like by its close button. When
    /// the window is deleted meanwhile nothing more is done. While it runs already, it does
    /// nothing.
    void runModal();

protected:
    explicit ModalDialog(QWidget *parent);

    /// The button that Escape presses, and the control that has the keyboard at first; both are the
    /// dialog's children. To be told before it is run.
    void setKeyControls(HoverButton *close, QWidget *first);

    /// Answers the dialog with a button's tag. The first answer holds.
    void answer(int tag);
    /// Whether it was answered and is about to close: what is clicked now came too late.
    bool isAnswered() const { return m_isRunning && m_answer; }
    /// Called after the modal run with the tag of the button that answered it.
    virtual void answered(int /*tag*/) {}

    /// The Return key while no button has the keyboard, with the control that has it; null where
    /// none does.
    virtual void returnPressed(QWidget * /*focused*/) {}

private:
    void buildKeys();
    void pressClose();
    void pressFocused();

    HoverButton *m_close = nullptr;
    QWidget *m_first = nullptr;
    ModalRun m_modalRun;
    bool m_isRunning = false;
    std::optional<int> m_answer; ///< the tag of the button that was pressed first
};
