#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace cli {

/// A setting as it stands in the person's file.
struct ConfigEntry {
    std::string name;
    std::string value;
    std::size_t line = 0; ///< from 1
};

/// What the person's file says.
struct ConfigFile {
    std::string path;   ///< of the machine; empty where the environment names no folder for it
    bool there = false; ///< whether there is one; what is none has no entries
    std::vector<ConfigEntry> entries;
    std::vector<std::string> warnings; ///< a line for each name that is no setting's

    /// Null where the file does not say it.
    const ConfigEntry* find(std::string_view name) const;

    /// Where an entry stands, as messages tell it: "/home/me/.config/orvandiag/config.toml:3".
    std::string placeOf(const ConfigEntry& entry) const;
};

/// The names of all settings, in the order in which they are told.
const std::vector<std::string>& configNames();

/// Where the file lies: below `$XDG_CONFIG_HOME` or ~/.config, on Windows below %APPDATA%. The
/// empty text where the environment names no whole path.
std::string configFilePath();

/// Reads the file at a path; an empty path and a missing file are one without entries. Raises 321,
/// with the file and the line, as `parseConfig`, and 70, 57, 14 with the file for one that can't be
/// read.
ConfigFile readConfigFile(const std::string& path);

/// Takes the text of a file apart, which is TOML: `name = "value"` lines. Raises 321 with a
/// sentence that begins with the file and the line for a text that is none, and for a value of a
/// setting that is no text or an empty one.
ConfigFile parseConfig(const std::string& path, std::string_view text);

} // namespace cli
