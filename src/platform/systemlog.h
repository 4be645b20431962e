#pragma once

#include <functional>
#include <string>

/// Writes one line to the platform's system log and to standard error. The format is printf's.
/// Control characters, which a terminal would obey, become blanks: a line may hold what others have
/// written. Any thread.
[[gnu::format(printf, 1, 2)]] void systemLog(const char *format, ...);

/// Takes the log lines in place of the system log, until it is called with an empty function.
void setSystemLogSink(std::function<void(const std::string &line)> sink);

/// Puts "name: " before every line on standard error, for a program whose lines scripts read; the
/// system log names the program by itself. Call it once, before any other thread logs.
void setSystemLogName(const std::string &name);
