#include "system/environment.h"

#include <cstdlib>
#include <filesystem>

std::optional<std::string> environmentVariable(const char* name)
{
    const char* value = std::getenv(name);
    return value == nullptr ? std::nullopt : std::optional<std::string>(value);
}

std::string userDataFolder()
{
    const std::string data = environmentVariable("XDG_DATA_HOME").value_or("");
    if (!data.empty()) return data;
    const std::filesystem::path home = environmentVariable("HOME").value_or("");
    return (home / ".local" / "share").string();
}
