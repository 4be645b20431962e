#include "mainview/characterreply.h"

#include "platform/numbers.h"
#include "platform/systemlog.h"
#include "platform/utf8.h"

#include <QtCore/QElapsedTimer>

#include <algorithm>
#include <cstring>

namespace {

/// What reading may take at a time, in milliseconds.
constexpr int kSlice = 8;

/// What is logged of a line; no reply of the service has one as long.
constexpr std::size_t kMostLogged = 16U << 10U;

/// By the C library: the standard one's search is ten times as long on a line made to be slow.
bool contains(std::string_view line, std::string_view word)
{
    return ::memmem(line.data(), line.size(), word.data(), word.size()) != nullptr;
}

/// The number between the line's first colon and its first comma; nothing where these do not
/// enclose anything.
std::optional<std::int32_t> firstNumber(std::string_view line)
{
    const std::size_t colon = line.find(':');
    const std::size_t comma = line.find(',');
    if (colon == std::string_view::npos || comma == std::string_view::npos || comma < colon)
        return {};
    return leadingInteger(line.substr(colon + 1, comma - colon - 1));
}

std::string_view withoutFirstCharacter(std::string_view text)
{
    std::size_t length = text.empty() ? 0 : 1;
    while (length < text.size() && isUtf8Continuation(text[length]))
        ++length;
    return text.substr(length);
}

/// What stands between the quotes after the line's first colon. The first of them is not looked
/// at: it may be any character.
std::optional<std::string> firstQuoted(std::string_view line)
{
    const std::size_t colon = line.find(':');
    if (colon == std::string_view::npos)
        return {};
    const std::string_view rest = withoutFirstCharacter(line.substr(colon + 1));
    const std::size_t quote = rest.find('"');
    if (quote == std::string_view::npos)
        return {};
    return std::string(rest.substr(0, quote));
}

/// Keeps what was known where a line says nothing.
template <class Value>
void take(std::optional<Value> &known, const std::optional<Value> &said)
{
    if (said)
        known = said;
}

} // namespace

void CharacterReply::read(std::string_view line)
{
    if (contains(line, "class"))
        take(m_classId, firstNumber(line));
    if (contains(line, "level"))
        take(m_level, firstNumber(line));
    if (contains(line, "thumbnail"))
        take(m_thumbnail, firstQuoted(line));
}

bool CharacterReading::readSome()
{
    QElapsedTimer timer;
    timer.start();
    while (m_at <= m_text.size() && !m_reply.isComplete()) {
        if (timer.hasExpired(kSlice))
            return false;
        const std::string_view line = nextLine();
        systemLog("%.*s", static_cast<int>(std::min(line.size(), kMostLogged)), line.data());
        m_reply.read(line);
    }
    return true;
}

std::string_view CharacterReading::nextLine()
{
    const std::string_view rest = std::string_view(m_text).substr(m_at);
    const std::string_view line = rest.substr(0, rest.find('\n'));
    m_at += line.size() + 1;
    return line;
}
