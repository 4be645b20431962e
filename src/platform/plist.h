#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

/// Property lists: nested dictionaries of integers and texts, read from the XML and the binary form
/// and written as XML.
namespace plist {

/// A dictionary inside a Document; valid as long as the document lives. A default-made one stands
/// for a missing dictionary: reading it finds nothing, writing to it does nothing.
class Dictionary
{
public:
    Dictionary() = default;

    /// The integer under `key`; nothing when the key is missing or holds another type. An integer
    /// beyond 64 bits signed wraps.
    std::optional<std::int64_t> integer(const char *key) const;
    /// The text under `key`, as the bytes of the file; nothing when missing or of another type.
    std::optional<std::string_view> text(const char *key) const;
    /// The dictionary under `key`; a missing one when missing or of another type.
    Dictionary dictionary(const char *key) const;

    void setInteger(const char *key, std::int32_t value);
    /// `value` must be UTF-8 without a NUL.
    void setText(const char *key, const std::string &value);
    /// Puts a new empty dictionary under `key`.
    Dictionary addDictionary(const char *key);

private:
    friend class Document;
    explicit Dictionary(void *node) : m_node(node) {}
    void *find(const char *key) const;

    void *m_node = nullptr;
};

/// A whole property list whose root is a dictionary; owns every node.
class Document
{
public:
    /// A document with an empty root dictionary.
    Document();

    /// Reads `bytes`. Nothing when they are no property list, when the root is no dictionary, or
    /// when they are out of the bounds of plistbounds.h.
    static std::optional<Document> parse(std::string_view bytes);

    Dictionary root() const { return Dictionary(m_root.get()); }
    /// The document in the XML form.
    std::string toXml() const;

private:
    struct Free
    {
        void operator()(void *node) const;
    };
    explicit Document(void *root) : m_root(root) {}

    std::unique_ptr<void, Free> m_root;
};

} // namespace plist
