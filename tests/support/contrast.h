#pragma once

#include <QtGui/QColor>

#include <cmath>

namespace detail {

inline double linear(double part)
{
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

inline double luminance(const QColor &colour)
{
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

} // namespace detail

/// The contrast of a colour and a darker one, as the web's guidelines for access reckon it: 1 to
/// 21, and 4.5 for text that is to be read.
inline double contrast(const QColor &text, const QColor &ground)
{
    return (detail::luminance(text) + 0.05) / (detail::luminance(ground) + 0.05);
}
