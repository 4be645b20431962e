#include "macro/limitedLengthFormatter.h"

bool limitedLengthFormatter::isPartialStringValid(const QString &text) const
{
    return static_cast<std::uint64_t>(text.size()) <= m_maxTextLength;
}

QValidator::State limitedLengthFormatter::validate(QString &text, int & /*position*/) const
{
    return isPartialStringValid(text) ? Acceptable : Invalid;
}
