#pragma once

#include <QtCore/QByteArray>

#include <plist/plist.h>

/// The binary form of a text property list.
inline QByteArray binaryPlist(const QByteArray &xml)
{
    plist_t node = nullptr;
    char *bytes = nullptr;
    std::uint32_t size = 0;
    plist_from_xml(xml.data(), static_cast<std::uint32_t>(xml.size()), &node);
    plist_to_bin(node, &bytes, &size);
    QByteArray binary(bytes, size);
    plist_to_bin_free(bytes);
    plist_free(node);
    return binary;
}
