#pragma once

#include "platform/systemlog.h"

#include <algorithm>
#include <string>
#include <vector>

/// Takes the program's log lines while it lives.
class LogCapture
{
public:
    LogCapture()
    {
        setSystemLogSink([this](const std::string &line) { lines.push_back(line); });
    }
    ~LogCapture() { setSystemLogSink({}); }
    LogCapture(const LogCapture &) = delete;
    LogCapture &operator=(const LogCapture &) = delete;

    bool contains(const std::string &line) const { return count(line) > 0; }
    long count(const std::string &line) const { return std::ranges::count(lines, line); }

    std::vector<std::string> lines;
};
