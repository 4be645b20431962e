#pragma once

#include <QtCore/QtGlobal>

#include <sys/resource.h>

#include <csignal>

/// While it lives, no file grows beyond `bytes`: writing more fails, as on a full disk.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        if (::getrlimit(RLIMIT_FSIZE, &m_before) != 0)
            qFatal("cannot ask for the limit of file sizes");
        set({bytes, m_before.rlim_max});
    }
    ~FileSizeLimit()
    {
        set(m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    FileSizeLimit(const FileSizeLimit &) = delete;
    FileSizeLimit &operator=(const FileSizeLimit &) = delete;

private:
    static void set(rlimit limit)
    {
        if (::setrlimit(RLIMIT_FSIZE, &limit) != 0)
            qFatal("cannot limit the size of files");
    }

    /// The signal would end the program instead of failing the write.
    void (*m_handler)(int) = std::signal(SIGXFSZ, SIG_IGN);
    rlimit m_before = {};
};
