#include "platform/systemlog.h"

#include <syslog.h>

#include <algorithm>
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

bool isControl(char c)
{
    constexpr char del = 0x7F;
    return (c >= 0 && c < ' ') || c == del;
}

/// U+0080 to U+009F, by the first of their two bytes.
void blankLatinControls(std::string &line)
{
    for (std::size_t at = line.find('\xC2'); at != std::string::npos;
         at = line.find('\xC2', at + 1)) {
        if (at + 1 < line.size() && static_cast<unsigned char>(line[at + 1]) < 0xA0)
            line.replace(at, 2, " ");
    }
}

std::string formatted(const char *format, va_list arguments)
{
    va_list again;
    va_copy(again, arguments);
    const int length = std::vsnprintf(nullptr, 0, format, arguments);
    std::string line(length > 0 ? static_cast<std::size_t>(length) : 0, '\0');
    std::vsnprintf(line.data(), line.size() + 1, format, again);
    va_end(again);
    std::ranges::replace_if(line, isControl, ' ');
    blankLatinControls(line);
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
