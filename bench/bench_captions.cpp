// Captions: what showing a profile asks of the function table.

#include "functions/functioncodes.h"
#include "model/fixedtext.h"

#include <benchmark/benchmark.h>

namespace {

/// One code of each kind.
constexpr FunctionCode kCodes[kButtonCount] = {1,      2,      6,   0x4010, 0x5007, 17, 32,
                                               0x3034, 0x7009, 256, 305,    42,     9,  0};

void captionsOfAProfile(benchmark::State &state)
{
    ProfileInfo &profile = m_Config.PROFILE[0];
    for (MacroInfo &macro : profile.MACRO)
        SetText(macro.MACRO_NAME, "Opener, then the long rotation");
    while (state.KeepRunning()) {
        for (const FunctionCode code : kCodes)
            benchmark::DoNotOptimize(functions::caption(code, profile));
    }
    state.SetItemsProcessed(state.iterations() * kButtonCount);
}

void everyCode(benchmark::State &state)
{
    constexpr FunctionCode end = 0x8000;
    while (state.KeepRunning()) {
        for (FunctionCode code = 0; code < end; ++code)
            benchmark::DoNotOptimize(functions::gameCommand(code));
    }
    state.SetItemsProcessed(state.iterations() * end);
}

} // namespace

BENCHMARK(captionsOfAProfile);
BENCHMARK(everyCode);

BENCHMARK_MAIN();
