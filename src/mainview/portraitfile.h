#pragma once

#include <string>
#include <string_view>

/// Where a portrait from `url` is kept: beside the settings file, under the name that the service
/// gave it, which is what follows the last "/".
std::string portraitPath(const std::string &settingsPath, const std::string &url);

/// Whether a portrait may have that file name. Whoever answers in the service's place chooses it,
/// and could choose the name of something that is a player's own: none that begins like the
/// settings file's, which its copies do, and no XML file, which profiles are exported to, in
/// whatever case; nor one that is no plain name of a file.
bool isPortraitName(std::string_view name, std::string_view settingsName);

/// Puts a portrait in its place, over one that is there. What cannot be written, or has a name that
/// is not for a portrait, is logged.
void savePortrait(const std::string &path, const std::string &settingsPath, std::string_view bytes);
