#pragma once

#include <QtCore/QtGlobal>

#include <unistd.h>

/// While it lives, permissions count: the superuser, whom no permission stops, acts as nobody.
class Unprivileged
{
public:
    Unprivileged()
    {
        constexpr uid_t nobody = 65534;
        if (m_user == 0 && ::seteuid(nobody) != 0)
            qFatal("cannot give up privileges");
    }
    ~Unprivileged()
    {
        if (::seteuid(m_user) != 0)
            qFatal("cannot take privileges back");
    }
    Unprivileged(const Unprivileged &) = delete;
    Unprivileged &operator=(const Unprivileged &) = delete;

private:
    uid_t m_user = ::geteuid();
};
