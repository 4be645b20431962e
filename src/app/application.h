#pragma once

#include "model/regions.h"

/// Where the program finds what lies outside itself.
struct Places
{
    std::string settingsPath;
    RegionHosts hosts;
};

/// Runs the utility until it is quit; the process's exit code.
int runKyrGM(int argc, char **argv, const Places &places);
