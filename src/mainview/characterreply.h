#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

/// What the game service's reply says of a character. The reply is searched line by line for three
/// words and not read as what it is, so anything else in it does no harm.
class CharacterReply
{
public:
    /// Reads a line, given without its end. What a later line says of a value that is known already
    /// takes its place.
    void read(std::string_view line);
    /// Whether all three values are known.
    bool isComplete() const { return m_classId && m_level && m_thumbnail; }

    /// Each is 0, or empty, until it is known.
    std::int32_t classId() const { return m_classId.value_or(0); }
    std::int32_t level() const { return m_level.value_or(0); }
    /// Where the portrait is, below the region's own path.
    std::string thumbnail() const { return m_thumbnail.value_or(std::string()); }

private:
    std::optional<std::int32_t> m_classId;
    std::optional<std::int32_t> m_level;
    std::optional<std::string> m_thumbnail;
};

/// A reply that is being read.
class CharacterReading
{
public:
    explicit CharacterReading(std::string text) : m_text(std::move(text)) {}

    /// Logs and reads lines until the reply is complete, or over, or a few milliseconds have gone
    /// by: whoever answers may send millions of them. Whether nothing is left to do.
    bool readSome();

    const CharacterReply &reply() const { return m_reply; }

private:
    std::string_view nextLine();

    std::string m_text;
    std::size_t m_at = 0; ///< of the next line; beyond the text after the last one
    CharacterReply m_reply;
};
