#include "platform/plistbounds.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <vector>

namespace plist {

namespace {

constexpr std::string_view kBinaryMagic = "bplist00";

using Number = std::optional<std::uint64_t>;

Number bigEndian(std::string_view bytes, std::uint64_t at, std::uint64_t size)
{
    if (size > 8 || at > bytes.size() || size > bytes.size() - at)
        return {};
    std::uint64_t value = 0;
    for (const char byte : bytes.substr(at, size))
        value = value << 8U | static_cast<unsigned char>(byte);
    return value;
}

/// Where the references of an array or a dictionary, or the characters of a text, stand.
struct Contents
{
    std::uint64_t first = 0;
    std::uint64_t count = 0;
};

/// Visits the objects of a binary property list as the parser would. The form ends in a 32-byte
/// trailer: sizes of offsets and of references, number of objects, root object, place of the table
/// of offsets. An object's first byte tells its type in the high half (0xA array, 0xC set, 0xD
/// dictionary, 4 to 7 bytes and texts) and its length in the low half, where 0xF says that an
/// integer object follows.
class BinaryWalk
{
public:
    explicit BinaryWalk(std::string_view bytes)
        : m_bytes(bytes),
          m_trailer(bytes.substr(bytes.size() - kTrailerSize)),
          m_offsetSize(*bigEndian(m_trailer, 6, 1)),
          m_referenceSize(*bigEndian(m_trailer, 7, 1)),
          m_table(*bigEndian(m_trailer, 24, 8))
    {
    }

    static constexpr std::size_t kTrailerSize = 32;

    bool staysWithinBounds()
    {
        m_toVisit.push_back(*bigEndian(m_trailer, 16, 8));
        while (!m_toVisit.empty()) {
            const auto object = m_toVisit.back();
            m_toVisit.pop_back();
            if (!visit(object))
                return false;
        }
        return true;
    }

private:
    bool visit(std::uint64_t object)
    {
        // Bounded first, so that the product cannot wrap.
        if (object > m_bytes.size() || m_table > m_bytes.size())
            return false;
        const Number offset = bigEndian(m_bytes, m_table + object * m_offsetSize, m_offsetSize);
        const Number marker = offset ? bigEndian(m_bytes, *offset, 1) : Number();
        if (!marker)
            return false;
        const auto type = *marker >> 4U;
        if (isContainer(type))
            return enter(type, contentsAt(*offset, *marker));
        return !isText(type) || addText(contentsAt(*offset, *marker));
    }

    static bool isContainer(std::uint64_t type)
    {
        return type == 0xA || type == 0xC || type == 0xD;
    }
    static bool isText(std::uint64_t type) { return type >= 0x4 && type <= 0x7; }

    std::optional<Contents> contentsAt(std::uint64_t offset, std::uint64_t marker) const
    {
        const auto count = marker & 0xFU;
        if (count != 0xF)
            return Contents{offset + 1, count};
        const Number length = bigEndian(m_bytes, offset + 1, 1);
        if (!length || *length >> 4U != 1)
            return {};
        const auto size = std::uint64_t{1} << (*length & 0xFU);
        const Number longCount = bigEndian(m_bytes, offset + 2, size);
        if (!longCount)
            return {};
        return Contents{offset + 2 + size, *longCount};
    }

    bool enter(std::uint64_t type, std::optional<Contents> references)
    {
        if (!references || references->count > kMostBinaryNodes || ++m_containers > kMostContainers)
            return false;
        references->count *= type == 0xD ? 2 : 1;
        return push(*references);
    }

    bool addText(const std::optional<Contents> &text)
    {
        if (!text || text->count > kMostBinaryText)
            return false;
        m_text += text->count;
        return m_text <= kMostBinaryText;
    }

    bool push(const Contents &references)
    {
        m_nodes += references.count;
        if (m_nodes > kMostBinaryNodes)
            return false;
        for (std::uint64_t i = 0; i < references.count; ++i) {
            const auto at = references.first + i * m_referenceSize;
            const Number object = bigEndian(m_bytes, at, m_referenceSize);
            if (!object)
                return false;
            m_toVisit.push_back(*object);
        }
        return true;
    }

    std::string_view m_bytes;
    std::string_view m_trailer;
    std::uint64_t m_offsetSize;
    std::uint64_t m_referenceSize;
    std::uint64_t m_table;
    std::vector<std::uint64_t> m_toVisit;
    std::size_t m_containers = 0;
    std::size_t m_nodes = 0;
    std::size_t m_text = 0;
};

bool opensContainer(std::string_view tag)
{
    return tag.starts_with("dict") || tag.starts_with("array");
}

std::size_t countEntities(std::string_view text)
{
    std::size_t count = 0;
    for (auto at = text.find('&'); at != std::string_view::npos; at = text.find('&', at + 1))
        ++count;
    return count;
}

} // namespace

bool isBinary(std::string_view bytes)
{
    return bytes.starts_with(kBinaryMagic);
}

bool isXmlWithinBounds(std::string_view bytes)
{
    std::size_t containers = 0;
    std::size_t entityWork = 0;
    for (auto at = bytes.find('<'); at != std::string_view::npos;) {
        const auto next = std::min(bytes.find('<', at + 1), bytes.size());
        const auto piece = bytes.substr(at + 1, next - at - 1);
        containers += opensContainer(piece);
        entityWork += piece.size() * countEntities(piece);
        if (containers > kMostContainers || entityWork > kMostEntityWork)
            return false;
        at = next < bytes.size() ? next : std::string_view::npos;
    }
    return true;
}

bool isBinaryWithinBounds(std::string_view bytes)
{
    return bytes.size() >= kBinaryMagic.size() + BinaryWalk::kTrailerSize &&
           BinaryWalk(bytes).staysWithinBounds();
}

} // namespace plist
