#include "system/process.h"

#include "system/machine_path.h"
#include "system/windows/windows_calls.h"

#include <string>

int ownProcess()
{
    return static_cast<int>(::GetCurrentProcessId());
}

std::string ownProgramFile()
{
    constexpr std::size_t longest = 32768;
    std::wstring path(longest, L'\0');
    path.resize(::GetModuleFileNameW(nullptr, path.data(), longest));
    return machineTextOf(path);
}

bool isEndedProcess(std::string_view number)
{
    constexpr std::size_t mostDigits = 9;
    if (number.empty() || number.size() > mostDigits ||
        number.find_first_not_of("0123456789") != std::string_view::npos)
        return false;
    const auto id = static_cast<DWORD>(std::stoul(std::string(number)));
    if (id == 0) return false;
    const OwnedHandle process(::OpenProcess(SYNCHRONIZE, FALSE, id));
    if (!process.isOpen()) return ::GetLastError() == ERROR_INVALID_PARAMETER;
    return ::WaitForSingleObject(process.get(), 0) == WAIT_OBJECT_0;
}
