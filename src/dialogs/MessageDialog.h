#pragma once

#include "controls/faces.h"
#include "platform/modalrun.h"

#include <optional>
#include <span>

/// The tags of a message dialog's buttons; each is also the answer of who presses it.
inline constexpr int kDialogCloseTag = 4096;
inline constexpr int kDialogOKTag = 4097;
inline constexpr int kDialogCancelTag = 4098;

/// What a message dialog is made of.
struct DialogLayout
{
    int width = 0;
    int height = 0;
    const char *normal = ""; ///< the names of its pictures
    const char *over = "";
    const char *down = "";
    UpRect title;
    std::span<const UpRect> texts;      ///< a place for each text of the message
    std::span<const ButtonRow> buttons; ///< one of them the close button
};

/// The insides of a window with a title, a message and a few buttons, which is run modally: what
/// all message dialogs share. Escape closes, Return presses the button with the keyboard, the tab
/// and arrow keys move between the buttons.
class MessageDialog : public View
{
public:
    /// Runs the dialog's window until it is answered. Afterwards, in this order: does what the
    /// answer asks for, closes the window, has it deleted later. A window that is closed by the
    /// desktop, or still open when the program ends, is answered like by its close button. When
    /// the window is deleted meanwhile nothing more is done.
    void runModal();

    /// A click on a button: answers the dialog with the button's tag. The first answer holds.
    void buttonAction(HoverButton *sender);

    const QString &strCaption() const { return m_caption; }
    /// The message; its lines, where each has a place of its own.
    QString strText() const { return m_texts.join(u'\n'); }

protected:
    /// The layout is kept by reference: it belongs to the program's tables.
    MessageDialog(QWidget *parent, const DialogLayout &layout);

    /// Shows a title and a message of one text.
    void setDisplayString(const QString &strCaption, const QString &strDisplayText);
    /// Shows a title and as many texts of the message as there are places for.
    void setTexts(const QString &caption, const QStringList &texts);

    /// Called after the modal run with the tag of the button that answered it.
    virtual void answered(int /*tag*/) {}

    void drawRect(Canvas &canvas) override;

private:
    void buildButtons(const Faces &faces);
    void buildKeys();
    void pressClose();
    void pressFocused();

    const DialogLayout &m_layout;
    SkinImage BKImage;
    HoverButton *m_close = nullptr;
    HoverButton *m_first = nullptr; ///< has the keyboard at first
    QString m_caption;
    QStringList m_texts;
    ModalRun m_modalRun;
    std::optional<int> m_answer; ///< the tag of the button that was pressed first
};
