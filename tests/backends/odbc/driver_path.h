#pragma once

#include <algorithm>
#include <string>

#ifdef _WIN32
#include <windows.h>
#endif

/// A path of the machine as drivers of ODBC take it: under Wine they are those of the machine that
/// Wine runs on, and know no drives.
inline std::string driverPath(const std::string& path)
{
#ifdef _WIN32
    using UnixName = char*(__cdecl*)(const wchar_t*);
    const auto unixName = reinterpret_cast<UnixName>(reinterpret_cast<void*>(
        ::GetProcAddress(::GetModuleHandleW(L"kernel32"), "wine_get_unix_file_name")));
    if (unixName == nullptr) return path;
    std::wstring wide(path.begin(), path.end()); // a test's own folder has plain letters
    std::replace(wide.begin(), wide.end(), L'/', L'\\');
    char* const name = unixName(wide.c_str());
    if (name == nullptr) return path;
    const std::string found(name);
    ::HeapFree(::GetProcessHeap(), 0, name);
    return found;
#else
    return path;
#endif
}
