#pragma once

#include <QtGui/QColor>
#include <QtGui/QImage>

#include <algorithm>
#include <array>
#include <cmath>

/// How light something looks, whatever its colour.

namespace detail {

inline double linear(int level)
{
    const double share = level / 255.0;
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

inline const std::array<double, 256> &linearLevels()
{
    static const auto levels = [] {
        std::array<double, 256> made{};
        for (int level = 0; level < 256; ++level)
            made[static_cast<std::size_t>(level)] = linear(level);
        return made;
    }();
    return levels;
}

} // namespace detail

/// The light that a pixel gives, from 0 for black to 1 for white. A premultiplied one counts as it
/// looks on black.
inline double luminance(QRgb pixel)
{
    const auto &levels = detail::linearLevels();
    const auto of = [&](int level) { return levels[static_cast<std::size_t>(level)]; };
    return 0.2126 * of(qRed(pixel)) + 0.7152 * of(qGreen(pixel)) + 0.0722 * of(qBlue(pixel));
}

/// The same in equal steps for the eye, from 0 to 100 (CIE L*).
inline double lightness(QRgb pixel)
{
    const double light = luminance(pixel);
    return light <= 216.0 / 24389 ? light * 24389 / 27 : 116 * std::cbrt(light) - 16;
}

/// How well one stands out against the other, from 1 to 21 (WCAG).
inline double contrast(double light, double other)
{
    return (std::max(light, other) + 0.05) / (std::min(light, other) + 0.05);
}
