#pragma once

#include "controls/HoverButton.h"
#include "support/keyboard.h"
#include "support/pictures.h"

#include <QtWidgets/QApplication>

/// The control that has the keyboard, as "window/control" by object names; "" without one.
inline QString focusPlace()
{
    const QWidget *const at = QApplication::focusWidget();
    return at ? at->window()->objectName() + QLatin1Char('/') + at->objectName() : QString();
}

/// Presses the key; where the keyboard is then. A window gets it in its own time.
inline QString focusPlaceAfter(Qt::Key key)
{
    const QString before = focusPlace();
    keyboard::press(key);
    if (!QTest::qWaitFor([&] { return focusPlace() != before; }))
        return QStringLiteral("stays at ") + before;
    return focusPlace();
}

/// Whether a button is drawn with the frame that tells that it has the keyboard.
inline bool showsFocusFrame(HoverButton &button)
{
    return extentOf(shown(button), kGold) == button.rect() &&
           shownAt(button, {0, button.height() / 2}) == kGold;
}

/// The buttons in `window` that show it, by object name; not those in windows that belong to it.
inline QStringList focusFrames(const QWidget &window)
{
    QStringList names;
    for (HoverButton *button : window.findChildren<HoverButton *>()) {
        if (button->window() == &window && showsFocusFrame(*button))
            names.append(button->objectName());
    }
    return names;
}
