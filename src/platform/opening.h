#pragma once

#include <string>

/// Opens the file at `path` with the desktop's default application for it, without waiting for it.
/// A file that is not there, or that nothing opens, is only logged.
void openFile(const std::string &path);

/// Opens an address of the web in the default browser; one that nothing opens is only logged.
void openAddress(const std::string &address);
