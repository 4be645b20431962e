// Start to first window: the utility beside a bare window, on the X display of the environment.

#include "windowclock.h"

#include <benchmark/benchmark.h>

namespace {

void startToWindow(benchmark::State &state, const char *program, WindowClock::Until until)
{
    WindowClock clock;
    if (!clock.isReady()) {
        state.SkipWithError("no display");
        return;
    }
    double resident = 0;
    while (state.KeepRunning()) {
        const auto result = clock.measure(program, until);
        state.SetIterationTime(result.milliseconds / 1000);
        resident = static_cast<double>(result.residentKib);
    }
    state.counters["resident_KiB"] = resident;
}

void measure(const char *name, const char *program, WindowClock::Until until)
{
    benchmark::RegisterBenchmark(name, startToWindow, program, until)
        ->UseManualTime()
        ->Iterations(1)
        ->Repetitions(15)
        ->ReportAggregatesOnly()
        ->Unit(benchmark::kMillisecond);
}

} // namespace

int main(int argc, char **argv)
{
    using Until = WindowClock::Until;
    measure("bareWindow/mapped", BARE_WINDOW, Until::Mapped);
    measure("KyrGM/mapped", KYRGM, Until::Mapped);
    measure("bareWindow/painted", BARE_WINDOW, Until::Painted);
    measure("KyrGM/painted", KYRGM, Until::Painted);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
