#pragma once

#include "platform/keystrokeview.h"
#include "support/keystroke.h"
#include "support/logcapture.h"

#include <QtWidgets/QDialog>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

#include <vector>

/// Notes the keys that it is told of.
class StrokeView : public KeyStrokeView
{
public:
    explicit StrokeView(QWidget *parent) : KeyStrokeView(parent) {}

    /// The same as text: "flags 56 20000" of a modifier key, else "down 0".
    QString told() const { return m_told.join(QLatin1String(", ")); }

    std::vector<KeyStroke> strokes;

protected:
    void keyDown(const KeyStroke &stroke) override
    {
        if (stroke.type != KeyEventType::KeyDown)
            qFatal("no press");
        note(stroke, QStringLiteral("down %1").arg(stroke.keyCode));
    }
    void keyUp(const KeyStroke &stroke) override
    {
        if (stroke.type != KeyEventType::KeyUp)
            qFatal("no release");
        note(stroke, QStringLiteral("up %1").arg(stroke.keyCode));
    }
    void flagsChanged(const KeyStroke &stroke) override
    {
        if (stroke.type != KeyEventType::FlagsChanged)
            qFatal("no change of the flags");
        note(stroke,
             QStringLiteral("flags %1 %2").arg(stroke.keyCode).arg(stroke.modifierFlags, 0, 16));
    }

private:
    void note(const KeyStroke &stroke, const QString &text)
    {
        strokes.push_back(stroke);
        m_told.append(text);
    }

    QStringList m_told;
};

/// A dialog with a field, a view that is told of keys and has the keyboard, and a default button.
struct StrokeStage
{
    StrokeStage()
    {
        view.setGeometry(0, 40, 100, 20);
        button.setDefault(true);
        QObject::connect(&button, &QPushButton::clicked, &button, [this] { ++clicks; });
        dialog.show();
        dialog.activateWindow();
        if (!QTest::qWaitForWindowActive(&dialog))
            qFatal("the dialog does not get the keyboard");
        view.setFocus();
    }

    LogCapture log;
    QDialog dialog;
    QLineEdit field{&dialog};
    StrokeView view{&dialog};
    QPushButton button{&dialog};
    int clicks = 0;
};

namespace keystroke {

inline const HardwareKey kPause{119, Qt::Key_Pause};
inline const HardwareKey kLeftControl{29, Qt::Key_Control};

} // namespace keystroke

// X11's bits for modifiers before an event.
inline constexpr quint32 kShiftBefore = 1;
inline constexpr quint32 kLockBefore = 2;

inline const keystroke::Circumstances kShifted{.modifiersBefore = kShiftBefore, .modifiers = {}};
