#include "backends/windows/files/windows_file_system.h"

#include "backends/common/file_pattern.h"
#include "backends/common/folder_listing.h"
#include "backends/common/text_file_reader.h"
#include "backends/common/text_file_writer.h"
#include "backends/windows/files/current_folders.h"
#include "backends/windows/files/folder_entries.h"
#include "backends/windows/files/tool_path.h"
#include "backends/windows/windows_error.h"
#include "runtime/run_time_error.h"
#include "runtime/windows_path.h"
#include "system/whole_file.h"
#include "system/windows/security.h"
#include "text/utf8.h"

#include <algorithm>
#include <utility>

namespace {

using namespace runTimeErrors;

constexpr DWORD shareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

struct Opening {
    DWORD access;
    DWORD sharing;
    DWORD disposition;
};

constexpr Opening toRead{GENERIC_READ, shareAll, OPEN_EXISTING};
constexpr Opening toAppend{FILE_APPEND_DATA | FILE_READ_ATTRIBUTES | SYNCHRONIZE,
                           FILE_SHARE_READ | FILE_SHARE_DELETE, OPEN_ALWAYS};
constexpr Opening toWriteAnew{GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_DELETE, CREATE_ALWAYS};

/// Opens a plain file and nothing else. Raises `missing`, 70, 61, 57.
OwnedHandle openFile(const std::wstring& path, const Opening& opening, int missing)
{
    OwnedHandle file(::CreateFileW(path.c_str(), opening.access, opening.sharing, nullptr,
                                   opening.disposition, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file.isOpen()) throw latestError(missing);
    if (::GetFileType(file.get()) != FILE_TYPE_DISK) throw RunTimeError(permissionDenied);
    return file;
}

FileDescriptor describedFile(OwnedHandle file)
{
    FileDescriptor descriptor = descriptorOf(std::move(file));
    if (!descriptor.isOpen()) throw systemError(errno, deviceIo);
    return descriptor;
}

/// What a file that is not there raises: 53, or 76 when its folder is missing too.
int missingNumber(const std::wstring& path)
{
    return isFolderPath(folderOf(path)) ? fileNotFound : pathNotFound;
}

std::unique_ptr<TextWriter> openForWriting(const std::string& path, const Opening& opening)
{
    const std::wstring target = systemPath(path);
    const auto attributes = attributesOf(target);
    if (attributes && (*attributes & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY)) != 0)
        throw RunTimeError(permissionDenied);
    return std::make_unique<TextFileWriter>(describedFile(openFile(target, opening, pathNotFound)));
}

bool isSameFile(HANDLE one, HANDLE other)
{
    BY_HANDLE_FILE_INFORMATION facts{};
    BY_HANDLE_FILE_INFORMATION others{};
    return ::GetFileInformationByHandle(one, &facts) != 0 &&
           ::GetFileInformationByHandle(other, &others) != 0 &&
           facts.dwVolumeSerialNumber == others.dwVolumeSerialNumber &&
           facts.nFileIndexHigh == others.nFileIndexHigh &&
           facts.nFileIndexLow == others.nFileIndexLow;
}

/// Refuses a target that no copy may take the place of. Raises 70.
void checkTargetOfCopy(const std::wstring& target, HANDLE source)
{
    const auto attributes = attributesOf(target);
    if (!attributes) return;
    constexpr DWORD refused =
        FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT;
    if ((*attributes & refused) != 0) throw RunTimeError(permissionDenied);
    const OwnedHandle there = openFile(target, {0, shareAll, OPEN_EXISTING}, fileNotFound);
    if (isSameFile(source, there.get())) throw RunTimeError(permissionDenied);
}

void makeFolder(const std::string& path, OthersMay others)
{
    const NewSecurity security(others);
    SECURITY_ATTRIBUTES attributes{sizeof attributes, security.descriptor(), FALSE};
    const std::wstring folder = systemPath(path);
    if (!::CreateDirectoryW(folder.c_str(), &attributes))
        throw attributesOf(folder) ? SystemError(EEXIST, pathNotFound) : latestError(pathNotFound);
}

/// Where the last name of a path begins.
std::size_t startOfLastName(const std::string& path)
{
    const auto separator = path.find_last_of("\\/");
    if (separator != std::string::npos) return separator + 1;
    return beginsWithDrive(path) ? 2 : 0;
}

} // namespace

