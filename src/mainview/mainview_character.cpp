#include "mainview/characterreply.h"
#include "mainview/MainView.h"
#include "mainview/portraitfile.h"
#include "model/fixedtext.h"
#include "panels/charInfoView.h"
#include "platform/systemlog.h"
#include "platform/utf8.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace {

constexpr char kCharacterPath[] = "/api/kyr/character/";

/// By the service's number.
constexpr const char *kClassNames[] = {
    "",       "Warrior", "Paladin", "Hunter",  "Rogue", "Priest", "Death Knight",
    "Shaman", "Mage",    "Warlock", "" /*10*/, "Druid",
};

/// A longer one is no address of a portrait.
constexpr std::size_t kLongestUrl = 8192;

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

/// Whether `field` can hold all of `text` as the record keeps it, which may be longer.
bool fitsField(std::string_view text, std::span<const char> field)
{
    std::array<char, 1024> kept{};
    SetText(kept, text);
    return GetText(kept).size() < field.size();
}

} // namespace

/// A lookup that was answered. It is about what was current then, however long the rest takes.
struct MainView::Lookup
{
    unsigned number;
    std::uint32_t profile;
    std::uint32_t region;
    CharacterReading reading;
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
    const std::uint32_t region = CurrentProfile().CHARACTER_INFO.REGION;
    readReply(std::make_shared<Lookup>(
        Lookup{++m_lookups, CurrentProfileIndex(), region, CharacterReading(std::move(text))}));
}

void MainView::readReply(const std::shared_ptr<Lookup> &lookup)
{
    if (!lookup->reading.readSome())
        return performDeferred(this, &MainView::readReply, lookup);
    if (lookup->reading.reply().isComplete() && lookup->region < kRegionCount)
        fetchPortrait(lookup);
}

void MainView::fetchPortrait(const std::shared_ptr<Lookup> &lookup)
{
    const CharacterReply &reply = lookup->reading.reply();
    const std::string url = addressAt(m_environment.hosts.at(lookup->region),
                                      kRegions[lookup->region].portraitPath + reply.thumbnail());
    const CharacterInfo &character = ProfileAt(lookup->profile).CHARACTER_INFO;
    if (url.size() > kLongestUrl ||
        !fitsField(portraitPath(m_environment.settingsPath, url), character.RACE) ||
        !fitsField(GetKyrClassName(reply.classId()), character.CLASS))
        return systemLog("the character does not fit into the profile");
    downloadUrl(url, [this, lookup](const std::string &path) { storeCharacter(*lookup, path); });
}

void MainView::downloadUrl(const std::string &url,
                           const std::function<void(const std::string &path)> &done)
{
    m_urlLoader.fetch(url, [this, url, done](const UrlLoader::Content &content) {
        const std::string path = portraitPath(m_environment.settingsPath, url);
        if (content)
            savePortrait(path, m_environment.settingsPath, *content);
        m_portrait.forget();
        done(path);
    });
}

/// What was answered or loaded later is not undone by a portrait that took long.
void MainView::storeCharacter(const Lookup &lookup, const std::string &portrait)
{
    unsigned &stored = m_storedLookups.at(lookup.profile);
    if (lookup.number < stored)
        return;
    stored = lookup.number;
    const CharacterReply &reply = lookup.reading.reply();
    CharacterInfo &character = ProfileAt(lookup.profile).CHARACTER_INFO;
    character.LEVEL = static_cast<std::uint32_t>(reply.level());
    SetText(character.CLASS, GetKyrClassName(reply.classId()));
    SetText(character.RACE, portrait);
    update(); // which draws the badge
}

/// The profile was loaded: its character is newer than any that was found before.
void MainView::overtakeLookups(std::uint32_t profile)
{
    m_storedLookups.at(profile) = ++m_lookups;
}
