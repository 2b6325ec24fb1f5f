#include "backends/portable/site_file_system.h"

#include "backends/portable/file_pattern.h"
#include "backends/portable/file_times.h"
#include "backends/portable/folder_listing.h"
#include "backends/portable/posix_errors.h"
#include "backends/portable/site_text_reader.h"
#include "backends/portable/site_text_writer.h"
#include "backends/portable/whole_file.h"

#include <cerrno>
#include <cstdlib>
#include <fstream>
#include <sys/statvfs.h>
#include <unistd.h>
#include <utility>

namespace {

using namespace runTimeErrors;

struct stat factsOf(const std::string& machinePath, int missing)
{
    struct stat facts {};
    if (::stat(machinePath.c_str(), &facts) != 0) throw posixError(errno, missing);
    return facts;
}

/// The facts of what a path leads to; nothing there, or no way there, gives a mode of 0.
mode_t modeOf(const SitePaths& paths, const std::string& path)
{
    try {
        struct stat facts {};
        return ::stat(paths.machinePath(path).c_str(), &facts) == 0 ? facts.st_mode : 0;
    } catch (const RunTimeError&) {
        return 0;
    }
}

bool isReadOnly(mode_t mode)
{
    return (mode & S_IWUSR) == 0;
}

/// What the user's settings keep from new files. To ask the system itself would change them for a
/// moment, for every thread.
mode_t fileModeMask()
{
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.rfind("Umask:", 0) == 0)
            return static_cast<mode_t>(std::strtoul(line.c_str() + 6, nullptr, 8));
    return 0077;
}

/// Where the last name of a path begins.
std::size_t lastNameOf(const std::string& path)
{
    const auto separator = path.find_last_of("\\/");
    if (separator != std::string::npos) return separator + 1;
    return SitePaths::driveName(path).size();
}

} // namespace

SiteFileSystem::SiteFileSystem(SitePaths& paths, PosixTimeZone zone)
    : paths_(paths), zone_(std::move(zone))
{}

bool SiteFileSystem::fileExists(const std::string& path) const
{
    return S_ISREG(modeOf(paths_, path));
}

bool SiteFileSystem::folderExists(const std::string& path) const
{
    return S_ISDIR(modeOf(paths_, path));
}

/// Where a plain file lies. Raises 53.
std::string SiteFileSystem::existingFile(const std::string& path) const
{
    auto machinePath = paths_.machinePath(path);
    if (S_ISDIR(factsOf(machinePath, fileNotFound).st_mode)) throw RunTimeError(fileNotFound);
    return machinePath;
}

FileInfo SiteFileSystem::describe(const std::string& machinePath, std::string name,
                                  const struct stat& facts) const
{
    FileInfo info;
    info.folder = S_ISDIR(facts.st_mode);
    info.size = info.folder ? 0 : facts.st_size;
    info.readOnly = isReadOnly(facts.st_mode);
    info.modified = localDate(zone_, facts.st_mtim.tv_sec);
    info.created = creationTime(machinePath, name, zone_, info.modified);
    info.name = std::move(name);
    return info;
}

FileInfo SiteFileSystem::file(const std::string& path) const
{
    const auto machinePath = existingFile(path);
    return describe(machinePath, machinePath.substr(machinePath.rfind('/') + 1),
                    factsOf(machinePath, fileNotFound));
}

std::int64_t SiteFileSystem::folderSize(const std::string& path) const
{
    return sizeOfFolder(paths_.machinePath(path));
}

/// Names in a folder, and of what stands in for its missing contents. Raises 76.
std::vector<std::string> SiteFileSystem::namesIn(const std::string& folder) const
{
    const auto machineFolder = paths_.machinePath(folder);
    const auto& standIns = paths_.standInsOf(folder);
    if (standIns.empty()) return namesInFolder(machineFolder);
    std::vector<std::string> names;
    if (folderExists(folder)) names = namesInFolder(machineFolder);
    for (const auto& standIn : standIns) names.push_back(standIn.first);
    return sortedNames(std::move(names));
}

std::vector<FileInfo> SiteFileSystem::entries(const std::string& folder) const
{
    const auto machineFolder = paths_.machinePath(folder);
    const auto& standIns = paths_.standInsOf(folder);
    std::vector<FileInfo> found;
    for (auto& name : namesIn(folder)) {
        struct stat facts {};
        const auto standIn = standIns.find(name);
        auto path = standIn == standIns.end() ? pathIn(machineFolder, name) : standIn->second;
        if (::lstat(path.c_str(), &facts) != 0) continue; // gone since the listing
        if (S_ISLNK(facts.st_mode)) {
            if (modeOf(paths_, std::string(folder).append("\\").append(name)) == 0) continue;
            ::stat(path.c_str(), &facts);
        }
        if (S_ISREG(facts.st_mode) || S_ISDIR(facts.st_mode))
            found.push_back(describe(path, std::move(name), facts));
    }
    return found;
}

