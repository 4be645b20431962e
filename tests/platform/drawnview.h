#pragma once

#include "platform/view.h"
#include "support/pictures.h"

#include <functional>

/// What a test draws.
using Draw = std::function<void(Canvas &)>;

class DrawnView : public View
{
public:
    explicit DrawnView(Draw draw) : View(nullptr), m_draw(std::move(draw)) { resize(100, 80); }

protected:
    void drawRect(Canvas &canvas) override { m_draw(canvas); }

private:
    Draw m_draw;
};

/// What is drawn on a black view of 100 x 80 points, in pixels. Only `part` of it is to be drawn, y
/// downwards; all of it when that is empty.
inline QImage drawn(int scale, const Draw &draw, QRect part = {})
{
    DrawnView view(draw);
    QImage image(view.size() * scale, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::black);
    view.render(&image, part.topLeft(), part, QWidget::RenderFlags());
    image.setDevicePixelRatio(1);
    return image;
}

inline QRect scaled(QRect rect, int scale)
{
    return {rect.topLeft() * scale, rect.size() * scale};
}
