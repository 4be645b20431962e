#pragma once

#include "platform/action.h"
#include "platform/focusframe.h"
#include "platform/view.h"

#include <QtWidgets/QAbstractSlider>

/// A bar drawn from two pictures, the over picture uncovered as far as the position goes; where the
/// mouse may change it, a slider. The arrow keys and each notch of the wheel move that by one, Home
/// and End to its ends; it tells its position in numbers when it is moved and when the pointer
/// rests on it.
class pngProgressBar : public ViewOf<QAbstractSlider>
{
public:
    explicit pngProgressBar(QWidget *parent, UpRect frame = {});

    /// The pictures of the empty and of the full bar; each keeps a private copy.
    void setBKImage(const SkinImage &image);
    void setOverImage(const SkinImage &image);
    /// 1 = horizontal, filling from the left; any other value = vertical, filling from the bottom.
    void setDirStyle(int style);
    /// The range of positions; a maximum below the minimum is taken as the minimum.
    void setposRange(double minValue, double maxValue);
    /// Whether the player may change it, with the mouse, the wheel or the keyboard; if not, it
    /// takes no keyboard focus either.
    void setAllowMouseChangeFlag(bool allow);
    /// Sent with the bar at every press and move of the pointer on it, also when the position stays
    /// as it was, and after every change by key or wheel.
    void setChangeAction(const Action<pngProgressBar *> &action) { changeAction = action; }

    /// Takes the position, bounded to the range.
    void setPos(int pos);
    int getPos() const { return static_cast<int>(_currentpos); }

    void setTag(int tag) { _tag = tag; }
    int tag() const { return _tag; }

protected:
    void drawRect(Canvas &canvas) override;
    void mouseDown(const ViewMouseEvent &event) override;
    void mouseDragged(const ViewMouseEvent &event) override;
    void keyDown(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    bool event(QEvent *event) override;

private:
    bool isHorizontal() const { return _DirStyle == 1; }
    int uncovered(int length) const;
    void followPointer(const ViewMouseEvent &event);
    void tellPosition(QPoint pointer);
    void takeSliderValue(int value);
    void updateSlider();

    double _currentpos = 0;
    double _minimum = 0;
    double _maximum = 100.0;
    int _DirStyle = 1;
    SkinImage OverImage;
    SkinImage BKImage;
    int _tag = 0;
    Action<pngProgressBar *> changeAction;
    bool bAllowMouseChangeFlag = true;
    FocusFrame m_focusFrame;
    int m_turned = 0; ///< what of the wheel's turn is less than a notch yet
};
