#pragma once

#include "platform/view.h"

#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPlainTextEdit>

/// The text fields of the program's dialogs: black on white without a border, grey where nothing
/// can be typed.

/// A field for one line. The release of a key is told to the dialog too.
class TextField : public Framed<QLineEdit>
{
public:
    explicit TextField(QWidget *parent);

    using Placed::setFrame;

    /// Shows a text that nobody has typed, as it is; a validator is not asked.
    void load(const QString &text);
    /// Whether a person can change the text.
    void setEditable(bool editable);
    /// The text: as it was loaded, or once it was edited with every control character, which a
    /// paste may bring, as a blank.
    QString plainText() const;

protected:
    void keyReleaseEvent(QKeyEvent *event) override;

private:
    void refuseUnacceptable();

    QString m_loaded;
};

/// A field for several lines; the tab key leaves it. A paste brings at most 32767 characters, which
/// is all that a TextField holds.
class TextArea : public Framed<QPlainTextEdit>
{
public:
    explicit TextArea(QWidget *parent);

    /// Shows a text that nobody has typed.
    void load(const QString &text);
    /// The text: as it was loaded, or once it was edited with lines ended by "\n" and every other
    /// control character but the tab as a blank.
    QString plainText() const;

protected:
    void insertFromMimeData(const QMimeData *source) override;

private:
    QString m_loaded;
};
