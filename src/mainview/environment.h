#pragma once

#include <functional>
#include <string>

class NotificationCenter;

/// What reaches outside the process, as the main view gets it: `main` gives the real things, a test
/// gives its own.
struct Environment
{
    std::string settingsPath;
    NotificationCenter *notifications; ///< outlives the main view
    std::function<void()> quit;        ///< ends the program, from the event loop
};
