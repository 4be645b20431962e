#pragma once

#include "model/eventlist.h"
#include "platform/plist.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

/// The path of the settings file, as given to xmlconfig::setConfigfileName().
extern std::string pConfigFileName;

/// What became of reading the settings file.
enum class ConfigRead {
    Ok,
    Missing,         ///< there is no file
    Unreadable,      ///< something is there, but it is no regular file or cannot be read
    NotPropertyList, ///< a file, but not a property list with a dictionary at its root
};

/// The settings store: copies m_Config to and from the settings file, an XML property list that the
/// driver process reads too. User-interface thread only.
class xmlconfig
{
public:
    /// Keeps a copy of the path of the settings file.
    void setConfigfileName(const std::string &path);

    /// Reads the file into m_Config, or puts the first-start defaults when it cannot be read; then
    /// nothing is written. Missing keys read as 0, the empty text and the empty list.
    void LoadConfigFile();

    /// As LoadConfigFile(), but when the file cannot be read m_Config stays as it is, nothing is
    /// logged, and the result says why.
    ConfigRead ReadConfigFile();

    /// Writes the whole of m_Config to the file in one step. On failure logs "write fail!"; the
    /// record is unchanged. A file that LoadConfigFile() found but could not read is first kept
    /// beside, under the same name with ".unreadable", so that nothing of the user's is lost; when
    /// that fails nothing is written.
    void WriteConfigFile();

    /// The defaults of a first start: global, sensor, lighting and button fields of all profiles.
    /// Characters and macros stay as they are.
    void InitialConfigData();

    /// The defaults of one profile (0-based; an index above 9 is taken as the first profile): its
    /// sensor, lighting and button fields only.
    void InitialProfile(std::uint32_t index);

private:
    void readDocument(plist::Dictionary root);
    void readProfile(std::uint32_t index);
    void buildProfile(std::uint32_t index);
    bool keepUnreadableFile();
    void releaseDictionaries();

    /// The dictionaries being built or parsed; released when the file is done.
    plist::Dictionary pConfig;
    std::array<plist::Dictionary, kProfileCount> pProfile;
    std::array<plist::Dictionary, kMacroCount> pMacroInfo;
    plist::Dictionary pCharacterInfo;

    bool bUnreadableFile = false; ///< the file at the path is one that could not be read
};
