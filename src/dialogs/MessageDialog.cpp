#include "dialogs/MessageDialog.h"

#include "dialogs/textfit.h"

#include <QtGui/QShortcut>

namespace {

constexpr int kTitleSize = 12;
constexpr int kMessageSize = 12;

} // namespace

MessageDialog::MessageDialog(QWidget *parent, const DialogLayout &layout)
    : View(parent), m_layout(layout)
{
    setFrame({0, 0, layout.width, layout.height});
    const Faces faces{SkinImage::named(layout.normal), SkinImage::named(layout.over),
                      SkinImage::named(layout.down)};
    BKImage = faces.normal;
    buildButtons(faces);
    buildKeys();
}

void MessageDialog::buildButtons(const Faces &faces)
{
    for (const ButtonRow &row : m_layout.buttons) {
        HoverButton *const button = makeButton(this, row, faces);
        button->setAction({this, &MessageDialog::buttonAction});
        if (row.tag == kDialogCloseTag)
            m_close = button;
        if (row.tag == kDialogOKTag)
            m_first = button;
    }
    if (!m_first)
        m_first = m_close;
}

/// The tab and arrow keys and Space are the buttons' own.
void MessageDialog::buildKeys()
{
    struct KeyRow
    {
        Qt::Key key;
        void (MessageDialog::*press)();
    };
    static constexpr KeyRow keys[] = {
        {Qt::Key_Escape, &MessageDialog::pressClose},
        {Qt::Key_Return, &MessageDialog::pressFocused},
        {Qt::Key_Enter, &MessageDialog::pressFocused},
    };
    for (const KeyRow &row : keys) {
        auto *const shortcut = new QShortcut(QKeySequence(row.key), this, this, row.press);
        // A key that is still held down from before the dialog answers nothing.
        shortcut->setAutoRepeat(false);
    }
}

void MessageDialog::runModal()
{
    const QPointer<MessageDialog> alive(this);
    m_first->setFocus();
    m_modalRun.run(*window());
    if (alive)
        answered(m_answer.value_or(kDialogCloseTag));
    if (!alive)
        return;
    // Not close(): that may be a request of the player's, which the window passes on.
    window()->hide();
    window()->deleteLater();
}

void MessageDialog::buttonAction(HoverButton *sender)
{
    if (!m_answer)
        m_answer = sender->tag();
    m_modalRun.stop();
}

void MessageDialog::setDisplayString(const QString &strCaption, const QString &strDisplayText)
{
    setTexts(strCaption, {strDisplayText});
}

void MessageDialog::setTexts(const QString &caption, const QStringList &texts)
{
    m_caption = caption;
    m_texts = texts;
    // The window is what assistive technology announces, the view what it finds in there.
    window()->setWindowTitle(caption);
    window()->setAccessibleDescription(strText());
    setAccessibleName(caption);
    setAccessibleDescription(strText());
    update();
}

void MessageDialog::drawRect(Canvas &canvas)
{
    canvas.clear();
    canvas.drawImage(BKImage);
    canvas.drawLine(m_caption, m_layout.title, kGold, TextAlign::Centre, kTitleSize);
    auto place = m_layout.texts.begin();
    for (const QString &text : m_texts) {
        const TextFit fit = fitText(text, *place++, kMessageSize);
        canvas.DrawMyTextwithColor(text, fit.rect, kGold, TextAlign::Centre, fit.fontSize);
    }
}

void MessageDialog::pressClose()
{
    m_close->click();
}

void MessageDialog::pressFocused()
{
    auto *const focused = qobject_cast<QAbstractButton *>(window()->focusWidget());
    (focused ? focused : m_first)->click();
}
