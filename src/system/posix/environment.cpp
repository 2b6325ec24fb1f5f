#include "system/environment.h"

#include <cstdlib>
#include <filesystem>

std::optional<std::string> environmentVariable(const char* name)
{
    const char* value = std::getenv(name);
    return value == nullptr ? std::nullopt : std::optional<std::string>(value);
}

namespace {

/// A folder that a variable names, or else one below the user's own. Relative ones count for
/// nothing: they would be other ones in each folder that a program is started in.
std::string folderOf(const char* variable, const std::filesystem::path& belowHome)
{
    const std::filesystem::path named = environmentVariable(variable).value_or("");
    if (named.is_absolute()) return named.string();
    const std::string home = userFolder();
    return home.empty() ? "" : (std::filesystem::path(home) / belowHome).string();
}

} // namespace

std::string userDataFolder()
{
    return folderOf("XDG_DATA_HOME", std::filesystem::path(".local") / "share");
}

std::string userSettingsFolder()
{
    return folderOf("XDG_CONFIG_HOME", ".config");
}

std::string userFolder()
{
    const std::filesystem::path home = environmentVariable("HOME").value_or("");
    return home.is_absolute() ? home.string() : "";
}

MessageLocale messageLocale()
{
    for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"})
        if (const auto name = environmentVariable(variable); name && !name->empty())
            return {*name, variable};
    return {};
}
