#pragma once

#include "controls/popupcontent.h"

#include <QtGui/QImage>

/// A picture of colours to pick from: a click takes the colour of the picture's own pixel where it
/// is released. The arrow keys move a cross over it, with Shift by single points, and Return takes
/// the colour there; the first of these keys only shows the cross.
class pngcolorlist : public PopupContent
{
public:
    explicit pngcolorlist(QWidget *parent, UpRect frame = {});

    /// The colour last picked, 0..255 a component; 0 before the first.
    std::uint32_t getRed() const { return _red; }
    std::uint32_t getGreen() const { return _green; }
    std::uint32_t getBlue() const { return _blue; }

    /// Sent with the view after a pick.
    void setChangeAction(const Action<pngcolorlist *> &action) { changeAction = action; }

protected:
    void drawContent(Canvas &canvas) override;
    void mouseDown(const ViewMouseEvent &event) override;
    void mouseUp(const ViewMouseEvent &event) override;
    void mouseDragged(const ViewMouseEvent &event) override;
    void keyDown(QKeyEvent *event) override;

private:
    QRgb colourAt(QPointF place) const;
    void pick(QPointF place);
    void moveCross(QPoint by);

    std::uint32_t _red = 0;
    std::uint32_t _green = 0;
    std::uint32_t _blue = 0;
    Action<pngcolorlist *> changeAction;
    SkinImage colorImage;
    QImage m_pixels;           ///< of colorImage
    bool m_isPressed = false;  ///< by the first press of a click
    QPoint m_cross;            ///< from the picture's upper left corner, y downwards
    bool m_showsCross = false; ///< once a key has been used
};
