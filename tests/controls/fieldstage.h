#pragma once

#include "controls/custumwindow.h"
#include "controls/textfields.h"
#include "support/pointer.h"

#include <QtGui/QClipboard>

inline constexpr UpRect kFieldFrame{20, 150, 120, 24};
inline constexpr UpRect kAreaFrame{20, 20, 120, 90};

/// A draggable window with a field and an area in it.
struct FieldStage
{
    FieldStage()
    {
        window.setBCanDragWindow(true);
        field.setFrame(kFieldFrame);
        area.setFrame(kAreaFrame);
        window.show();
        if (!QTest::qWaitForWindowActive(&window))
            qFatal("the window does not come up");
        window.setFocus(); // no cursor
    }
    void paste(QWidget &into, const QString &text) const
    {
        QGuiApplication::clipboard()->setText(text);
        pointer::click(into);
        QTest::keyClick(window.windowHandle(), Qt::Key_V, Qt::ControlModifier);
    }

    custumwindow window{{100, 100, 200, 200}, nullptr};
    TextField field{&window};
    TextArea area{&window};
};
