#include "clicks.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>

namespace {

constexpr int kClicks = 400;

/// Sees when widgets have been drawn.
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(std::vector<QWidget *> widgets) : m_unpainted(std::move(widgets))
    {
        for (QWidget *widget : m_unpainted)
            widget->installEventFilter(this);
    }
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            std::erase(m_unpainted, watched);
        return false;
    }
    bool isAllPainted() const { return m_unpainted.empty(); }

private:
    std::vector<QWidget *> m_unpainted;
};

double worst(const std::vector<double> &times)
{
    return *std::ranges::max_element(times);
}

/// Prints, and keeps whether something failed or took too long.
class LimitReporter : public benchmark::ConsoleReporter
{
public:
    explicit LimitReporter(double mostMilliseconds)
        : ConsoleReporter(OO_None), m_mostMilliseconds(mostMilliseconds)
    {
    }

    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &run : runs) {
            m_failed |= run.error_occurred;
            m_failed |=
                run.aggregate_name == "median" && run.GetAdjustedRealTime() > m_mostMilliseconds;
        }
        ConsoleReporter::ReportRuns(runs);
    }
    bool hasFailed() const { return m_failed; }

private:
    double m_mostMilliseconds;
    bool m_failed = false;
};

} // namespace

double timeClick(const std::function<void()> &click, const std::vector<QWidget *> &watched)
{
    using Clock = std::chrono::steady_clock;
    const PaintWatch watch(watched);
    QCoreApplication::processEvents(); // nothing is left of what was before
    const auto begin = Clock::now();
    click();
    while (!watch.isAllPainted())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    const std::chrono::duration<double> taken = Clock::now() - begin;
    return taken.count();
}

void measureClicks(const char *name, const std::function<double()> &click)
{
    const auto run = [click](benchmark::State &state) {
        while (state.KeepRunning()) {
            const double seconds = click();
            if (seconds < 0)
                state.SkipWithError("the click does not show");
            state.SetIterationTime(seconds);
        }
    };
    benchmark::RegisterBenchmark(name, run)
        ->UseManualTime()
        ->Iterations(1)
        ->Repetitions(kClicks)
        ->ReportAggregatesOnly()
        ->ComputeStatistics("worst", worst)
        ->Unit(benchmark::kMillisecond);
}

int runClickBenchmarks(int argc, char **argv, double mostMilliseconds)
{
    benchmark::Initialize(&argc, argv);
    LimitReporter reporter(mostMilliseconds);
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return reporter.hasFailed() ? 1 : 0;
}
