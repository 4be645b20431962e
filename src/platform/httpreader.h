#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// What the head of an HTTP answer says that matters here.
struct HttpHead
{
    int status = 0;
    std::string location; ///< where to ask instead; empty for nowhere
};

/// Reads one answer of HTTP/1 (RFC 9112) as its bytes come. Whatever they are, no more of them is
/// kept than 64 KiB of heads and of what stands between the pieces of a body.
class HttpReader
{
public:
    enum class State {
        Head,   ///< more of the head must come
        Body,   ///< more of the body must come, or may
        Ended,  ///< this was all
        Broken, ///< this is no answer of HTTP, or not all of one
    };

    /// Takes what came; what of it belongs to the body is added to `body`. After its end nothing
    /// more is read.
    State read(std::string_view bytes, std::string &body);
    /// The host has closed the connection, which is how some bodies end.
    State close();

    State state() const { return m_state; }
    /// Known once the state is none of Head and Broken.
    const HttpHead &head() const { return m_head; }

private:
    enum class Framing { None, Length, Chunked, UntilClosed };
    enum class Expected { ChunkSize, ChunkData, ChunkEnd, Trailer };

    bool takeLine(std::string_view &bytes);
    void readHeadLine();
    void readStatusLine();
    void readField();
    void endHead();
    void readLength(std::string_view value);
    void readCoding(std::string_view value);
    void takeBody(std::string_view &bytes, std::string &body);
    void takeChunks(std::string_view &bytes, std::string &body);
    void takeData(std::string_view &bytes, std::string &body);
    void readChunkLine();

    State m_state = State::Head;
    HttpHead m_head;
    std::string m_line;         ///< what of a line has come
    std::size_t m_overhead = 0; ///< bytes that were none of the body's
    bool m_hasStatus = false;
    Framing m_framing = Framing::UntilClosed;
    Expected m_expected = Expected::ChunkSize;
    std::size_t m_left = 0; ///< of the body, or of the chunk
};
