#include "model/fixedtext.h"

#include "platform/utf8.h"

#include <QtCore/QStringConverter>

#include <algorithm>
#include <string>

namespace {

constexpr char kReplacement[] = "\xEF\xBF\xBD";

bool isForbiddenControl(char c)
{
    const auto byte = static_cast<unsigned char>(c);
    return byte < 0x20 && c != '\t' && c != '\n' && c != '\r';
}

/// U+FFFE and U+FFFF, which no XML file may hold either.
std::size_t findNonCharacter(std::string_view text)
{
    return std::min(text.find("\xEF\xBF\xBE"), text.find("\xEF\xBF\xBF"));
}

bool isStorable(std::string_view text)
{
    return isUtf8(text) && std::ranges::none_of(text, isForbiddenControl) &&
           findNonCharacter(text) == std::string_view::npos;
}

std::string repaired(std::string_view text)
{
    const auto size = static_cast<qsizetype>(text.size());
    std::string utf8 = QString::fromUtf8(text.data(), size).toStdString();
    for (std::size_t at = findNonCharacter(utf8); at != std::string::npos;
         at = findNonCharacter(utf8))
        utf8.replace(at, 3, kReplacement);
    std::string result;
    for (const char c : utf8)
        isForbiddenControl(c) ? result.append(kReplacement) : result.append(1, c);
    return result;
}

std::string_view cut(std::string_view text, std::size_t most)
{
    if (text.size() <= most)
        return text;
    constexpr std::size_t mostContinuations = 3;
    const std::size_t least = most - std::min(most, mostContinuations);
    while (most > least && isUtf8Continuation(text[most]))
        --most;
    return text.substr(0, most);
}

void copyInto(std::span<char> field, std::string_view text)
{
    const auto fitting = cut(text, field.size() - 1);
    const auto end = std::copy(fitting.begin(), fitting.end(), field.begin());
    std::fill(end, field.end(), '\0');
}

} // namespace

void SetText(std::span<char> field, std::string_view text)
{
    // A hostile file's text may be megabytes long. What shows in the field comes from the bytes
    // that would fill it, a byte order mark (dropped by the repair) and one more character.
    constexpr std::size_t more = 8;
    text = cut(text, field.size() + more);
    text = text.substr(0, text.find('\0'));
    if (isStorable(text))
        copyInto(field, text);
    else
        copyInto(field, repaired(text));
}

std::string_view GetText(std::span<const char> field)
{
    const auto end = std::find(field.begin(), field.end(), '\0');
    return {field.data(), static_cast<std::size_t>(end - field.begin())};
}

QString GetString(std::span<const char> field)
{
    const std::string_view text = GetText(field);
    QStringDecoder decode(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
    return decode(QByteArrayView(text.data(), static_cast<qsizetype>(text.size())));
}
