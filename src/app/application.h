#pragma once

#include <string>

/// Runs the utility on a settings file until it is quit; the process's exit code.
int runKyrGM(int argc, char **argv, const std::string &settingsPath);
