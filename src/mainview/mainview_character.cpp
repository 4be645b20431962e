#include "mainview/characterreply.h"
#include "mainview/MainView.h"
#include "mainview/portraitfile.h"
#include "model/fixedtext.h"
#include "panels/charInfoView.h"
#include "platform/systemlog.h"

#include <QtCore/QByteArrayView>

#include <algorithm>

namespace {

constexpr char kCharacterPath[] = "/api/kyr/character/";

/// By the service's number.
constexpr const char *kClassNames[] = {
    "",       "Warrior", "Paladin", "Hunter",  "Rogue", "Priest", "Death Knight",
    "Shaman", "Mage",    "Warlock", "" /*10*/, "Druid",
};

/// A longer one is no address of a portrait.
constexpr std::size_t kLongestUrl = 8192;

bool isUtf8(std::string_view text)
{
    return QByteArrayView(text.data(), static_cast<qsizetype>(text.size())).isValidUtf8();
}

/// Every byte as a percent sign and its hexadecimal number.
std::string percentEscaped(std::string_view bytes)
{
    std::string escaped;
    for (const char byte : bytes)
        escaped += QString::asprintf("%%%x", static_cast<unsigned char>(byte)).toStdString();
    return escaped;
}

/// A realm or a name as it stands in an address. The system's 8-bit texts are UTF-8; bytes that are
/// not are escaped. Nothing but blanks is replaced.
std::string addressText(std::span<const char> field)
{
    const std::string_view bytes = GetText(field);
    std::string text(isUtf8(bytes) ? bytes : std::string_view());
    if (text.empty()) {
        text = percentEscaped(bytes);
        systemLog("%s", text.c_str());
    }
    std::ranges::replace(text, ' ', '+');
    return text;
}

std::string addressAt(const std::string &host, const std::string &path)
{
    return "http://" + host + path;
}

bool fitsField(std::string_view text, std::span<const char> field)
{
    return text.size() < field.size();
}

} // namespace

/// What a lookup has found, as it goes into the profile.
struct MainView::CharacterFound
{
    unsigned lookup; ///< its number
    std::uint32_t level;
    const char *className;
    std::string portrait; ///< path of the file
};

void MainView::CharInfoAction(std::int32_t sender)
{
    bDisplayCharinfoWindow = false;
    const CharacterInfo &character = CurrentProfile().CHARACTER_INFO;
    const std::string realm = addressText(character.SERVER);
    const std::string name = addressText(character.NAME);
    if (character.REGION >= kRegionCount)
        return;
    const std::string url =
        addressAt(m_environment.hosts.at(character.REGION), kCharacterPath + realm + '/' + name);
    switch (sender) {
    case kCharInfoOK:
        return openUrl(url);
    case kCharInfoCancel:
        return systemLog("IDC_CHAR_BUTTON_CANCEL");
    case kCharInfoClose:
        return systemLog("IDC_CHAR_BUTTON_CLOSE");
    default:
        return;
    }
}

void MainView::openUrl(const std::string &url)
{
    if (m_urlLoader.start(url, *this))
        receivedData.emplace();
}

const char *MainView::GetKyrClassName(std::int32_t id)
{
    const bool isNamed = id >= 0 && static_cast<std::size_t>(id) < std::size(kClassNames);
    return isNamed ? kClassNames[id] : "";
}

void MainView::didReceiveResponse(int /*statusCode*/)
{
    if (receivedData)
        receivedData->clear();
}

void MainView::didReceiveData(std::string_view chunk)
{
    if (receivedData)
        receivedData->append(chunk);
}

void MainView::didFailWithError(const UrlError &error)
{
    receivedData.reset();
    systemLog("Connection failed! Error - %s %s", error.description.c_str(),
              error.failingUrl.c_str());
}

void MainView::connectionDidFinishLoading()
{
    std::string text = std::exchange(receivedData, {}).value_or(std::string());
    systemLog("Succeeded! Received %d bytes of data", static_cast<int>(text.size()));
    if (!isUtf8(text))
        return systemLog("the reply is no text");
    // Whichever profile becomes current while it is read: this is the one that it came for.
    readReply(std::make_shared<CharacterReading>(std::move(text)), CurrentProfileIndex());
}

void MainView::readReply(const std::shared_ptr<CharacterReading> &reading, std::uint32_t profile)
{
    if (reading->readSome())
        takeCharacter(*reading, profile);
    else
        performDeferred(this, &MainView::readReply, reading, profile);
}

void MainView::takeCharacter(const CharacterReading &reading, std::uint32_t profile)
{
    const CharacterReply &reply = reading.reply();
    const CharacterInfo &character = ProfileAt(profile).CHARACTER_INFO;
    if (!reply.isComplete() || character.REGION >= kRegionCount)
        return;
    const std::string url = addressAt(m_environment.hosts.at(character.REGION),
                                      kRegions[character.REGION].portraitPath + reply.thumbnail());
    const CharacterFound found{++m_lookups, static_cast<std::uint32_t>(reply.level()),
                               GetKyrClassName(reply.classId()),
                               portraitPath(m_environment.settingsPath, url)};
    if (url.size() > kLongestUrl || !fitsField(found.portrait, character.RACE) ||
        !fitsField(found.className, character.CLASS))
        return systemLog("the character does not fit into the profile");
    downloadUrl(url, [this, profile, found] { storeCharacter(profile, found); });
}

std::string MainView::downloadUrl(const std::string &url, const std::function<void()> &done)
{
    const std::string path = portraitPath(m_environment.settingsPath, url);
    m_urlLoader.fetch(url, [this, path, done](const UrlLoader::Content &content) {
        if (content)
            savePortrait(path, m_environment.settingsPath, *content);
        m_portrait.forget();
        done();
    });
    return path;
}

/// What was answered or loaded later is not undone by a portrait that took long.
void MainView::storeCharacter(std::uint32_t profile, const CharacterFound &found)
{
    if (found.lookup < m_storedLookups.at(profile))
        return;
    m_storedLookups.at(profile) = found.lookup;
    CharacterInfo &character = ProfileAt(profile).CHARACTER_INFO;
    character.LEVEL = found.level;
    SetText(character.CLASS, found.className);
    SetText(character.RACE, found.portrait);
    update();
}

/// The profile was loaded: its character is newer than any that was found before.
void MainView::overtakeLookups(std::uint32_t profile)
{
    m_storedLookups.at(profile) = ++m_lookups;
}
