#pragma once

#include <QtCore/QByteArrayView>

#include <string_view>

/// Whether all of `text` is UTF-8.
inline bool isUtf8(std::string_view text)
{
    return QByteArrayView(text.data(), static_cast<qsizetype>(text.size())).isValidUtf8();
}

/// Whether a byte of UTF-8 is none that a character begins with.
constexpr bool isUtf8Continuation(char byte)
{
    return (static_cast<unsigned char>(byte) >> 6U) == 2;
}
