#pragma once

#include <QtCore/QPoint>
#include <QtCore/QRect>

/// Points and rectangles of the program's own geometry: origin at the lower left, y upwards, in
/// points. They turn into the toolkit's downward geometry, and back, only through an UpHost.

struct UpPoint
{
    int x = 0;
    int y = 0;
    bool operator==(const UpPoint &) const = default;
};

struct UpRect
{
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    bool operator==(const UpRect &) const = default;

    constexpr UpPoint origin() const { return {x, y}; }
    /// Whether all of `inner`, given in the same coordinates, lies within.
    constexpr bool holds(const UpRect &inner) const
    {
        return inner.x >= x && inner.y >= y && inner.x + inner.width <= x + width &&
               inner.y + inner.height <= y + height;
    }
};

/// Something of a known height in which upward geometry is placed: a view, an image, a screen. The
/// only place that turns the y axis over.
class UpHost
{
public:
    explicit constexpr UpHost(int height) : m_height(height) {}

    constexpr QPoint down(UpPoint point) const { return {point.x, m_height - point.y}; }
    constexpr UpPoint up(QPoint point) const { return {point.x(), m_height - point.y()}; }
    constexpr QRect down(UpRect rect) const
    {
        return {rect.x, m_height - rect.y - rect.height, rect.width, rect.height};
    }
    constexpr UpRect up(QRect rect) const
    {
        return {rect.x(), m_height - rect.y() - rect.height(), rect.width(), rect.height()};
    }

private:
    int m_height;
};
