#include "system/environment.h"

#include "system/machine_path.h"
#include "system/windows/windows_calls.h"

std::optional<std::string> environmentVariable(const char* name)
{
    const std::wstring wideName = wideOf(name);
    ::SetLastError(ERROR_SUCCESS);
    DWORD size = ::GetEnvironmentVariableW(wideName.c_str(), nullptr, 0);
    if (size == 0) {
        if (::GetLastError() == ERROR_ENVVAR_NOT_FOUND) return {};
        return std::string();
    }
    std::wstring value(size, L'\0');
    size = ::GetEnvironmentVariableW(wideName.c_str(), value.data(), size);
    if (size >= value.size()) return {}; // another thread has changed it meanwhile
    value.resize(size);
    return utf8Of(value);
}

namespace {

/// The folder that a variable names with its whole path; else the empty text.
std::string folderOf(const char* variable)
{
    const std::string folder = environmentVariable(variable).value_or("");
    return filePathOf(folder).is_absolute() ? machineTextOf(filePathOf(folder)) : "";
}

} // namespace

std::string userDataFolder()
{
    return folderOf("LOCALAPPDATA");
}

std::string userSettingsFolder()
{
    return folderOf("APPDATA");
}

std::string userFolder()
{
    return folderOf("USERPROFILE");
}

MessageLocale messageLocale()
{
    for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"})
        if (const auto name = environmentVariable(variable); name && !name->empty())
            return {*name, variable};
    return {};
}
