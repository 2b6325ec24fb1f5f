#include "drives/site_paths.h"

#include "runtime/run_time_error.h"
#include "runtime/windows_path.h"
#include "system/machine_path.h"
#include "text/utf8.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>

namespace {

constexpr int deviceUnavailable = 68;

char upper(char c)
{
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c;
}

std::string joined(const std::vector<std::string>& names, std::size_t first = 0)
{
    std::string path;
    for (std::size_t level = first; level < names.size(); ++level)
        path += (path.empty() ? "" : "/") + names[level];
    return path;
}

std::string driveFolder(char drive)
{
    return std::string("drive_") + static_cast<char>(drive + 32);
}

std::string withoutEnd(std::string path)
{
    while (path.size() > 1 && path.back() == '/') path.pop_back();
    return path;
}

bool isWithin(const std::string& path, const std::string& folder)
{
    return path.compare(0, folder.size(), folder) == 0 &&
           (path.size() == folder.size() || path[folder.size()] == '/');
}

bool beginsWithNames(const std::vector<std::string>& path, const std::vector<std::string>& folder)
{
    return path.size() >= folder.size() &&
           std::equal(folder.begin(), folder.end(), path.begin(),
                      [](const std::string& one, const std::string& other) {
                          return foldCase(one) == foldCase(other);
                      });
}

} // namespace

SitePaths::SitePaths(const std::string& siteFolder)
    : siteFolder_(withoutEnd(wholePathOf(siteFolder))), root_(siteFolder_)
{}

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

void SitePaths::permit(std::string_view path)
{
    if (path.empty() || path.front() != '/') return;
    Names names;
    followPath(names, path);
    if (std::find(permitted_.begin(), permitted_.end(), names) == permitted_.end())
        permitted_.push_back(std::move(names));
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

SitePlace SitePaths::placeOf(const Location& location) const
{
    if (const std::string* standIn = standInFor(location))
        return placeOfStandIn(*standIn, location);
    if (location.drive == 0) return placeOfMachine(location.names);
    const std::string drive = driveFolder(location.drive);
    // The person named the site by its name: one that was moved away is there no more.
    const RootFolder site(siteFolder_);
    auto root = site.belowIfThere(drive);
    if (!root) return {site, location.names.empty() ? drive : drive + "/" + joined(location.names)};
    std::string path = root->pathIgnoringCase(location.names);
    return {*std::move(root), std::move(path)};
}

SitePlace SitePaths::placeOfMachine(const Names& names) const
{
    const Names* nearest = nullptr;
    for (const Names& permitted : permitted_)
        if (names.size() >= permitted.size() && (!nearest || permitted.size() > nearest->size()) &&
            std::equal(permitted.begin(), permitted.end(), names.begin()))
            nearest = &permitted;
    const std::string whole = "/" + joined(names);
    if (!nearest)
        throw RunTimeError(runTimeErrors::permissionDenied,
                           "Permission denied: " + whole + " is not on a drive of the site");
    const RootFolder machine("/", RootFolder::Bounds::machine);
    if (nearest->empty()) return {machine, machine.pathIgnoringCase(names)};
    const Names below(names.begin() + static_cast<std::ptrdiff_t>(nearest->size()), names.end());
    const std::string folder = "/" + joined(*nearest);
    if (below.empty() || !machine.isFolder(folder)) return {machine, joined(names)};
    RootFolder root(folder);
    std::string path = root.pathIgnoringCase(below);
    return {std::move(root), std::move(path)};
}

/// What we installed is reached through any links.
SitePlace SitePaths::placeOfStandIn(const std::string& standIn, const Location& location) const
{
    const std::size_t depth = standInFolder_.names.size() + 1;
    const RootFolder machine("/", RootFolder::Bounds::machine);
    const Names below(location.names.begin() + static_cast<std::ptrdiff_t>(depth),
                      location.names.end());
    const auto folder = below.empty() ? std::nullopt : machine.belowIfThere(standIn.substr(1));
    if (folder) return {*folder, folder->pathIgnoringCase(below)};
    return {machine, standIn.substr(1) + (below.empty() ? "" : "/" + joined(below))};
}

SitePlace SitePaths::place(std::string_view path) const
{
    return placeOf(locate(path));
}

std::string SitePaths::machinePath(std::string_view path) const
{
    const SitePlace found = place(path);
    return found.root.machinePath(found.path);
}

bool SitePaths::isOfSite(std::string_view path) const
{
    const Location location = locate(path);
    if (location.drive != 0) return true;
    const SitePlace found = placeOf(location);
    return isWithin(found.root.machinePath(found.path), siteFolder_);
}

bool SitePaths::isRoot(std::string_view path) const
{
    return locate(path).names.empty();
}

std::string SitePaths::currentFolder() const
{
    return machinePath(".");
}

bool SitePaths::isFolder(const Location& location) const
{
    const SitePlace found = placeOf(location);
    return found.root.isFolder(found.path);
}

void SitePaths::changeDrive(std::string_view drive)
{
    if (drive.empty()) return;
    const auto name = driveName(drive);
    if (name.empty() || !root_.isFolder(driveFolder(upper(name.front()))))
        throw RunTimeError(deviceUnavailable, "Device unavailable");
    currentDrive_ = upper(name.front());
}

void SitePaths::changeFolder(std::string_view path)
{
    auto location = locate(path);
    if (!isFolder(location)) throw RunTimeError(runTimeErrors::pathNotFound);
    if (location.drive == 0) currentDrive_ = 0;
    currentFolders_[location.drive] = std::move(location.names);
}
