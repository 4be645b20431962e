// The recording field of the macro editor with a full list: how long it takes to draw it again,
// scrolled to its beginning and to its middle.

#include "clicks.h"
#include "controls/skinscrollarea.h"
#include "dialogs/dialogwindow.h"
#include "macro/MacroView.h"
#include "model/fixedtext.h"

#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QScrollBar>

namespace {

constexpr double kMostMilliseconds = 4;
constexpr std::uint32_t kKeys[] = {0, 49, 55, 36, 121, 96}; // short and long names
constexpr std::uint32_t kDelay = 20;

/// 300 events with delays.
void fillMacro(MacroInfo &macro)
{
    SetText(macro.MACRO_NAME, "The long rotation");
    macro.MODE = kModeRecordDelay;
    for (std::uint32_t i = 0; i < kMostMacroEvents; ++i)
        macro.KEYMAP[i] = {kKeys[i / 2 % std::size(kKeys)], 1 + i % 2, kDelay};
}

/// The editor, open on such a macro.
class OpenEditor
{
public:
    OpenEditor()
    {
        fillMacro(CurrentProfile().MACRO[0]);
        m_editor->setcurrentMacroID(0);
        m_editor->window()->show();
        if (!QTest::qWaitForWindowExposed(m_editor->window()))
            qFatal("the editor does not come up");
        waitUntilGrown();
    }

    /// Scrolled by that share of the way.
    double drawAgain(double share)
    {
        QScrollBar &bar = *area().verticalScrollBar();
        bar.setValue(static_cast<int>(share * bar.maximum()));
        QCoreApplication::processEvents();
        return timeClick([this] { display().update(); }, {&display()});
    }

private:
    MacroDisplay &display() const
    {
        return *m_editor->findChild<MacroDisplay *>(QStringLiteral("pMacroDisplayView"));
    }
    SkinScrollArea &area() const { return *m_editor->findChild<SkinScrollArea *>(); }

    /// The list gets higher by a line with each drawing.
    void waitUntilGrown() const
    {
        int before = 0;
        while (before != display().height()) {
            before = display().height();
            QTest::qWait(100);
        }
    }

    custumwindow m_owner{{0, 0, 654, 640}, nullptr};
    MacroView *m_editor = makeDialogAt<MacroView>(m_owner);
};

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    OpenEditor editor;
    measureClicks("beginning", [&] { return editor.drawAgain(0); });
    measureClicks("middle", [&] { return editor.drawAgain(0.5); });
    return runClickBenchmarks(argc, argv, kMostMilliseconds);
}
