#pragma once

#include "app/barframe.h"
#include "controls/custumwindow.h"

#include <QtCore/QVariantAnimation>

/// One bar window on its side of the main window, and its way between shut and open. It moves
/// without holding up anything else, and may be turned round under way.
class BarSlide : public QObject
{
public:
    /// Neither window is owned; the slide rests, shut.
    BarSlide(BarSide side, custumwindow &main, custumwindow &bar);

    /// Starts for the open or the shut end, from wherever the bar is. A bar that is not on the
    /// screen, or a desktop without animations, is there at once.
    void slide(bool open);
    /// Sends `arrived` once the bar is where it is going: at once when it is not under way, never
    /// when another slide() comes first.
    void whenArrived(const Action<> &arrived);
    /// Whether the bar is on its way.
    bool isMoving() const { return m_way.state() == QAbstractAnimation::Running; }
    /// Puts the bar where it belongs beside the main window as that lies now.
    void follow();

private:
    void moveTo(double openShare);
    void sendArrived();

    BarSide m_side;
    QPointer<custumwindow> m_main;
    QPointer<custumwindow> m_bar;
    QVariantAnimation m_way; ///< of the open share
    double m_openShare = 0.0;
    Action<> m_arrived;
};
