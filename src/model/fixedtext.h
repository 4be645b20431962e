#pragma once

#include <QtCore/QString>

#include <span>
#include <string_view>

/// The only ways into and out of the record's fixed byte arrays.

/// Stores `text` in `field`, NUL-terminated, the rest zero-filled: cut at the last whole UTF-8
/// character that fits, ended at a NUL. Bytes that are no UTF-8 and control characters that an XML
/// file cannot hold become U+FFFD, so that what is stored can always be saved and read again.
void SetText(std::span<char> field, std::string_view text);

/// The text of `field`: up to the first NUL, or to the end of the array.
std::string_view GetText(std::span<const char> field);
/// The same with every character of it, an initial byte order mark too.
QString GetString(std::span<const char> field);
