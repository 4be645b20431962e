#pragma once

#include <QtWidgets/QWidget>

#include <functional>
#include <vector>

// Benchmarks of what a click does, until it shows.

/// The seconds that a click takes: until everything that follows from it is done and all of
/// `watched` have been drawn. It waits for ever for one that is never drawn.
double timeClick(const std::function<void()> &click, const std::vector<QWidget *> &watched);

/// Adds a benchmark: `click` is made 400 times and gives its seconds each time, negative when the
/// click has not had its effect.
void measureClicks(const char *name, const std::function<double()> &click);

/// Runs what was added and prints medians and the worst ones. The program's exit code: 1 when a
/// click had no effect or a median took longer.
int runClickBenchmarks(int argc, char **argv, double mostMilliseconds);
