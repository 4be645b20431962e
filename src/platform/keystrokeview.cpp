#include "platform/keystrokeview.h"

#include "platform/keyboardhold.h"

KeyStrokeView::KeyStrokeView(QWidget *parent) : View(parent) {}

bool KeyStrokeView::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        event->accept(); // no key is a shortcut here
        return true;
    case QEvent::KeyPress: // before the toolkit takes the tab key
    case QEvent::KeyRelease:
        take(static_cast<QKeyEvent *>(event));
        return true;
    default:
        return View::event(event);
    }
}

void KeyStrokeView::take(QKeyEvent *event)
{
    event->accept();
    const auto stroke = m_strokes.read(*event);
    if (!stroke)
        return;
    switch (stroke->type) {
    case KeyEventType::KeyDown:
        return keyDown(*stroke);
    case KeyEventType::KeyUp:
        return keyUp(*stroke);
    case KeyEventType::FlagsChanged:
        return flagsChanged(*stroke);
    }
}

void KeyStrokeView::focusInEvent(QFocusEvent *event)
{
    m_strokes.forget();
    holdKeyboard(*window(), true);
    View::focusInEvent(event);
}

void KeyStrokeView::focusOutEvent(QFocusEvent *event)
{
    holdKeyboard(*window(), false);
    View::focusOutEvent(event);
}
