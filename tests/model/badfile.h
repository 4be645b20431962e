#pragma once

#include "support/plistxml.h"

#include <QtCore/QMetaType>

#include <string>

/// Elements that open, one within another, and as many ends.
inline QByteArray nested(const char *open, const char *close, int depth)
{
    return plistWithRoot(QByteArray(open).repeated(depth) + QByteArray(close).repeated(depth));
}

/// Puts something at a path that cannot be read as a file.
using Maker = void (*)(const std::string &path);
Q_DECLARE_METATYPE(Maker)
