#include "model/xmlconfig.h"

#include "model/fieldio.h"
#include "platform/files.h"
#include "platform/systemlog.h"

std::string pConfigFileName;

namespace {

/// Far above the largest settings file (every list and text full: about 10 MB).
constexpr std::size_t kMostFileBytes = 64U << 20U;

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
    std::string bytes;
    const ReadStatus status = readFile(pConfigFileName, kMostFileBytes, bytes);
    bUnreadableFile = status == ReadStatus::Unreadable;
    if (status != ReadStatus::Ok)
        return bUnreadableFile ? ConfigRead::Unreadable : ConfigRead::Missing;
    const auto document = plist::Document::parse(bytes);
    bUnreadableFile = !document;
    if (!document)
        return ConfigRead::NotPropertyList;
    readDocument(document->root());
    return ConfigRead::Ok;
}

void xmlconfig::readDocument(plist::Dictionary root)
{
    pConfig = root;
    readFields(rootFields(), pConfig, &m_Config);
    for (std::uint32_t index = 0; index < kProfileCount; ++index) {
        pProfile[index] = pConfig.dictionary(numberedKey(kProfileKey, index + 1).c_str());
        readProfile(index);
    }
    releaseDictionaries();
}

void xmlconfig::readProfile(std::uint32_t index)
{
    ProfileInfo &profile = ProfileAt(index);
    readFields(profileFields(), pProfile[index], &profile);
    pCharacterInfo = pProfile[index].dictionary(kCharacterKey);
    readFields(characterFields(), pCharacterInfo, &profile.CHARACTER_INFO);
    for (unsigned slot = 0; slot < kMacroCount; ++slot) {
        pMacroInfo[slot] = pProfile[index].dictionary(numberedKey(kMacroKey, slot + 1).c_str());
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
        buildProfile(index);
    }
    releaseDictionaries();
    if (!keepUnreadableFile() || !writeFileAtomically(pConfigFileName, document.toXml()))
        systemLog("write fail!");
}

void xmlconfig::buildProfile(std::uint32_t index)
{
    const ProfileInfo &profile = ProfileAt(index);
    writeFields(profileFields(), &profile, pProfile[index]);
    pCharacterInfo = pProfile[index].addDictionary(kCharacterKey);
    writeFields(characterFields(), &profile.CHARACTER_INFO, pCharacterInfo);
    for (unsigned slot = 0; slot < kMacroCount; ++slot) {
        pMacroInfo[slot] = pProfile[index].addDictionary(numberedKey(kMacroKey, slot + 1).c_str());
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
