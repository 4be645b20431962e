#include "platform/plist.h"

#include <plist/plist.h>

#include <algorithm>

namespace plist {

namespace {

constexpr std::size_t kMostContainers = 2000;
constexpr std::string_view kBinaryMagic = "bplist00";

std::size_t countXmlContainers(std::string_view bytes)
{
    std::size_t count = 0;
    for (auto at = bytes.find('<'); at != bytes.npos; at = bytes.find('<', at + 1)) {
        const auto tag = bytes.substr(at + 1, 5);
        if (tag.starts_with("dict") || tag == "array")
            ++count;
    }
    return count;
}

std::uint64_t bigEndian(std::string_view bytes)
{
    std::uint64_t value = 0;
    for (const char byte : bytes)
        value = value << 8U | static_cast<unsigned char>(byte);
    return value;
}

/// The binary form ends in a 32-byte trailer that tells where each object begins; an object's first
/// byte tells its type in the high half (0xA array, 0xC set, 0xD dictionary). Offsets that lead
/// outside are left for the parser to refuse.
std::size_t countBinaryContainers(std::string_view bytes)
{
    constexpr std::size_t trailerSize = 32;
    if (bytes.size() < kBinaryMagic.size() + trailerSize)
        return 0;
    const auto trailer = bytes.substr(bytes.size() - trailerSize);
    const std::uint64_t offsetSize = bigEndian(trailer.substr(6, 1));
    const std::uint64_t objects = bigEndian(trailer.substr(8, 8));
    const std::uint64_t table = bigEndian(trailer.substr(24, 8));
    if (offsetSize == 0 || offsetSize > 8 || table > bytes.size())
        return 0;
    const std::uint64_t fitting = (bytes.size() - table) / offsetSize;
    std::size_t count = 0;
    for (std::uint64_t i = 0; i < std::min(objects, fitting); ++i) {
        const std::uint64_t offset = bigEndian(bytes.substr(table + i * offsetSize, offsetSize));
        if (offset >= bytes.size())
            continue;
        const unsigned type = static_cast<unsigned char>(bytes[offset]) >> 4U;
        if (type == 0xA || type == 0xC || type == 0xD)
            ++count;
    }
    return count;
}

plist_t parseNode(std::string_view bytes)
{
    plist_t node = nullptr;
    const auto size = static_cast<std::uint32_t>(bytes.size());
    if (bytes.starts_with(kBinaryMagic)) {
        if (countBinaryContainers(bytes) <= kMostContainers)
            plist_from_bin(bytes.data(), size, &node);
    } else if (countXmlContainers(bytes) <= kMostContainers) {
        plist_from_xml(bytes.data(), size, &node);
    }
    return node;
}

} // namespace

void *Dictionary::find(const char *key) const
{
    return m_node ? plist_dict_get_item(m_node, key) : nullptr;
}

std::optional<std::int64_t> Dictionary::integer(const char *key) const
{
    void *node = find(key);
    if (!node || plist_get_node_type(node) != PLIST_UINT)
        return {};
    std::uint64_t value = 0;
    plist_get_uint_val(node, &value);
    return static_cast<std::int64_t>(value);
}

std::optional<std::string_view> Dictionary::text(const char *key) const
{
    void *node = find(key);
    if (!node || plist_get_node_type(node) != PLIST_STRING)
        return {};
    std::uint64_t length = 0;
    const char *text = plist_get_string_ptr(node, &length);
    if (!text)
        return {};
    return std::string_view(text, length);
}

Dictionary Dictionary::dictionary(const char *key) const
{
    void *node = find(key);
    const bool found = node && plist_get_node_type(node) == PLIST_DICT;
    return Dictionary(found ? node : nullptr);
}

void Dictionary::setInteger(const char *key, std::int32_t value)
{
    if (!m_node)
        return;
    // Sign-extended: the library prints the 64 bits as a signed number.
    plist_dict_set_item(m_node, key,
                        plist_new_uint(static_cast<std::uint64_t>(std::int64_t{value})));
}

void Dictionary::setText(const char *key, const std::string &value)
{
    if (m_node)
        plist_dict_set_item(m_node, key, plist_new_string(value.c_str()));
}

Dictionary Dictionary::addDictionary(const char *key)
{
    if (!m_node)
        return {};
    void *child = plist_new_dict();
    plist_dict_set_item(m_node, key, child);
    return Dictionary(child);
}

void Document::Free::operator()(void *node) const
{
    plist_free(node);
}

Document::Document() : m_root(plist_new_dict()) {}

std::optional<Document> Document::parse(std::string_view bytes)
{
    if (bytes.size() > UINT32_MAX)
        return {};
    Document document(parseNode(bytes));
    if (!document.m_root || plist_get_node_type(document.m_root.get()) != PLIST_DICT)
        return {};
    return document;
}

std::string Document::toXml() const
{
    char *bytes = nullptr;
    std::uint32_t size = 0;
    plist_to_xml(m_root.get(), &bytes, &size);
    std::string xml(bytes ? bytes : "", bytes ? size : 0);
    plist_to_xml_free(bytes);
    return xml;
}

} // namespace plist
