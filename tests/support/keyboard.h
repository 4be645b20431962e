#pragma once

#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

/// The keyboard as the desktop delivers it: to the window that has it.
namespace keyboard {

/// While it lives, the keyboard goes back to the window behind one that closes. A desktop does so
/// by itself; the platform of the tests leaves it nowhere.
class GivenBack : public QObject
{
public:
    GivenBack() { qApp->installEventFilter(this); }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *const window = qobject_cast<QWidget *>(watched);
        if (event->type() == QEvent::Hide && window && window->isWindow() && window->parentWidget())
            window->parentWidget()->activateWindow();
        return false;
    }
};

inline void press(Qt::Key key)
{
    QWindow *const window = QGuiApplication::focusWindow();
    if (!window)
        qFatal("no window has the keyboard");
    QTest::keyClick(window, key);
}

/// Presses the tab key until a control of the window has the keyboard.
inline void tabTo(const QWidget &control)
{
    constexpr int most = 100;
    for (int step = 0; step < most && !control.hasFocus(); ++step)
        press(Qt::Key_Tab);
    if (!control.hasFocus())
        qFatal("the tab key does not reach %s", qPrintable(control.objectName()));
}

} // namespace keyboard