bool WindowsFileSystem::fileExists(const std::string& path) const
try {
    const auto attributes = attributesOf(systemPath(path));
    return attributes && (*attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
} catch (const RunTimeError&) {
    return false;
}

bool WindowsFileSystem::folderExists(const std::string& path) const
try {
    return isFolderPath(systemPath(path));
} catch (const RunTimeError&) {
    return false;
}

FileInfo WindowsFileSystem::file(const std::string& path) const
{
    return factsOfFile(systemPath(path));
}

std::int64_t WindowsFileSystem::folderSize(const std::string& path) const
{
    return sizeOfFolder(systemPath(path));
}

std::vector<FileInfo> WindowsFileSystem::entries(const std::string& folder) const
{
    std::vector<FileInfo> found = entriesOf(systemPath(folder));
    std::vector<std::pair<std::string, FileInfo>> keyed;
    keyed.reserve(found.size());
    for (auto& entry : found) {
        std::string key = foldCase(entry.name);
        keyed.emplace_back(std::move(key), std::move(entry));
    }
    std::sort(keyed.begin(), keyed.end(),
              [](const auto& left, const auto& right) { return left.first < right.first; });
    found.clear();
    for (auto& [key, entry] : keyed) found.push_back(std::move(entry));
    return found;
}

std::vector<std::string> WindowsFileSystem::matching(const std::string& pattern) const
{
    if (pattern.empty()) return {};
    const std::size_t lastName = startOfLastName(pattern);
    const std::wstring folder = systemPath(lastName == 0 ? "." : pattern.substr(0, lastName));
    const auto attributes = attributesOf(folder);
    if (!attributes || (*attributes & FILE_ATTRIBUTE_DIRECTORY) == 0) return {};
    const FilePattern wanted(std::string_view(pattern).substr(lastName));
    std::vector<std::string> names;
    for (auto& entry : entriesOf(folder))
        if (!entry.folder && wanted.matches(entry.name)) names.push_back(std::move(entry.name));
    return sortedNames(std::move(names));
}

void WindowsFileSystem::createFolder(const std::string& path)
{
    makeFolder(path, OthersMay::write);
}

void WindowsFileSystem::createPrivateFolder(const std::string& path)
{
    makeFolder(path, OthersMay::nothing);
}

void WindowsFileSystem::removeFolder(const std::string& path)
{
    const std::wstring folder = systemPath(path);
    if (isRootPath(folder)) throw RunTimeError(permissionDenied);
    const auto attributes = attributesOf(folder);
    if (!attributes || (*attributes & FILE_ATTRIBUTE_DIRECTORY) == 0 ||
        (*attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0)
        throw RunTimeError(pathNotFound);
    if (!::RemoveDirectoryW(folder.c_str())) throw latestError(pathNotFound);
}

void WindowsFileSystem::copyFile(const std::string& source, const std::string& target)
{
    const std::wstring from = systemPath(source);
    attributesOfFile(from);
    OwnedHandle file = openFile(from, toRead, fileNotFound);
    const std::wstring to = systemPath(target);
    checkTargetOfCopy(to, file.get());
    const RootFolder folder(machinePath(folderOf(to)), RootFolder::Bounds::machine);
    sweepReplacementFiles(folder, "");
    copyWholeFile(describedFile(std::move(file)), folder, utf8Of(lastNameOf(to)));
}

void WindowsFileSystem::deleteFile(const std::string& path)
{
    const std::wstring file = systemPath(path);
    if ((attributesOfFile(file) & FILE_ATTRIBUTE_READONLY) != 0)
        throw RunTimeError(permissionDenied);
    if (!::DeleteFileW(file.c_str())) throw latestError(fileNotFound);
}

void WindowsFileSystem::clearAttributes(const std::string& path)
{
    const std::wstring file = systemPath(path);
    attributesOfFile(file);
    if (!::SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_NORMAL)) throw latestError(fileNotFound);
}

std::unique_ptr<TextReader> WindowsFileSystem::openForReading(const std::string& path) const
{
    const std::wstring file = systemPath(path);
    const auto attributes = attributesOf(file);
    if (!attributes || (*attributes & FILE_ATTRIBUTE_DIRECTORY) != 0)
        throw RunTimeError(missingNumber(file));
    return std::make_unique<TextFileReader>(describedFile(openFile(file, toRead, fileNotFound)));
}

std::unique_ptr<TextWriter> WindowsFileSystem::openForAppending(const std::string& path)
{
    return openForWriting(path, toAppend);
}

std::unique_ptr<TextWriter> WindowsFileSystem::createTextFile(const std::string& path)
{
    return openForWriting(path, toWriteAnew);
}

std::string WindowsFileSystem::specialFolder(SpecialFolder folder) const
{
    std::wstring path(MAX_PATH + 1, L'\0');
    const auto size = static_cast<DWORD>(path.size());
    path.resize(std::min<std::size_t>(folder == SpecialFolder::windows
                                          ? ::GetWindowsDirectoryW(path.data(), size)
                                          : ::GetTempPathW(size, path.data()),
                                      size));
    while (path.ends_with(L'\\')) path.pop_back();
    return utf8Of(path);
}

std::string WindowsFileSystem::longPathName(const std::string& path) const
{
    const std::wstring given = wideOf(path);
    std::wstring longer(::GetLongPathNameW(given.c_str(), nullptr, 0), L'\0');
    longer.resize(std::min<std::size_t>(
        longer.size(),
        ::GetLongPathNameW(given.c_str(), longer.data(), static_cast<DWORD>(longer.size()))));
    return longer.empty() ? path : utf8Of(longer);
}

std::string WindowsFileSystem::driveName(const std::string& path) const
{
    return beginsWithDrive(path) ? path.substr(0, 2) : std::string();
}

DiskSpace WindowsFileSystem::diskSpace(const std::string& drive) const
{
    const std::wstring folder = systemPath(drive);
    ULARGE_INTEGER available{};
    ULARGE_INTEGER total{};
    if (!::GetDiskFreeSpaceExW(folder.c_str(), &available, &total, nullptr))
        throw latestError(pathNotFound);
    return {static_cast<std::int64_t>(available.QuadPart),
            static_cast<std::int64_t>(total.QuadPart)};
}

void WindowsFileSystem::changeDrive(const std::string& drive)
{
    changeCurrentDrive(drive);
}

void WindowsFileSystem::changeFolder(const std::string& path)
{
    changeCurrentFolder(path);
}
