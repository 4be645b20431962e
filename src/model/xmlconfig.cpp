#include "model/xmlconfig.h"

#include "model/fieldio.h"
#include "platform/filepanels.h"
#include "platform/files.h"
#include "platform/systemlog.h"

std::string pConfigFileName;

namespace {

/// Far above the largest settings file (every list and text full: about 10 MB).
constexpr std::size_t kMostFileBytes = 64U << 20U;

/// The type of a profile's own file.
constexpr char kProfileFileType[] = "XML";

/// The property list in a file; where there is none, `result` says why.
std::optional<plist::Document> readPropertyList(const std::string &path, ConfigRead &result)
{
    std::string bytes;
    const ReadStatus status = readFile(path, kMostFileBytes, bytes);
    if (status != ReadStatus::Ok) {
        result = status == ReadStatus::Missing ? ConfigRead::Missing : ConfigRead::Unreadable;
        return {};
    }
    auto document = plist::Document::parse(bytes);
    result = document ? ConfigRead::Ok : ConfigRead::NotPropertyList;
    return document;
}

} // namespace

void xmlconfig::setConfigfileName(const std::string &path)
{
    pConfigFileName = path;
}

void xmlconfig::LoadConfigFile()
{
    if (ReadConfigFile() == ConfigRead::Ok)
        return;
    if (bUnreadableFile)
        systemLog("%s cannot be read, starting with defaults", pConfigFileName.c_str());
    InitialConfigData();
}

ConfigRead xmlconfig::ReadConfigFile()
{
    ConfigRead result{};
    const auto document = readPropertyList(pConfigFileName, result);
    bUnreadableFile = result == ConfigRead::Unreadable || result == ConfigRead::NotPropertyList;
    if (document)
        readDocument(document->root());
    return result;
}

void xmlconfig::readDocument(plist::Dictionary root)
{
    pConfig = root;
    readFields(rootFields(), pConfig, &m_Config);
    for (std::uint32_t index = 0; index < kProfileCount; ++index) {
        pProfile[index] = pConfig.dictionary(numberedKey(kProfileKey, index + 1).c_str());
        readProfile(pProfile[index], ProfileAt(index));
    }
    releaseDictionaries();
}

void xmlconfig::readProfile(plist::Dictionary from, ProfileInfo &profile)
{
    readFields(profileFields(), from, &profile);
    pCharacterInfo = from.dictionary(kCharacterKey);
    readFields(characterFields(), pCharacterInfo, &profile.CHARACTER_INFO);
    for (unsigned slot = 0; slot < kMacroCount; ++slot) {
        pMacroInfo[slot] = from.dictionary(numberedKey(kMacroKey, slot + 1).c_str());
        readFields(macroFields(), pMacroInfo[slot], &profile.MACRO[slot]);
    }
}

void xmlconfig::WriteConfigFile()
{
    const plist::Document document;
    pConfig = document.root();
    writeFields(rootFields(), &m_Config, pConfig);
    for (std::uint32_t index = 0; index < kProfileCount; ++index) {
        pProfile[index] = pConfig.addDictionary(numberedKey(kProfileKey, index + 1).c_str());
        buildProfile(ProfileAt(index), pProfile[index]);
    }
    releaseDictionaries();
    if (!keepUnreadableFile() || !writeFileAtomically(pConfigFileName, document.toXml()))
        systemLog("write fail!");
}

void xmlconfig::buildProfile(const ProfileInfo &profile, plist::Dictionary to)
{
    writeFields(profileFields(), &profile, to);
    pCharacterInfo = to.addDictionary(kCharacterKey);
    writeFields(characterFields(), &profile.CHARACTER_INFO, pCharacterInfo);
    for (unsigned slot = 0; slot < kMacroCount; ++slot) {
        pMacroInfo[slot] = to.addDictionary(numberedKey(kMacroKey, slot + 1).c_str());
        writeFields(macroFields(), &profile.MACRO[slot], pMacroInfo[slot]);
    }
}

bool xmlconfig::keepUnreadableFile()
{
    // It may be gone since: then there is nothing to keep, now and later.
    bUnreadableFile = bUnreadableFile && isPresent(pConfigFileName);
    if (!bUnreadableFile)
        return true;
    const auto kept = keepBeside(pConfigFileName, ".unreadable");
    if (!kept)
        return false;
    bUnreadableFile = false;
    systemLog("%s could not be read and is kept as %s", pConfigFileName.c_str(), kept->c_str());
    return true;
}

void xmlconfig::releaseDictionaries()
{
    pConfig = {};
    pProfile = {};
    pMacroInfo = {};
    pCharacterInfo = {};
}

bool xmlconfig::ExportProfile(std::uint32_t index)
{
    if (!pFilePanels)
        return false;
    const auto number = &ProfileAt(index) - m_Config.PROFILE;
    const auto path = pFilePanels->savePanel("Export Profile", "Profile" + std::to_string(number),
                                             kProfileFileType);
    if (path)
        WriteProfileToFile(index, *path);
    return path.has_value();
}

bool xmlconfig::ImportProfile(std::uint32_t index)
{
    if (!pFilePanels)
        return false;
    const auto path = pFilePanels->openPanel("Import Profile", kProfileFileType);
    if (path)
        ReadProfileFromFile(index, *path);
    return path.has_value();
}

void xmlconfig::WriteProfileToFile(std::uint32_t index, const std::string &filename)
{
    const plist::Document document;
    buildProfile(ProfileAt(index), document.root());
    releaseDictionaries();
    if (!writeFileAtomically(filename, document.toXml()))
        systemLog("write fail!");
}

void xmlconfig::ReadProfileFromFile(std::uint32_t index, const std::string &filename)
{
    ConfigRead result{};
    const auto document = readPropertyList(filename, result);
    if (!document) {
        systemLog("%s cannot be read as a profile", filename.c_str());
        return;
    }
    readProfile(document->root(), ProfileAt(index));
    releaseDictionaries();
}

void xmlconfig::InitialConfigData()
{
    setDefaults(rootFields(), &Field::firstStart, &m_Config);
    for (ProfileInfo &profile : m_Config.PROFILE)
        setDefaults(profileFields(), &Field::firstStart, &profile);
}

void xmlconfig::InitialProfile(std::uint32_t index)
{
    setDefaults(profileFields(), &Field::restored, &ProfileAt(index));
}
