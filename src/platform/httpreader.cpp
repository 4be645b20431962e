#include "platform/httpreader.h"

#include <algorithm>
#include <charconv>

namespace {

constexpr std::size_t kMostOverhead = 64U << 10U;

bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

std::string_view trimmed(std::string_view text)
{
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

char lower(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool equalsIgnoringCase(std::string_view text, std::string_view lowerCase)
{
    return std::ranges::equal(text, lowerCase, {}, lower);
}

/// The whole of `text` as a number; false where it is none, or one beyond any size.
bool readNumber(std::string_view text, int base, std::size_t &number)
{
    const char *const end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, number, base);
    return result.ec == std::errc() && result.ptr == end;
}

bool hasNoBody(int status)
{
    constexpr int noContent = 204;
    constexpr int notModified = 304;
    return status == noContent || status == notModified;
}

} // namespace

HttpReader::State HttpReader::read(std::string_view bytes, std::string &body)
{
    while (m_state == State::Head && takeLine(bytes))
        readHeadLine();
    if (m_state == State::Body)
        takeBody(bytes, body);
    return m_state;
}

HttpReader::State HttpReader::close()
{
    const bool isEnd = m_state == State::Body && m_framing == Framing::UntilClosed;
    if (m_state != State::Ended)
        m_state = isEnd ? State::Ended : State::Broken;
    return m_state;
}

/// Completes the line in m_line; false where more of it must come. A line may end with or without
/// the carriage return.
bool HttpReader::takeLine(std::string_view &bytes)
{
    const std::size_t end = bytes.find('\n');
    const std::string_view part = bytes.substr(0, end);
    const std::size_t taken = std::min(bytes.size(), part.size() + 1);
    m_overhead += taken;
    if (m_overhead > kMostOverhead) {
        m_state = State::Broken;
        return false;
    }
    m_line += part;
    bytes.remove_prefix(taken);
    if (end == std::string_view::npos)
        return false;
    if (m_line.ends_with('\r'))
        m_line.pop_back();
    return true;
}

void HttpReader::readHeadLine()
{
    if (!m_hasStatus)
        readStatusLine();
    else if (!m_line.empty())
        readField();
    else
        endHead();
    m_line.clear();
}

/// "HTTP/1.1 200 OK"
void HttpReader::readStatusLine()
{
    constexpr std::string_view version = "HTTP/1.";
    constexpr std::size_t statusAt = version.size() + 2;
    constexpr std::size_t digits = 3;
    const std::string_view line = m_line;
    std::size_t status = 0;
    if (!line.starts_with(version) || line.size() < statusAt + digits ||
        line[statusAt - 1] != ' ' || !readNumber(line.substr(statusAt, digits), 10, status)) {
        m_state = State::Broken;
        return;
    }
    m_head.status = static_cast<int>(status);
    m_hasStatus = true;
}

void HttpReader::readField()
{
    const std::string_view line = m_line;
    const std::size_t colon = line.find(':');
    if (colon == std::string_view::npos)
        return;
    const std::string_view name = line.substr(0, colon);
    const std::string_view value = trimmed(line.substr(colon + 1));
    if (equalsIgnoringCase(name, "location"))
        m_head.location = value;
    else if (equalsIgnoringCase(name, "content-length"))
        readLength(value);
    else if (equalsIgnoringCase(name, "transfer-encoding"))
        readCoding(value);
}

/// Nothing but chunks was offered to be understood.
void HttpReader::readCoding(std::string_view value)
{
    if (equalsIgnoringCase(value, "chunked"))
        m_framing = Framing::Chunked;
    else if (!equalsIgnoringCase(value, "identity"))
        m_state = State::Broken;
}

/// A length beside chunks does not count.
void HttpReader::readLength(std::string_view value)
{
    if (m_framing == Framing::Chunked)
        return;
    m_framing = Framing::Length;
    if (!readNumber(value, 10, m_left))
        m_state = State::Broken;
}

void HttpReader::endHead()
{
    constexpr int firstFinal = 200;
    if (m_head.status < firstFinal) { // "100 Continue": the answer is still to come
        const std::size_t overhead = m_overhead;
        *this = {};
        m_overhead = overhead;
        return;
    }
    if (hasNoBody(m_head.status))
        m_framing = Framing::None;
    const bool isEmpty =
        m_framing == Framing::None || (m_framing == Framing::Length && m_left == 0);
    if (m_framing == Framing::Chunked)
        m_left = 0;
    m_state = isEmpty ? State::Ended : State::Body;
}

void HttpReader::takeBody(std::string_view &bytes, std::string &body)
{
    switch (m_framing) {
    case Framing::Chunked:
        return takeChunks(bytes, body);
    case Framing::Length:
        takeData(bytes, body);
        if (m_left == 0)
            m_state = State::Ended;
        return;
    case Framing::UntilClosed:
        body += bytes;
        return;
    case Framing::None:
        return;
    }
}

void HttpReader::takeData(std::string_view &bytes, std::string &body)
{
    const std::string_view data = bytes.substr(0, m_left);
    body += data;
    m_left -= data.size();
    bytes.remove_prefix(data.size());
}

void HttpReader::takeChunks(std::string_view &bytes, std::string &body)
{
    while (m_state == State::Body && !bytes.empty()) {
        if (m_expected != Expected::ChunkData) {
            if (takeLine(bytes))
                readChunkLine();
            continue;
        }
        takeData(bytes, body);
        if (m_left == 0)
            m_expected = Expected::ChunkEnd;
    }
}

/// A chunk's size in hexadecimal, perhaps with more after a semicolon; the end of its data; or what
/// follows the last one.
void HttpReader::readChunkLine()
{
    const std::string_view line = m_line;
    switch (m_expected) {
    case Expected::ChunkSize:
        if (!readNumber(trimmed(line.substr(0, line.find(';'))), 16, m_left))
            m_state = State::Broken;
        m_expected = m_left == 0 ? Expected::Trailer : Expected::ChunkData;
        break;
    case Expected::ChunkEnd:
        if (!line.empty())
            m_state = State::Broken;
        m_expected = Expected::ChunkSize;
        m_overhead = 0; // as long as data comes between, there may be any number of chunks
        break;
    case Expected::Trailer:
        if (line.empty())
            m_state = State::Ended;
        break;
    case Expected::ChunkData:
        break;
    }
    m_line.clear();
}
