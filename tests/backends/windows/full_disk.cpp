#include "backends/windows/full_disk.h"

#include <algorithm>
#include <windows.h>

/// Where the program finds the system's call.
extern "C" decltype(&WriteFile) __imp_WriteFile;

namespace {

decltype(&WriteFile) systemsCall = nullptr;
std::int64_t room = 0;

BOOL WINAPI writeWhereRoomIs(HANDLE file, LPCVOID bytes, DWORD size, LPDWORD written,
                             LPOVERLAPPED place)
{
    LARGE_INTEGER length{};
    ::GetFileSizeEx(file, &length);
    const auto left = static_cast<DWORD>(std::clamp<std::int64_t>(room - length.QuadPart, 0, size));
    if (left > 0) return systemsCall(file, bytes, left, written, place);
    ::SetLastError(ERROR_DISK_FULL);
    return FALSE;
}

void putCall(decltype(&WriteFile) call)
{
    DWORD usual = 0;
    ::VirtualProtect(&__imp_WriteFile, sizeof __imp_WriteFile, PAGE_READWRITE, &usual);
    __imp_WriteFile = call;
    ::VirtualProtect(&__imp_WriteFile, sizeof __imp_WriteFile, usual, &usual);
}

} // namespace

void withFullDisk(std::int64_t bytes, const std::function<void()>& work)
{
    systemsCall = __imp_WriteFile;
    room = bytes;
    putCall(writeWhereRoomIs);
    work();
    putCall(systemsCall);
}
