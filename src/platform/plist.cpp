#include "platform/plist.h"

#include "platform/plistbounds.h"

#include <plist/plist.h>

namespace plist {

namespace {

plist_t parseNode(std::string_view bytes)
{
    plist_t node = nullptr;
    const auto size = static_cast<std::uint32_t>(bytes.size());
    if (!isBinary(bytes) && isXmlWithinBounds(bytes))
        plist_from_xml(bytes.data(), size, &node);
    else if (isBinary(bytes) && isBinaryWithinBounds(bytes))
        plist_from_bin(bytes.data(), size, &node);
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
