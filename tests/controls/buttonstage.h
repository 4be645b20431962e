#pragma once

#include "controls/HoverButton.h"
#include "support/pictures.h"
#include "support/pointer.h"
#include "support/receiver.h"

#include <QtGui/QContextMenuEvent>
#include <QtWidgets/QApplication>

inline const QColor kNormalFace = Qt::green;
inline const QColor kHoverFace = Qt::blue;
inline const QColor kPressedFace = Qt::red;
inline const QColor kDisabledFace = Qt::gray;

/// A shown window with one button in it, the pointer beside the button.
struct ButtonStage
{
    ButtonStage()
    {
        window.resize(200, 120);
        button.setAction({&clicks, &Clicks::receive});
        button.setRightAction({&rightClicks, &Clicks::receive});
        window.show();
        if (!QTest::qWaitForWindowActive(&window))
            qFatal("the window does not come up");
        leave();
    }

    void setAllFaces()
    {
        const QSize size = button.size();
        button.setNormalImage(plainPicture(size, kNormalFace));
        button.setHoverImage(plainPicture(size, kHoverFace));
        button.setAlternateImage(plainPicture(size, kPressedFace));
        button.setDisableImage(plainPicture(size, kDisabledFace));
    }
    QColor face() { return shownAt(button, {3, 3}); }

    void hover() { pointer::move(button, button.rect().center()); }
    void leave() { pointer::move(window, {1, 1}); }
    void press() { pointer::press(button, button.rect().center()); }

    /// The desktop's request for the context menu of the control that has the keyboard.
    void menuKey()
    {
        const QPoint at = button.rect().center();
        QContextMenuEvent event(QContextMenuEvent::Keyboard, at, button.mapToGlobal(at));
        QApplication::sendEvent(&button, &event);
    }

    using Clicks = Receiver<HoverButton>;

    View window;
    HoverButton button{&window, {20, 30, 97, 27}};
    Clicks clicks;
    Clicks rightClicks;
};
