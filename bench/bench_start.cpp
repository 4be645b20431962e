// Start to first window: the utility beside a bare window, on the X display of the environment.

#include "windowclock.h"

#include <benchmark/benchmark.h>

namespace {

struct Program
{
    const char *path;
    unsigned windows;
};

constexpr Program kBare{BARE_WINDOW, 1};
constexpr Program kUtility{KYRGM, 4}; // with its three bars

void startToWindow(benchmark::State &state, const Program *program, WindowClock::Until until)
{
    WindowClock clock;
    if (!clock.isReady()) {
        state.SkipWithError("no display");
        return;
    }
    double resident = 0;
    while (state.KeepRunning()) {
        const auto result = clock.measure(program->path, until, program->windows);
        state.SetIterationTime(result.milliseconds / 1000);
        resident = static_cast<double>(result.residentKib);
    }
    state.counters["resident_KiB"] = resident;
}

void measure(const char *name, const Program &program, WindowClock::Until until)
{
    benchmark::RegisterBenchmark(name, startToWindow, &program, until)
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
    measure("bareWindow/mapped", kBare, Until::Mapped);
    measure("KyrGM/mapped", kUtility, Until::Mapped);
    measure("bareWindow/painted", kBare, Until::Painted);
    measure("KyrGM/painted", kUtility, Until::Painted);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
