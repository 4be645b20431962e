#include "mainview/portraitfile.h"

#include "platform/files.h"
#include "platform/systemlog.h"

#include <QtCore/QString>

#include <algorithm>

namespace {

constexpr std::size_t kLongestName = 255;

std::size_t nameStart(std::string_view path)
{
    const std::size_t slash = path.rfind('/');
    return slash == std::string_view::npos ? 0 : slash + 1;
}

QString text(std::string_view bytes)
{
    return QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

/// The record cannot hold the last two.
bool isForbidden(QChar character)
{
    return character.category() == QChar::Other_Control || character == QChar(0xFFFE) ||
           character == QChar(0xFFFF);
}

} // namespace

std::string portraitPath(const std::string &settingsPath, const std::string &url)
{
    return settingsPath.substr(0, nameStart(settingsPath)) + url.substr(nameStart(url));
}

bool isPortraitName(std::string_view name, std::string_view settingsName)
{
    if (name.empty() || name == "." || name == ".." || name.size() > kLongestName)
        return false;
    const QString shown = text(name);
    return std::ranges::none_of(shown, isForbidden) &&
           !shown.startsWith(text(settingsName), Qt::CaseInsensitive) &&
           !shown.endsWith(QLatin1String(".xml"), Qt::CaseInsensitive);
}

void savePortrait(const std::string &path, const std::string &settingsPath, std::string_view bytes)
{
    const std::string name = path.substr(nameStart(path));
    if (!isPortraitName(name, settingsPath.substr(nameStart(settingsPath))))
        systemLog("%s is no name for a portrait", path.c_str());
    // A portrait can be had again: nobody need wait for the disk.
    else if (!writeFileAtomically(path, bytes, Flush::Later))
        systemLog("%s cannot be written", path.c_str());
}