std::vector<std::string> SiteFileSystem::matching(const std::string& pattern) const
{
    const auto lastName = lastNameOf(pattern);
    const auto folder = lastName == 0 ? "." : pattern.substr(0, lastName);
    const FilePattern wanted(std::string_view(pattern).substr(lastName));
    std::vector<std::string> found;
    const auto& standIns = paths_.standInsOf(folder);
    if (standIns.empty() && !folderExists(folder)) return found;
    const auto machineFolder = paths_.machinePath(folder);
    for (auto& name : namesIn(folder)) {
        if (!wanted.matches(name)) continue;
        struct stat facts {};
        const auto standIn = standIns.find(name);
        const auto path = standIn == standIns.end() ? pathIn(machineFolder, name) : standIn->second;
        if (::lstat(path.c_str(), &facts) != 0) continue;
        if (S_ISREG(facts.st_mode) ||
            (S_ISLNK(facts.st_mode) && fileExists(std::string(folder).append("\\").append(name))))
            found.push_back(std::move(name));
    }
    return found;
}

void SiteFileSystem::createFolder(const std::string& path)
{
    if (::mkdir(paths_.machinePath(path).c_str(), 0777) != 0) throw posixError(errno, pathNotFound);
}

void SiteFileSystem::createPrivateFolder(const std::string& path)
{
    if (::mkdir(paths_.machinePath(path).c_str(), 0700) != 0) throw posixError(errno, pathNotFound);
}

void SiteFileSystem::removeFolder(const std::string& path)
{
    const auto machinePath = paths_.machinePath(path);
    if (paths_.isRoot(path)) throw RunTimeError(permissionDenied);
    if (::rmdir(machinePath.c_str()) != 0) throw posixError(errno, pathNotFound);
}

void SiteFileSystem::copyFile(const std::string& source, const std::string& target)
{
    const auto from = existingFile(source);
    const auto to = paths_.machinePath(target);
    struct stat there {};
    if (::lstat(to.c_str(), &there) == 0) {
        const auto facts = factsOf(from, fileNotFound);
        const bool same = facts.st_dev == there.st_dev && facts.st_ino == there.st_ino;
        if (same || !S_ISREG(there.st_mode) || isReadOnly(there.st_mode))
            throw RunTimeError(permissionDenied);
    }
    copyWholeFile(from, to);
}

void SiteFileSystem::deleteFile(const std::string& path)
{
    const auto machinePath = existingFile(path);
    if (isReadOnly(factsOf(machinePath, fileNotFound).st_mode))
        throw RunTimeError(permissionDenied);
    if (::unlink(machinePath.c_str()) != 0) throw posixError(errno, fileNotFound);
}

void SiteFileSystem::clearAttributes(const std::string& path)
{
    const auto machinePath = existingFile(path);
    const auto mode = factsOf(machinePath, fileNotFound).st_mode & 07777;
    const mode_t ordinary = 0666 & ~fileModeMask();
    if (::chmod(machinePath.c_str(), mode | ordinary | S_IRUSR | S_IWUSR) != 0)
        throw posixError(errno, fileNotFound);
}

std::unique_ptr<TextReader> SiteFileSystem::openForReading(const std::string& path) const
{
    const auto machinePath = paths_.machinePath(path);
    const auto parent = machinePath.substr(0, machinePath.rfind('/') + 1);
    struct stat facts {};
    if (::stat(parent.c_str(), &facts) != 0) throw posixError(errno, pathNotFound);
    return std::make_unique<SiteTextReader>(machinePath);
}

std::unique_ptr<TextWriter> SiteFileSystem::openForAppending(const std::string& path)
{
    return std::make_unique<SiteTextWriter>(paths_.machinePath(path), SiteTextWriter::Mode::append);
}

std::unique_ptr<TextWriter> SiteFileSystem::createTextFile(const std::string& path)
{
    return std::make_unique<SiteTextWriter>(paths_.machinePath(path), SiteTextWriter::Mode::create);
}

std::string SiteFileSystem::specialFolder(SpecialFolder folder) const
{
    return folder == SpecialFolder::windows ? "C:\\Windows" : "C:\\Temp";
}

std::string SiteFileSystem::longPathName(const std::string& path) const
{
    return path;
}

std::string SiteFileSystem::driveName(const std::string& path) const
{
    return SitePaths::driveName(path);
}

DiskSpace SiteFileSystem::diskSpace(const std::string& drive) const
{
    struct statvfs facts {};
    if (::statvfs(paths_.machinePath(drive).c_str(), &facts) != 0)
        throw posixError(errno, pathNotFound);
    const auto blockSize = static_cast<std::int64_t>(facts.f_frsize);
    return {static_cast<std::int64_t>(facts.f_bavail) * blockSize,
            static_cast<std::int64_t>(facts.f_blocks) * blockSize};
}

void SiteFileSystem::changeDrive(const std::string& drive)
{
    paths_.changeDrive(drive);
}

void SiteFileSystem::changeFolder(const std::string& path)
{
    paths_.changeFolder(path);
}
