// Switching the profile: a click on a profile key, until the whole window shows the other profile.

#include "app/barframe.h"
#include "model/fixedtext.h"
#include "support/mainwindow.h"

#include <benchmark/benchmark.h>

#include <chrono>

namespace {

constexpr double kMostMilliseconds = 4;
constexpr int kClicks = 400;

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

/// Sees when a widget has been drawn.
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(QObject &widget) { widget.installEventFilter(this); }
    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        isPainted |= event->type() == QEvent::Paint;
        return false;
    }
    bool isPainted = false;
};

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
        using Clock = std::chrono::steady_clock;
        const int other = m_Config.PROFILE_ID == 0 ? 2 : 1;
        const HoverButton &key = m_stage.profileKey(other);
        const PaintWatch view(m_stage.view());
        const PaintWatch button(m_stage.mouseButton(14));
        const QString before = m_stage.mouseButton(14).captionText();
        QCoreApplication::processEvents(); // nothing is left of what was before
        const auto begin = Clock::now();
        pointer::click(key);
        while (!view.isPainted || !button.isPainted)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        const std::chrono::duration<double> taken = Clock::now() - begin;
        const bool shows = m_stage.profileKeysOn() == std::vector{other} &&
                           m_stage.mouseButton(14).captionText() != before;
        return shows ? taken.count() : -1;
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

void profileSwitch(benchmark::State &state, Switching *program, bool barsOpen)
{
    if (barsOpen)
        program->openBars();
    while (state.KeepRunning()) {
        const double seconds = program->clickTheOther();
        if (seconds < 0)
            state.SkipWithError("the other profile does not show");
        state.SetIterationTime(seconds);
    }
}

double worst(const std::vector<double> &times)
{
    return *std::ranges::max_element(times);
}

void measure(const char *name, Switching *program, bool barsOpen)
{
    benchmark::RegisterBenchmark(name, profileSwitch, program, barsOpen)
        ->UseManualTime()
        ->Iterations(1)
        ->Repetitions(kClicks)
        ->ReportAggregatesOnly()
        ->ComputeStatistics("worst", worst)
        ->Unit(benchmark::kMillisecond);
}

/// Prints, and keeps whether something failed or took too long.
class LimitReporter : public benchmark::ConsoleReporter
{
public:
    LimitReporter() : ConsoleReporter(OO_None) {}

    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &run : runs) {
            m_failed |= run.error_occurred;
            m_failed |=
                run.aggregate_name == "median" && run.GetAdjustedRealTime() > kMostMilliseconds;
        }
        ConsoleReporter::ReportRuns(runs);
    }
    bool hasFailed() const { return m_failed; }

private:
    bool m_failed = false;
};

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    Switching program;
    measure("profileSwitch/barsClosed", &program, false);
    measure("profileSwitch/barsOpen", &program, true);
    benchmark::Initialize(&argc, argv);
    LimitReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return reporter.hasFailed() ? 1 : 0;
}
