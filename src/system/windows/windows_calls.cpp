#include "system/windows/windows_calls.h"

#include "text/utf8.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <io.h>
#include <vector>

OwnedHandle::~OwnedHandle()
{
    if (isOpen()) ::CloseHandle(handle_);
}

std::wstring wideOf(std::string_view text)
{
    std::u16string units;
    appendUtf16(units, text);
    return {units.begin(), units.end()};
}

std::string utf8Of(std::wstring_view text)
{
    const std::u16string units(text.begin(), text.end());
    return utf8OfUtf16(std::u16string_view(units));
}

std::wstring machinePathOf(const std::string& path)
{
    std::wstring given = wideOf(path);
    const bool isBelowTop = given.size() > 2 && given[0] == L'/' && given[2] == L':';
    if (isBelowTop) given.erase(0, 1);
    std::replace(given.begin(), given.end(), L'/', L'\\');
    if (given.starts_with(L"\\\\?\\") || given.starts_with(L"\\\\.\\")) return given;
    constexpr std::size_t lengthOfDrive = 2;
    if (given.size() == lengthOfDrive && given[1] == L':') given += L'\\';
    std::wstring whole(::GetFullPathNameW(given.c_str(), 0, nullptr, nullptr), L'\0');
    whole.resize(
        ::GetFullPathNameW(given.c_str(), static_cast<DWORD>(whole.size()), whole.data(), nullptr));
    if (whole.empty()) return given;
    if (whole.starts_with(L"\\\\.\\")) return whole;
    if (whole.starts_with(L"\\\\")) return L"\\\\?\\UNC" + whole.substr(1);
    return L"\\\\?\\" + whole;
}

std::string pathOfHandle(HANDLE handle)
{
    std::wstring path(::GetFinalPathNameByHandleW(handle, nullptr, 0, VOLUME_NAME_DOS), L'\0');
    if (path.empty()) return {};
    const DWORD length = ::GetFinalPathNameByHandleW(
        handle, path.data(), static_cast<DWORD>(path.size()), VOLUME_NAME_DOS);
    if (length == 0 || length >= path.size()) return {};
    path.resize(length);
    if (path.starts_with(L"\\\\?\\UNC\\"))
        path.replace(0, 7, L"\\");
    else if (path.starts_with(L"\\\\?\\"))
        path.erase(0, 4);
    std::replace(path.begin(), path.end(), L'\\', L'/');
    while (path.ends_with(L'/')) path.pop_back();
    return utf8Of(path);
}

int errnoOf(DWORD error)
{
    switch (error) {
    case ERROR_SUCCESS:
        return 0;
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_DRIVE:
    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
        return ENOENT;
    case ERROR_DIRECTORY:
        return ENOTDIR;
    case ERROR_FILENAME_EXCED_RANGE:
        return ENAMETOOLONG;
    case ERROR_FILE_EXISTS:
    case ERROR_ALREADY_EXISTS:
        return EEXIST;
    case ERROR_ACCESS_DENIED:
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_CURRENT_DIRECTORY:
    case ERROR_DELETE_PENDING:
    case ERROR_NETWORK_ACCESS_DENIED:
    case ERROR_PRIVILEGE_NOT_HELD:
    case ERROR_CANT_ACCESS_FILE:
    case ERROR_USER_MAPPED_FILE:
        return EACCES;
    case ERROR_WRITE_PROTECT:
        return EROFS;
    case ERROR_BUSY:
    case ERROR_PATH_BUSY:
        return EBUSY;
    case ERROR_DIR_NOT_EMPTY:
        return ENOTEMPTY;
    case ERROR_NOT_SAME_DEVICE:
        return EXDEV;
    case ERROR_CANT_RESOLVE_FILENAME:
        return ELOOP;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
        return ENOSPC;
    case ERROR_FILE_TOO_LARGE:
        return EFBIG;
    case ERROR_NOT_ENOUGH_MEMORY:
    case ERROR_OUTOFMEMORY:
    case ERROR_COMMITMENT_LIMIT:
        return ENOMEM;
    case ERROR_TOO_MANY_OPEN_FILES:
    case ERROR_NO_SYSTEM_RESOURCES:
        return EMFILE;
    case ERROR_INVALID_PARAMETER:
    case ERROR_INVALID_FUNCTION:
    case ERROR_NEGATIVE_SEEK:
        return EINVAL;
    case ERROR_INVALID_HANDLE:
        return EBADF;
    case ERROR_NO_DATA:
    case ERROR_BROKEN_PIPE:
        return EPIPE;
    default:
        return EIO;
    }
}

int noteError()
{
    return errno = errnoOf(::GetLastError());
}

HANDLE handleOf(const FileDescriptor& file)
{
    if (!file.isOpen()) return INVALID_HANDLE_VALUE;
    return reinterpret_cast<HANDLE>(::_get_osfhandle(file.get()));
}

FileDescriptor descriptorOf(OwnedHandle handle)
{
    if (!handle.isOpen()) return {};
    const int number =
        ::_open_osfhandle(reinterpret_cast<intptr_t>(handle.get()), _O_BINARY | _O_NOINHERIT);
    if (number >= 0) handle.release();
    return FileDescriptor(number);
}
