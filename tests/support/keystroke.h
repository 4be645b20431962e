#pragma once

#include <QtGui/QKeyEvent>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>

/// Keys of the hardware, as the display delivers them to the window that has the keyboard: a key is
/// its number, whatever it types.
namespace keystroke {

/// A key by its Linux number, with what a common layout makes of it.
struct HardwareKey
{
    std::uint16_t scanCode = 0;
    Qt::Key key = Qt::Key_unknown;
    QString text = {};
};

inline const HardwareKey kA{30, Qt::Key_A, QStringLiteral("a")};
inline const HardwareKey kB{48, Qt::Key_B, QStringLiteral("b")};
inline const HardwareKey kTab{15, Qt::Key_Tab, QStringLiteral("\t")};
inline const HardwareKey kEscape{1, Qt::Key_Escape, QStringLiteral("\x1b")};
inline const HardwareKey kReturn{28, Qt::Key_Return, QStringLiteral("\r")};
inline const HardwareKey kInsert{110, Qt::Key_Insert};
inline const HardwareKey kCapsLock{58, Qt::Key_CapsLock};
inline const HardwareKey kLeftShift{42, Qt::Key_Shift};
inline const HardwareKey kRightShift{54, Qt::Key_Shift};

/// What else the display says of an event.
struct Circumstances
{
    quint64 time = 0;                ///< in milliseconds, on the display's clock
    bool isRepeat = false;           ///< made by the display, of a key that is held down
    quint32 modifiersBefore = 0;     ///< X11's modifier bits before the event; 2 is Caps Lock
    Qt::KeyboardModifiers modifiers; ///< as the toolkit tells them
};

inline void send(QEvent::Type type, const HardwareKey &key, const Circumstances &with = {})
{
    QWindow *const window = QGuiApplication::focusWindow();
    if (!window)
        qFatal("no window has the keyboard");
    const bool isPress = type == QEvent::KeyPress;
    if (isPress && qt_sendShortcutOverrideEvent(window, static_cast<ulong>(with.time), key.key,
                                                with.modifiers, key.text, with.isRepeat, 1))
        return; // it was a shortcut
    constexpr quint32 displaysOffset = 8;
    QKeyEvent event(type, key.key, with.modifiers, key.scanCode + displaysOffset, 0,
                    with.modifiersBefore, key.text, with.isRepeat);
    event.setTimestamp(with.time);
    QCoreApplication::sendEvent(window, &event);
}

inline void press(const HardwareKey &key, const Circumstances &with = {})
{
    send(QEvent::KeyPress, key, with);
}

inline void release(const HardwareKey &key, const Circumstances &with = {})
{
    send(QEvent::KeyRelease, key, with);
}

inline void tap(const HardwareKey &key)
{
    press(key);
    release(key);
}

/// A key that is held down sends pairs of a release and a press, or where the display is asked for
/// it presses only, which look like any others.
inline void repeat(const HardwareKey &key, int times)
{
    for (int time = 0; time < times; ++time) {
        release(key, {.isRepeat = true, .modifiers = {}});
        press(key, {.isRepeat = true, .modifiers = {}});
    }
}

inline void repeatPresses(const HardwareKey &key, int times)
{
    for (int time = 0; time < times; ++time)
        press(key);
}

} // namespace keystroke
