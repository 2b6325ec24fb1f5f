#include "system/machine_names.h"

#include "system/windows/windows_calls.h"

#include <array>

std::string machineName()
{
    std::array<wchar_t, 256> name{};
    auto size = static_cast<DWORD>(name.size());
    if (::GetComputerNameExW(ComputerNameDnsHostname, name.data(), &size) == 0) return {};
    return utf8Of({name.data(), size});
}

std::string loginName()
{
    std::array<wchar_t, 257> name{};
    auto size = static_cast<DWORD>(name.size());
    if (::GetUserNameW(name.data(), &size) == 0 || size == 0) return {};
    return utf8Of({name.data(), size - 1});
}
