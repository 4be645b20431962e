#pragma once

#include <QtCore/QObject>
#include <QtCore/QPointer>

#include <functional>

class QWidget;

/// Shows `window` in front of the program's others; the keyboard stays where it is.
void orderFront(QWidget &window);

/// Brings `window` to the front and gives it the keyboard.
void makeKeyAndOrderFront(QWidget &window);

/// Gives `window` the keyboard, unless another program has it.
void makeKeyWindow(QWidget &window);

/// What in `part`, or `part` itself, has the keyboard when their window has it; null when nothing.
QWidget *keyboardWithin(const QWidget &part);

/// Hides `part` and lets go of a keyboard in it. By itself that would pass on to the next control,
/// which may be one of another window.
void hideQuietly(QWidget &part);

/// Tells when a window stops being the one that has the keyboard.
class KeyWindowWatch : public QObject
{
public:
    /// Calls `resigned` each time `window` loses the keyboard, until stop(). A watch that runs
    /// already is replaced.
    void start(QWidget *window, std::function<void()> resigned);
    /// Nothing is called any more.
    void stop();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QPointer<QWidget> m_window;
    std::function<void()> m_resigned;
};
