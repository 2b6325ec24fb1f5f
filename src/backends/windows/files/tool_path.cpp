#include "backends/windows/files/tool_path.h"

#include "runtime/run_time_error.h"
#include "system/windows/windows_calls.h"

#include <algorithm>
#include <string_view>

namespace {

constexpr std::wstring_view longMark = L"\\\\?\\";
constexpr std::wstring_view longShareMark = L"\\\\?\\UNC\\";
constexpr std::size_t lengthOfDrive = 2;

std::wstring wholePath(const std::wstring& path)
{
    std::wstring whole(::GetFullPathNameW(path.c_str(), 0, nullptr, nullptr), L'\0');
    whole.resize(
        ::GetFullPathNameW(path.c_str(), static_cast<DWORD>(whole.size()), whole.data(), nullptr));
    if (whole.empty()) throw RunTimeError(runTimeErrors::badFileNumber);
    return whole;
}

/// Where the names begin in a path such as "C:\x", "\\server\share\x" or "\\?\C:\x".
std::size_t startOfNames(std::wstring_view path)
{
    std::size_t start = 0;
    if (path.starts_with(longShareMark))
        start = longShareMark.size();
    else if (path.starts_with(longMark))
        return longMark.size() + lengthOfDrive + 1;
    else if (path.starts_with(L"\\\\"))
        start = 2;
    else
        return lengthOfDrive + 1;
    for (int name = 0; name < 2; ++name) {
        const std::size_t end = path.find(L'\\', start);
        if (end == std::wstring_view::npos) return path.size();
        start = end + 1;
    }
    return start;
}

} // namespace

std::wstring plainPath(const std::string& path)
{
    if (path.empty() || path.find('\0') != std::string::npos)
        throw RunTimeError(runTimeErrors::badFileNumber);
    std::wstring given = wideOf(path);
    std::replace(given.begin(), given.end(), L'/', L'\\');
    std::wstring whole = wholePath(given);
    if (whole.starts_with(L"\\\\.\\") || whole.starts_with(longMark))
        throw RunTimeError(runTimeErrors::permissionDenied);
    const std::size_t names = startOfNames(whole);
    if (whole.find(L':', lengthOfDrive) != std::wstring::npos)
        throw RunTimeError(runTimeErrors::badFileNumber);
    while (whole.size() > names && whole.back() == L'\\') whole.pop_back();
    return whole;
}

std::wstring systemPath(const std::string& path)
{
    const std::wstring plain = plainPath(path);
    if (plain.starts_with(L"\\\\")) return std::wstring(longShareMark) + plain.substr(2);
    return std::wstring(longMark) + plain;
}

bool isRootPath(const std::wstring& path)
{
    return path.size() <= startOfNames(path);
}

std::wstring folderOf(const std::wstring& path)
{
    if (isRootPath(path)) return path;
    return path.substr(0, path.rfind(L'\\') + 1);
}

std::wstring lastNameOf(const std::wstring& path)
{
    if (isRootPath(path)) return {};
    return path.substr(path.rfind(L'\\') + 1);
}

std::string machinePath(const std::wstring& path)
{
    if (path.starts_with(longShareMark))
        return "\\\\" + utf8Of(std::wstring_view(path).substr(longShareMark.size()));
    if (path.starts_with(longMark)) return utf8Of(std::wstring_view(path).substr(longMark.size()));
    return utf8Of(path);
}
