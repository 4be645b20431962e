#pragma once

#include "model/eventlist.h"
#include "platform/plist.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

class FilePanels;

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
/// driver process reads too, and single profiles to and from files of the user's. User-interface
/// thread only.
class xmlconfig
{
public:
    /// Keeps a copy of the path of the settings file.
    void setConfigfileName(const std::string &path);
    /// Who asks for the files of single profiles; outlives the store. Without one (null) every
    /// question counts as cancelled.
    void setFilePanels(FilePanels *panels) { pFilePanels = panels; }

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

    /// Asks where to and writes one profile (0-based; an index above 9 is taken as the first
    /// profile) as WriteProfileToFile() does. The name offered counts from 0 as well. False when
    /// cancelled; true otherwise, also when the write failed.
    bool ExportProfile(std::uint32_t index);

    /// Asks for a file and reads it into one profile as ReadProfileFromFile() does. False when
    /// cancelled; true otherwise, also when the file could not be read.
    bool ImportProfile(std::uint32_t index);

    /// Writes one profile to a file of its own in one step: a property list whose root is what the
    /// settings file has under "PROFILE_1". On failure logs "write fail!", and what was at the path
    /// stays.
    void WriteProfileToFile(std::uint32_t index, const std::string &filename);

    /// Replaces the whole of one profile by what the file's root dictionary holds; missing keys
    /// read as 0, the empty text and the empty list, so a property list of something else empties
    /// the profile. A file that cannot be read, or is no property list with a dictionary at its
    /// root, is logged and changes nothing.
    void ReadProfileFromFile(std::uint32_t index, const std::string &filename);

    /// The defaults of a first start: global, sensor, lighting and button fields of all profiles.
    /// Characters and macros stay as they are.
    void InitialConfigData();

    /// The defaults of one profile (0-based; an index above 9 is taken as the first profile): its
    /// sensor, lighting and button fields only.
    void InitialProfile(std::uint32_t index);

private:
    void readDocument(plist::Dictionary root);
    void readProfile(plist::Dictionary from, ProfileInfo &profile);
    void buildProfile(const ProfileInfo &profile, plist::Dictionary to);
    bool keepUnreadableFile();
    void releaseDictionaries();

    /// The dictionaries being built or parsed; released when the file is done.
    plist::Dictionary pConfig;
    std::array<plist::Dictionary, kProfileCount> pProfile;
    std::array<plist::Dictionary, kMacroCount> pMacroInfo;
    plist::Dictionary pCharacterInfo;

    FilePanels *pFilePanels = nullptr;
    bool bUnreadableFile = false; ///< the file at the path is one that could not be read
};
