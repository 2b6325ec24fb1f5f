#include "backends/windows/files/folder_entries.h"

#include "backends/windows/files/local_time.h"
#include "backends/windows/windows_error.h"
#include "runtime/run_time_error.h"

#include <functional>

namespace {

using namespace runTimeErrors;

/// Owner of a search in a folder.
class Search {
public:
    Search(const std::wstring& pattern, WIN32_FIND_DATAW& first)
        : handle_(::FindFirstFileExW(pattern.c_str(), FindExInfoBasic, &first,
                                     FindExSearchNameMatch, nullptr, FIND_FIRST_EX_LARGE_FETCH))
    {}
    ~Search()
    {
        if (isOpen()) ::FindClose(handle_);
    }
    Search(const Search&) = delete;
    Search& operator=(const Search&) = delete;

    bool isOpen() const { return handle_ != INVALID_HANDLE_VALUE; }
    bool next(WIN32_FIND_DATAW& found) { return ::FindNextFileW(handle_, &found) != 0; }

private:
    HANDLE handle_;
};

bool isFolder(DWORD attributes)
{
    return (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

std::int64_t sizeOf(const WIN32_FIND_DATAW& found)
{
    return static_cast<std::int64_t>(std::uint64_t{found.nFileSizeHigh} << 32 | found.nFileSizeLow);
}

FileInfo infoOf(const WIN32_FIND_DATAW& found)
{
    FileInfo info;
    info.name = utf8Of(found.cFileName);
    info.folder = isFolder(found.dwFileAttributes);
    info.size = info.folder ? 0 : sizeOf(found);
    info.created = localDate(found.ftCreationTime);
    info.modified = localDate(found.ftLastWriteTime);
    info.readOnly = (found.dwFileAttributes & FILE_ATTRIBUTE_READONLY) != 0;
    return info;
}

bool isDots(const wchar_t* name)
{
    return name == std::wstring_view(L".") || name == std::wstring_view(L"..");
}

/// Calls `see` for each entry of a folder. Raises 76, 70, 57.
void eachEntry(const std::wstring& folder, const std::function<void(const WIN32_FIND_DATAW&)>& see)
{
    const auto attributes = attributesOf(folder);
    if (!attributes || !isFolder(*attributes)) throw RunTimeError(pathNotFound);
    WIN32_FIND_DATAW found{};
    Search search(folder + (folder.back() == L'\\' ? L"*" : L"\\*"), found);
    if (!search.isOpen()) {
        // The root of an empty drive has not even "." in it.
        if (::GetLastError() == ERROR_FILE_NOT_FOUND) return;
        throw latestError(pathNotFound);
    }
    do
        if (!isDots(found.cFileName)) see(found);
    while (search.next(found));
    if (::GetLastError() != ERROR_NO_MORE_FILES) throw latestError(pathNotFound);
}

} // namespace

std::optional<DWORD> attributesOf(const std::wstring& path)
{
    const DWORD attributes = ::GetFileAttributesW(path.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES) return attributes;
    const SystemError error = latestError(fileNotFound);
    if (error.number() == fileNotFound) return {};
    throw error;
}

bool isFolderPath(const std::wstring& path)
{
    const DWORD attributes = ::GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && isFolder(attributes);
}

DWORD attributesOfFile(const std::wstring& path)
{
    const auto attributes = attributesOf(path);
    if (!attributes || isFolder(*attributes)) throw RunTimeError(fileNotFound);
    return *attributes;
}

FileInfo factsOfFile(const std::wstring& path)
{
    attributesOfFile(path);
    WIN32_FIND_DATAW found{};
    const Search search(path, found);
    if (!search.isOpen()) throw latestError(fileNotFound);
    return infoOf(found);
}

std::vector<FileInfo> entriesOf(const std::wstring& folder)
{
    std::vector<FileInfo> entries;
    eachEntry(folder, [&](const WIN32_FIND_DATAW& found) { entries.push_back(infoOf(found)); });
    return entries;
}

std::int64_t sizeOfFolder(const std::wstring& folder)
{
    std::int64_t size = 0;
    const std::wstring stem = folder.back() == L'\\' ? folder : folder + L'\\';
    eachEntry(folder, [&](const WIN32_FIND_DATAW& found) {
        if ((found.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0) return;
        size +=
            isFolder(found.dwFileAttributes) ? sizeOfFolder(stem + found.cFileName) : sizeOf(found);
    });
    return size;
}
