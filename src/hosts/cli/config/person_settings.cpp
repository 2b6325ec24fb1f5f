#include "hosts/cli/config/person_settings.h"

#include "backends/site/language/site_languages.h"
#include "runtime/run_time_error.h"
#include "system/environment.h"
#include "system/machine_path.h"

#include <algorithm>
#include <cctype>
#include <utility>

namespace cli {

namespace {

[[noreturn]] void refuse(const std::string& where, const std::string& why)
{
    throw RunTimeError(runTimeErrors::invalidCall, where + ": " + why);
}

/// Whether a path begins with a drive, as one of the server's does.
bool hasDrive(const std::string& path)
{
    return path.size() >= 2 && path[1] == ':' &&
           std::isalpha(static_cast<unsigned char>(path[0])) != 0;
}

/// A path as it stands in the file. One that depends on the folder in which a command is started
/// would be another one each time.
std::string pathOfFile(const std::string& where, const std::string& name, const std::string& path)
{
    std::string whole = path;
    if (path == "~" || path.starts_with("~/") || path.starts_with("~\\"))
        whole = userFolder() + path.substr(1);
    const bool onServer = name == "tool-folder" && hasDrive(whole);
    if (!onServer && !filePathOf(whole).is_absolute())
        refuse(where,
               name + " takes a whole path, such as one that begins with ~/, not \"" + path + "\"");
    return whole;
}

void requireKnown(const PersonSetting& setting)
{
    const std::string value = setting.value.value_or("");
    if (setting.name == "color" && value != "auto" && value != "always" && value != "never")
        refuse(setting.where, "color is auto, always or never, not \"" + value + "\"");
    if (setting.name == "language" && !isKnownLocale(value))
        refuse(setting.where,
               "\"" + value + "\" is no language that is known; write one such as en, fr or de_CH");
}

/// The first of some variables that is not empty.
std::optional<PersonSetting> ofEnvironment(const Environment& environment, const std::string& name,
                                           const char* variable)
{
    const auto value = environment(variable);
    if (!value || value->empty()) return std::nullopt;
    return PersonSetting{name, *value, Origin::environment, variable};
}

std::optional<PersonSetting> ofFile(const ConfigFile& file, const std::string& name)
{
    const ConfigEntry* entry = file.find(name);
    if (entry == nullptr) return std::nullopt;
    const std::string where = file.placeOf(*entry);
    const bool isPath = name == "site" || name == "tool-folder";
    return PersonSetting{name, isPath ? pathOfFile(where, name, entry->value) : entry->value,
                         Origin::file, where};
}

/// Where a setting may come from besides the file.
struct Sources {
    const char* name;
    std::optional<std::string> option;
    const char* variable;
    const char* laterVariable; ///< which counts behind the file; null for none
    std::optional<std::string> standard;
};

PersonSetting settled(const Sources& from, const Environment& environment, const ConfigFile& file)
{
    const std::string name = from.name;
    if (from.option) return {name, *from.option, Origin::option, "--" + name};
    auto found = ofEnvironment(environment, name, from.variable);
    if (!found) found = ofFile(file, name);
    if (!found && from.laterVariable != nullptr)
        found = ofEnvironment(environment, name, from.laterVariable);
    if (!found) return {name, from.standard, Origin::standard, {}};
    requireKnown(*found);
    return *found;
}

} // namespace

const PersonSetting& PersonSettings::of(const std::string& name) const
{
    const auto found = std::find_if(
        all.begin(), all.end(), [&](const PersonSetting& setting) { return setting.name == name; });
    if (found == all.end()) throw RunTimeError(runTimeErrors::subscriptOutOfRange);
    return *found;
}

std::optional<std::int32_t> PersonSettings::language() const
{
    const auto& chosen = of("language").value;
    if (!chosen) return std::nullopt;
    return languageOfLocale(*chosen);
}

PersonSettings settledSettings(const GivenOptions& given, const Environment& environment,
                               ConfigFile file, const std::optional<std::string>& usualSite)
{
    const Sources sources[] = {
        {"site", given.site, "ORVAN_SITE", nullptr, usualSite},
        {"tool-folder", given.toolFolder, "ORVAN_TOOL_FOLDER", nullptr, {}},
        {"language", {}, "ORVAN_LANGUAGE", nullptr, {}},
        {"color", {}, "ORVAN_COLOR", nullptr, "auto"},
        {"pager", {}, "ORVAN_PAGER", "PAGER", "less -R"},
    };
    PersonSettings settings;
    for (const Sources& from : sources) settings.all.push_back(settled(from, environment, file));
    settings.file = std::move(file);
    return settings;
}

} // namespace cli
