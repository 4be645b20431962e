#pragma once

#include "controls/faces.h"
#include "controls/shapedcontent.h"
#include "dialogs/dialogtags.h"
#include "dialogs/ModalDialog.h"

#include <span>

/// What a message dialog is made of.
struct DialogLayout
{
    int width = 0;
    int height = 0;
    const char *normal = ""; ///< the names of its pictures
    const char *over = "";
    const char *down = "";
    UpRect title;
    std::span<const UpRect> texts;       ///< a place for each text of the message
    std::span<const ButtonRow> buttons;  ///< one of them the close button
    TextAlign align = TextAlign::Centre; ///< of title and texts
};

/// The insides of a window with a title, a message and a few buttons, which is run modally: what
/// all message dialogs share. Return without a button that has the keyboard presses the first one,
/// the tab and arrow keys move between them.
class MessageDialog : public ModalDialog, public ShapedContent
{
public:
    /// A click on a button: answers the dialog with the button's tag.
    void buttonAction(HoverButton *sender);

    const QString &strCaption() const { return m_caption; }
    /// The message; its lines, where each has a place of its own.
    QString strText() const { return m_texts.join(u'\n'); }
    const SkinImage &background() const override { return BKImage; }

protected:
    /// The layout is kept by reference: it belongs to the program's tables.
    MessageDialog(QWidget *parent, const DialogLayout &layout);

    /// Shows a title and a message of one text.
    void setDisplayString(const QString &strCaption, const QString &strDisplayText);
    /// Shows a title and as many texts of the message as there are places for.
    void setTexts(const QString &caption, const QStringList &texts);

    void drawRect(Canvas &canvas) override;
    void returnPressed(QWidget *focused) override;

private:
    void buildButtons(const Faces &faces);

    const DialogLayout &m_layout;
    SkinImage BKImage;
    HoverButton *m_first = nullptr; ///< has the keyboard at first
    QString m_caption;
    QStringList m_texts;
};
