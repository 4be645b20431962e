#pragma once

#include <QtGui/QWheelEvent>
#include <QtGui/QWindow>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

/// The mouse as the desktop delivers it: to whatever stands at a place of a shown window, which
/// need not be the control that is aimed at. Places are the control's own, y downwards.
namespace pointer {

inline QWindow *windowOf(const QWidget &control)
{
    return control.window()->windowHandle();
}

inline QPoint inWindow(const QWidget &control, QPoint at)
{
    return control.mapTo(control.window(), at);
}

inline void press(const QWidget &control, QPoint at, Qt::MouseButton button = Qt::LeftButton)
{
    QTest::mousePress(windowOf(control), button, {}, inWindow(control, at));
}

inline void release(const QWidget &control, QPoint at, Qt::MouseButton button = Qt::LeftButton)
{
    QTest::mouseRelease(windowOf(control), button, {}, inWindow(control, at));
}

inline void click(const QWidget &control, QPoint at, Qt::MouseButton button = Qt::LeftButton)
{
    press(control, at, button);
    release(control, at, button);
}

inline void click(const QWidget &control, Qt::MouseButton button = Qt::LeftButton)
{
    click(control, control.rect().center(), button);
}

inline void rightClick(const QWidget &control)
{
    click(control, Qt::RightButton);
}

inline void doubleClick(const QWidget &control, QPoint at)
{
    QTest::mouseDClick(windowOf(control), Qt::LeftButton, {}, inWindow(control, at));
}

inline void move(const QWidget &control, QPoint to)
{
    QTest::mouseMove(windowOf(control), inWindow(control, to));
}

/// Turns the wheel over the middle of a control, by a step when `angle` is 120.
inline void turnWheel(const QWidget &control, int angle)
{
    const QPoint at = control.rect().center();
    QWheelEvent event(inWindow(control, at), control.mapToGlobal(at), {}, {0, angle}, Qt::NoButton,
                      {}, Qt::NoScrollPhase, false);
    // Only what the desktop sends goes on to the area around a control that has no use for it.
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(windowOf(control), &event);
}

} // namespace pointer
