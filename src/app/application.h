#pragma once

#include "model/regions.h"

/// What the program's parts outside itself are called.
struct Places
{
    std::string settingsPath;
    RegionHosts hosts;
};

/// Runs the utility until it is quit; the process's exit code.
int runKyrGM(int argc, char **argv, const Places &places);
