#include "platform/systemlog.h"

#include <syslog.h>

#include <cstdarg>
#include <cstdio>

namespace {

std::function<void(const std::string &)> &sink()
{
    static std::function<void(const std::string &)> instance;
    return instance;
}

std::string &prefix()
{
    static std::string instance;
    return instance;
}

std::string formatted(const char *format, va_list arguments)
{
    va_list again;
    va_copy(again, arguments);
    const int length = std::vsnprintf(nullptr, 0, format, arguments);
    std::string line(length > 0 ? static_cast<std::size_t>(length) : 0, '\0');
    std::vsnprintf(line.data(), line.size() + 1, format, again);
    va_end(again);
    return line;
}

} // namespace

void systemLog(const char *format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    const std::string line = formatted(format, arguments);
    va_end(arguments);
    if (sink()) {
        sink()(line);
        return;
    }
    ::syslog(LOG_USER | LOG_INFO, "%s", line.c_str());
    std::fprintf(stderr, "%s%s\n", prefix().c_str(), line.c_str());
}

void setSystemLogSink(std::function<void(const std::string &line)> newSink)
{
    sink() = std::move(newSink);
}

void setSystemLogName(const std::string &name)
{
    prefix() = name + ": ";
}
