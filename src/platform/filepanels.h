#pragma once

#include <optional>
#include <string>

/// The desktop's panels that ask for a file, run modally: a call comes back when the user has
/// answered. Paths are bytes, as the file system has them. User-interface thread only.
class FilePanels
{
public:
    FilePanels() = default;
    virtual ~FilePanels() = default;
    FilePanels(const FilePanels &) = delete;
    FilePanels &operator=(const FilePanels &) = delete;

    /// Asks for an existing file of the type ("XML": names that end in ".xml", in any letter case).
    /// The path; nothing when cancelled.
    virtual std::optional<std::string> openPanel(const std::string &title,
                                                 const std::string &fileType) = 0;
    /// Asks where to write a file of the type, `proposedName` being offered, and whether to replace
    /// one that exists. The path, which ends in the type; nothing when cancelled.
    virtual std::optional<std::string> savePanel(const std::string &title,
                                                 const std::string &proposedName,
                                                 const std::string &fileType) = 0;
};
