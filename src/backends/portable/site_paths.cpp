#include "backends/portable/site_paths.h"

#include "backends/portable/folder_listing.h"
#include "backends/portable/posix_errors.h"
#include "backends/portable/utf8.h"
#include "runtime/windows_path.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <dirent.h>
#include <filesystem>
#include <memory>
#include <optional>
#include <sys/stat.h>
#include <utility>

namespace {

constexpr int deviceUnavailable = 68;

char upper(char c)
{
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c;
}

/// The name in a folder that differs from `wanted` in case alone.
std::optional<std::string> nameIgnoringCase(const std::string& folder, const std::string& wanted)
{
    const std::unique_ptr<DIR, int (*)(DIR*)> listing(
        ::opendir(folder.empty() ? "/" : folder.c_str()), ::closedir);
    if (!listing) return {};
    const auto folded = foldCase(wanted);
    std::optional<std::string> found;
    while (const dirent* entry = ::readdir(listing.get())) {
        const std::string_view name = entry->d_name;
        if ((!found || name < *found) && foldCase(name) == folded) found = name;
    }
    return found;
}

std::string realPath(const std::string& path)
{
    const std::unique_ptr<char, void (*)(void*)> real(::realpath(path.c_str(), nullptr), std::free);
    return real ? std::string(real.get()) : std::string();
}

bool isWithin(const std::string& path, const std::string& folder)
{
    return path.compare(0, folder.size(), folder) == 0 &&
           (path.size() == folder.size() || path[folder.size()] == '/');
}

/// What a link in a drive leads to.
std::string followLink(const std::string& link, const std::string& drive)
{
    auto real = realPath(link);
    if (real.empty() || !isWithin(real, realPath(drive)))
        throw RunTimeError(runTimeErrors::permissionDenied,
                           "Permission denied: " + link + " leads out of the site");
    return real;
}

bool beginsWithNames(const std::vector<std::string>& path, const std::vector<std::string>& folder)
{
    return path.size() >= folder.size() &&
           std::equal(folder.begin(), folder.end(), path.begin(),
                      [](const std::string& one, const std::string& other) {
                          return foldCase(one) == foldCase(other);
                      });
}

bool isLink(const std::string& path, bool& exists)
{
    struct stat facts {};
    exists = ::lstat(path.c_str(), &facts) == 0;
    return exists && S_ISLNK(facts.st_mode);
}

} // namespace

SitePaths::SitePaths(const std::string& siteFolder)
    : siteFolder_(std::filesystem::absolute(siteFolder).string())
{
    while (siteFolder_.size() > 1 && siteFolder_.back() == '/') siteFolder_.pop_back();
}

std::string SitePaths::driveName(std::string_view path)
{
    return beginsWithDrive(path) ? std::string(path.substr(0, 2)) : std::string();
}

SitePaths::Location SitePaths::locate(std::string_view path) const
{
    if (path.empty() || path.find('\0') != std::string_view::npos)
        throw RunTimeError(runTimeErrors::badFileNumber);
    Location location{currentDrive_, {}};
    bool whole = isPathSeparator(path.front());
    if (path.front() == '/') {
        location.drive = 0;
    } else if (path.size() >= 2 && path[0] == '\\' && isPathSeparator(path[1])) {
        throw RunTimeError(runTimeErrors::pathNotFound);
    } else if (beginsWithDrive(path)) {
        location.drive = upper(path.front());
        path.remove_prefix(2);
        whole = !path.empty() && isPathSeparator(path.front());
    }
    if (const auto current = currentFolders_.find(location.drive);
        !whole && current != currentFolders_.end())
        location.names = current->second;

    followPath(location.names, path);
    return location;
}

std::string SitePaths::driveFolder(char drive) const
{
    if (drive == 0) return {};
    return siteFolder_ + "/drive_" + static_cast<char>(drive + 32);
}

void SitePaths::standIn(std::string_view folder, StandIns standIns)
{
    standInFolder_ = locate(folder);
    standIns_ = std::move(standIns);
}

const SitePaths::StandIns& SitePaths::standInsOf(std::string_view folder) const
{
    static const StandIns none;
    if (standIns_.empty()) return none;
    const Location location = locate(folder);
    const bool same = location.names.size() == standInFolder_.names.size() &&
                      beginsWithNames(location.names, standInFolder_.names);
    return same && location.drive == standInFolder_.drive ? standIns_ : none;
}

/// What stands in for the file or folder that a path leads to or through; null for none.
const std::string* SitePaths::standInFor(const Location& location) const
{
    const std::size_t depth = standInFolder_.names.size();
    if (standIns_.empty() || location.drive != standInFolder_.drive ||
        location.names.size() <= depth || !beginsWithNames(location.names, standInFolder_.names))
        return nullptr;
    const std::string wanted = foldCase(location.names[depth]);
    for (const auto& [name, machinePath] : standIns_)
        if (foldCase(name) == wanted) return &machinePath;
    return nullptr;
}

std::string SitePaths::machinePathOf(const Location& location) const
{
    const std::string* standIn = standInFor(location);
    const bool onDrive = location.drive != 0 && standIn == nullptr;
    const auto drive = driveFolder(location.drive);
    std::string path = standIn ? *standIn : drive;
    bool exists = true;
    const auto first = standIn ? standInFolder_.names.size() + 1 : 0;
    for (std::size_t level = first; level < location.names.size(); ++level) {
        const auto& name = location.names[level];
        std::string next = pathIn(path, name);
        bool link = false;
        if (exists) {
            link = isLink(next, exists);
            const auto other =
                exists || errno != ENOENT ? std::nullopt : nameIgnoringCase(path, name);
            if (other) {
                next = pathIn(path, *other);
                link = isLink(next, exists);
            }
        }
        path = link && onDrive ? followLink(next, drive) : next;
    }
    return path.empty() ? "/" : path;
}

std::string SitePaths::machinePath(std::string_view path) const
{
    return machinePathOf(locate(path));
}

bool SitePaths::isOfSite(std::string_view path) const
{
    const Location location = locate(path);
    return location.drive != 0 || isWithin(machinePathOf(location), siteFolder_);
}

bool SitePaths::isRoot(std::string_view path) const
{
    return locate(path).names.empty();
}

std::string SitePaths::currentFolder() const
{
    return machinePathOf(locate("."));
}

void SitePaths::changeDrive(std::string_view drive)
{
    if (drive.empty()) return;
    const auto name = driveName(drive);
    struct stat facts {};
    if (name.empty() || ::stat(driveFolder(upper(name.front())).c_str(), &facts) != 0 ||
        !S_ISDIR(facts.st_mode))
        throw RunTimeError(deviceUnavailable, "Device unavailable");
    currentDrive_ = upper(name.front());
}

void SitePaths::changeFolder(std::string_view path)
{
    auto location = locate(path);
    struct stat facts {};
    if (::stat(machinePathOf(location).c_str(), &facts) != 0 || !S_ISDIR(facts.st_mode))
        throw RunTimeError(runTimeErrors::pathNotFound);
    if (location.drive == 0) currentDrive_ = 0;
    currentFolders_[location.drive] = std::move(location.names);
}
