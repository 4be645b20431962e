#pragma once

#include "platform/action.h"
#include "platform/focusframe.h"
#include "platform/view.h"

#include <QtWidgets/QAbstractButton>

#include <cstdint>

/// A colour in words, for assistive technology; levels as they are.
QString colorInWords(std::uint32_t red, std::uint32_t green, std::uint32_t blue);

/// A button that shows a colour in a swatch, with one picture for rest and one for under the
/// pointer. It acts when it is pressed, not when it is released.
class colorbutton : public ViewOf<QAbstractButton>
{
public:
    colorbutton(QWidget *parent, UpRect frame);

    /// The colour's levels, 0..255 each; what is beyond shows as 255.
    void setFillColor(std::uint32_t Red, std::uint32_t Green, std::uint32_t Blue);
    void setNormalImage(const SkinImage &image);
    void setHoverImage(const SkinImage &image);

    /// Sent with the button when it is pressed, by the mouse or the space key.
    void setLeftDownAction(const Action<colorbutton *> &action) { LeftDownAction = action; }
    void setTag(int tag) { _tag = tag; }
    int tag() const { return _tag; }

protected:
    void drawRect(Canvas &canvas) override;
    void focusInEvent(QFocusEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    void setHover(bool hover);

    std::uint32_t _red = 0;
    std::uint32_t _green = 0;
    std::uint32_t _blue = 0;
    SkinImage HoverImage;
    SkinImage NormalImage;
    Action<colorbutton *> LeftDownAction;
    bool bHover = false;
    FocusFrame m_focusFrame;
    int _tag = 0;
};
