#pragma once

#include "model/regions.h"

#include <chrono>
#include <functional>
#include <string>

class FilePanels;
class NotificationCenter;

/// What reaches outside the process, as the main view gets it: `main` gives the real things, a test
/// gives its own.
struct Environment
{
    std::string settingsPath;
    NotificationCenter *notifications; ///< outlives the main view
    std::function<void()> quit;        ///< ends the program, from the event loop
    FilePanels *panels = nullptr; ///< outlives the main view; without, every panel is cancelled
    /// Opens a file, or an address of the web, with the desktop's default application.
    std::function<void(const std::string &path)> openFile = [](const std::string & /*path*/) {};
    std::function<void(const std::string &address)> openAddress =
        [](const std::string & /*address*/) {};
    RegionHosts hosts = {}; ///< a region without one is not asked
    std::chrono::milliseconds webTimeout = std::chrono::seconds(60); ///< of a silent host
};
