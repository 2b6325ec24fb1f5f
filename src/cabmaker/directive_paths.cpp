#include "cabmaker/directive_paths.h"

#include <filesystem>
#include <system_error>

#include "runtime/run_time_error.h"
#include "runtime/text.h"
#include "runtime/windows_path.h"
#include "system/machine_path.h"

namespace cabmaker {

namespace fs = std::filesystem;

namespace {

[[noreturn]] void refuse(std::string_view path, const std::string& because)
{
    throw RunTimeError(runTimeErrors::pathNotFound, std::string(path) + ": " + because);
}

/// A path without links, below the machine's top: one on a drive as "/C:/x".
std::string canonicalPath(const fs::path& path)
{
    std::error_code error;
    return machineTextOf(fs::weakly_canonical(path, error));
}

std::string folderOfDrives(const std::string& drives, const std::string& workingFolder)
{
    return canonicalPath(filePathOf(workingFolder) / filePathOf(drives));
}

/// Why no path of a drive can be found; empty where there is a folder of drives.
std::string whyNoDrives(const std::string& drives, const std::string& workingFolder)
{
    const std::string variable = "ORVAN_SITE_DRIVES names the folder of the drives";
    if (drives.empty()) return "there are no drives here (" + variable + ")";
    std::error_code error;
    if (fs::is_directory(filePathOf(folderOfDrives(drives, workingFolder)), error)) return {};
    return drives + " is no folder (" + variable + ")";
}

/// The drive of a path of the machine, and the path on it; empty for what lies on none.
std::string onDrive(const std::string& path, const std::string& siteFolder)
{
    const std::string start = siteFolder + "/drive_";
    if (!path.starts_with(start) || path.size() == start.size()) return {};
    const std::string rest = path.substr(start.size() + 1);
    if (!rest.empty() && rest.front() != '/') return {};
    return path[start.size()] + std::string(":") + (rest.empty() ? "/" : rest);
}

} // namespace

DirectivePaths::DirectivePaths(const std::string& drives, const std::string& workingFolder)
    : whyNoDrives_(whyNoDrives(drives, workingFolder)),
      ownFolder_(drives.empty() && machineHasDrives() ? workingFolder : ""),
      paths_(whyNoDrives_.empty() ? folderOfDrives(drives, workingFolder) : "/")
{
    paths_.permit("/");
    const std::string working = canonicalPath(filePathOf(workingFolder));
    const std::string path =
        whyNoDrives_.empty() ? onDrive(working, paths_.siteFolder()) : std::string();
    if (path.empty()) {
        if (!drives.empty()) paths_.permit(working);
        paths_.changeFolder(working);
        return;
    }
    paths_.changeDrive(path.substr(0, 2));
    paths_.changeFolder(path);
}

std::string DirectivePaths::machinePath(std::string_view path) const
{
    if (!ownFolder_.empty())
        return machineTextOf(
            fs::absolute(filePathOf(ownFolder_) / filePathOf(path)).lexically_normal());
    if (beginsWithDrive(path)) {
        if (!whyNoDrives_.empty()) refuse(path, whyNoDrives_);
        if (!paths_.root().isFolder("drive_" + lowerCase(path.substr(0, 1))))
            refuse(path, "the site has no such drive");
    } else if (path.size() >= 2 && path[0] == '\\' && isPathSeparator(path[1])) {
        refuse(path, "there are no network folders here");
    }
    const SitePlace place = paths_.place(path.empty() ? "." : path);
    const std::string name = lastNameOf(place.path);
    const std::string folder = place.root.machinePath(folderPathOf(place.path));
    return name.empty() || folder.back() == '/' ? folder + name : folder + "/" + name;
}

} // namespace cabmaker
