#include "platform/keywindow.h"

#include <QtCore/QEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

void orderFront(QWidget &window)
{
    window.setAttribute(Qt::WA_ShowWithoutActivating);
    window.show();
    window.raise();
}

void makeKeyAndOrderFront(QWidget &window)
{
    window.show();
    window.raise();
    window.activateWindow();
}

void makeKeyWindow(QWidget &window)
{
    if (QApplication::activeWindow())
        window.activateWindow();
}

QWidget *keyboardWithin(const QWidget &part)
{
    QWidget *const focused = part.window()->focusWidget();
    const bool isWithin = focused && (focused == &part || part.isAncestorOf(focused));
    return isWithin ? focused : nullptr;
}

void hideQuietly(QWidget &part)
{
    if (QWidget *const focused = keyboardWithin(part))
        focused->clearFocus();
    part.hide();
}

void KeyWindowWatch::start(QWidget *window, std::function<void()> resigned)
{
    stop();
    m_window = window;
    m_resigned = std::move(resigned);
    window->installEventFilter(this);
}

void KeyWindowWatch::stop()
{
    if (m_window)
        m_window->removeEventFilter(this);
    m_window = nullptr;
    m_resigned = {};
}

bool KeyWindowWatch::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_window && event->type() == QEvent::WindowDeactivate) {
        const auto resigned = m_resigned; // the call may stop the watch
        resigned();
    }
    return false;
}
