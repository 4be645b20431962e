#pragma once

#include <QtGui/QScreen>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

/// What stands on the screen where a window is, after all that it was asked to draw: unlike a
/// picture that is drawn for the purpose it also tells what was not drawn again.
inline QImage onScreen(const QWidget &window)
{
    QCoreApplication::processEvents();
    return window.screen()
        ->grabWindow(window.winId())
        .toImage()
        .convertToFormat(QImage::Format_ARGB32);
}
