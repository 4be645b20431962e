#pragma once

#include <QtGui/QValidator>

#include <cstdint>

/// Keeps what is typed into a field to a number of characters, of whatever kind; an edit beyond
/// that, also one by pasting, is refused as a whole.
class limitedLengthFormatter : public QValidator
{
public:
    explicit limitedLengthFormatter(QObject *parent) : QValidator(parent) {}

    /// In UTF-16 units; 0 at first, which lets nothing be typed.
    void setMaxTextLength(std::uint32_t length) { m_maxTextLength = length; }

    /// Whether an edit may leave `text` in the field.
    bool isPartialStringValid(const QString &text) const;
    /// A text for a number: none, the field shows what was typed.
    QString stringForObjectValue(int /*value*/) const { return {}; }

    State validate(QString &text, int &position) const override;

private:
    std::uint32_t m_maxTextLength = 0;
};
