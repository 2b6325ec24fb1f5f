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

std::string userDataFolder()
{
    return machineTextOf(filePathOf(environmentVariable("LOCALAPPDATA").value_or("")));
}
