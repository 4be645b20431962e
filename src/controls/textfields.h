#pragma once

#include "platform/view.h"

#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPlainTextEdit>

/// The text fields of the program's dialogs: black on white without a border, grey where nothing
/// can be typed.

/// A field for one line.
class TextField : public Framed<QLineEdit>
{
public:
    explicit TextField(QWidget *parent);

    using Placed::setFrame;

    /// Whether a person can change the text.
    void setEditable(bool editable);
    /// The text with every control character, which a paste may bring, as a blank.
    QString plainText() const;
};

/// A field for several lines; the tab key leaves it.
class TextArea : public Framed<QPlainTextEdit>
{
public:
    explicit TextArea(QWidget *parent);

    /// The text with lines ended by "\n" and every other control character but the tab as a blank.
    QString plainText() const;
};
