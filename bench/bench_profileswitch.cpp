// Switching the profile: a click on a profile key, until the whole window shows the other profile.

#include "app/barframe.h"
#include "clicks.h"
#include "model/fixedtext.h"
#include "support/mainwindow.h"

namespace {

constexpr double kMostMilliseconds = 4;

/// The most that a switch can have to count: every button carries a full macro of its own.
void fillWithMacros(ProfileInfo &profile)
{
    for (unsigned slot = 0; slot < kButtonCount; ++slot) {
        MacroInfo &macro = profile.MACRO[slot];
        SetText(macro.MACRO_NAME, "Opener " + std::to_string(slot));
        macro.MODE = 2;
        std::ranges::fill(macro.KEYMAP, KeymapEvent{4, 1, 1});
        profile.BUTTON[slot] = 256 + slot;
    }
}

void fillWithCommands(ProfileInfo &profile)
{
    for (unsigned slot = 0; slot < kButtonCount; ++slot)
        profile.BUTTON[slot] = 0x3001 + slot;
}

/// The program on two profiles that have no caption in common.
class Switching
{
public:
    Switching()
    {
        fillWithMacros(m_Config.PROFILE[0]);
        fillWithCommands(m_Config.PROFILE[1]);
        clickTheOther();
        clickTheOther();
    }

    /// Opens the three bars, or does nothing when they are open.
    void openBars()
    {
        windowcontroll &controller = m_stage.interface->controller();
        if (!controller.IsMinLeftbar())
            return;
        controller.OpenLeftBar();
        controller.OpenRightBar();
        controller.OpenBottomBar();
        if (!QTest::qWaitFor([&] { return areBarsOpen(); }))
            qFatal("the bars do not open");
    }

    /// Clicks on the key of the profile that is not shown. The seconds from the press until
    /// everything that follows from the click is done and drawn; negative when the other profile
    /// does not show then.
    double clickTheOther()
    {
        const int other = m_Config.PROFILE_ID == 0 ? 2 : 1;
        const HoverButton &key = m_stage.profileKey(other);
        HoverButton &button = m_stage.mouseButton(14);
        const QString before = button.captionText();
        const double seconds = timeClick([&] { pointer::click(key); }, {&m_stage.view(), &button});
        const bool shows =
            m_stage.profileKeysOn() == std::vector{other} && button.captionText() != before;
        return shows ? seconds : -1;
    }

private:
    int barWidth(const char *name) const
    {
        const auto *const bar = m_stage.window().findChild<QWidget *>(QLatin1String(name));
        return std::min(bar->width(), bar->height());
    }
    bool areBarsOpen() const
    {
        return barWidth("LeftBar") == barReach(BarSide::Left) &&
               barWidth("RightBar") == barReach(BarSide::Right) &&
               barWidth("BottomBar") == barReach(BarSide::Bottom);
    }

    MainWindowStage m_stage;
};

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    Switching program;
    measureClicks("profileSwitch/barsClosed", [&] { return program.clickTheOther(); });
    measureClicks("profileSwitch/barsOpen", [&] {
        program.openBars();
        return program.clickTheOther();
    });
    return runClickBenchmarks(argc, argv, kMostMilliseconds);
}
