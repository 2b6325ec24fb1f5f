#pragma once

#include "hosts/cli/config/config_file.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace cli {

/// Where the value of a setting comes from; each counts before the ones behind it.
enum class Origin { option, environment, file, standard };

/// A setting with what is in force.
struct PersonSetting {
    std::string name;
    std::optional<std::string> value; ///< nothing where something else decides, such as the site
    Origin origin = Origin::standard;
    std::string where; ///< "--site", "ORVAN_SITE" or the file and its line; empty by default
};

/// What the person wants of the command line, whichever server it works on.
struct PersonSettings {
    std::vector<PersonSetting> all; ///< in the order of `configNames`
    ConfigFile file;

    /// A setting by its name, which has to be one.
    const PersonSetting& of(const std::string& name) const;

    /// The identifier of the language that the person wants texts in; nothing where the site or the
    /// machine decides.
    std::optional<std::int32_t> language() const;
};

/// What the options of the command line say; nothing for those that don't stand there.
struct GivenOptions {
    std::optional<std::string> site;
    std::optional<std::string> toolFolder;
};

/// The value of a variable; nothing where it is not set.
using Environment = std::function<std::optional<std::string>(const char* name)>;

/// Works out what is in force: an option, or else a variable of the environment that is not empty
/// (ORVAN_SITE and so on, and behind the file PAGER), or else the file, or else what is usual.
/// `usualSite` is the site's default; nothing for the machine itself, or none.
/// Raises 5, with a sentence that begins with the variable or the file and its line, for a value
/// that a setting can't have: a colour that is none of the three, a language that is not known, a
/// path of the file that is no whole one. "~" in front of one is the person's own folder.
PersonSettings settledSettings(const GivenOptions& given, const Environment& environment,
                               ConfigFile file, const std::optional<std::string>& usualSite);

} // namespace cli
