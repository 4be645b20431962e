#pragma once

#include <optional>
#include <string>
#include <string_view>

enum class ReadStatus {
    Ok,
    Missing,    ///< there is nothing at the path
    Unreadable, ///< something is there, but it is no regular file, too large, or cannot be read
};

/// Reads the whole regular file at `path` into `bytes`. Never waits: a named pipe or a device is
/// Unreadable, and so is a file of more than `most` bytes.
ReadStatus readFile(const std::string &path, std::size_t most, std::string &bytes);

/// Whether writing waits until the disk has it, which may take a while. What does not wait may be
/// lost, or empty, after a power cut.
enum class Flush { ToDisk, Later };

/// Replaces the file at `path` in one step, so that a reader sees the old bytes or the new ones,
/// also after a power cut: a temporary file beside it, made exclusively, flushed to the disk, is
/// renamed over it, and the folder is flushed. Keeps the old file's permissions; a new file gets
/// 0644. On failure false: the old file stands as it was and no temporary file is left.
bool writeFileAtomically(const std::string &path, std::string_view bytes,
                         Flush flush = Flush::ToDisk);

/// Whether anything is at `path`; true also where that cannot be told.
bool isPresent(const std::string &path);

/// Keeps what is at `path` under `path` + `suffix` too, or under that with ".2", ".3", ... added
/// while the name is taken: as a second name of the same file, so that `path` is not empty for a
/// moment, or, where that cannot be (a folder), by moving it there. The name; nothing when neither
/// works.
std::optional<std::string> keepBeside(const std::string &path, const std::string &suffix);
