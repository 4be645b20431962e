#include "dialogs/ModalDialog.h"

#include <QtGui/QShortcut>

ModalDialog::ModalDialog(QWidget *parent) : View(parent)
{
    buildKeys();
}

/// The tab and arrow keys and Space are the controls' own.
void ModalDialog::buildKeys()
{
    struct KeyRow
    {
        Qt::Key key;
        void (ModalDialog::*press)();
    };
    static constexpr KeyRow keys[] = {
        {Qt::Key_Escape, &ModalDialog::pressClose},
        {Qt::Key_Return, &ModalDialog::pressFocused},
        {Qt::Key_Enter, &ModalDialog::pressFocused},
    };
    for (const KeyRow &row : keys) {
        auto *const shortcut = new QShortcut(QKeySequence(row.key), this, this, row.press);
        // A key that is still held down from before the dialog answers nothing.
        shortcut->setAutoRepeat(false);
    }
}

void ModalDialog::setKeyControls(HoverButton *close, QWidget *first)
{
    m_close = close;
    m_first = first;
}

void ModalDialog::runModal()
{
    if (m_isRunning)
        return;
    m_isRunning = true;
    const QPointer<ModalDialog> alive(this);
    m_first->setFocus();
    m_modalRun.run(*window());
    if (alive)
        answered(m_answer.value_or(m_close->tag()));
    if (!alive)
        return;
    // Not close(): that may be a request of the player's, which the window passes on.
    window()->hide();
    window()->deleteLater();
}

void ModalDialog::answer(int tag)
{
    if (!m_answer)
        m_answer = tag;
    m_modalRun.stop();
}

void ModalDialog::pressClose()
{
    m_close->click();
}

void ModalDialog::pressFocused()
{
    QWidget *const focused = window()->focusWidget();
    if (auto *const button = qobject_cast<QAbstractButton *>(focused))
        button->click();
    else
        returnPressed(focused);
}
