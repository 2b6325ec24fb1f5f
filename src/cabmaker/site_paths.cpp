#include "cabmaker/site_paths.h"

#include <optional>
#include <system_error>

#include "cabmaker/names.h"
#include "runtime/run_time_error.h"
#include "runtime/windows_path.h"

namespace cabmaker {

namespace fs = std::filesystem;

namespace {

[[noreturn]] void refuse(std::string_view path, const char* because)
{
    throw RunTimeError(runTimeErrors::pathNotFound, std::string(path) + ": " + because);
}

// The name in `folder` that is `name` but for case; the first in order when there are several.
std::optional<std::string> nameWithoutCase(const fs::path& folder, const std::string& name)
{
    const std::string wanted = foldedName(name);
    std::optional<std::string> found;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        std::string candidate = entry->path().filename().string();
        if (foldedName(candidate) == wanted && (!found || candidate < *found))
            found = std::move(candidate);
    }
    return found;
}

} // namespace

SitePaths::SitePaths(const std::string& drives, const std::string& workingFolder)
{
    std::error_code error;
    const fs::path working = fs::weakly_canonical(workingFolder, error);
    working_ = {"/", {}};
    if (!drives.empty()) {
        drives_ = fs::weakly_canonical(fs::path(workingFolder) / drives, error);
        const std::string relative = working.lexically_relative(drives_).string();
        const std::string_view drive = std::string_view(relative).substr(0, relative.find('/'));
        if (drive.size() == 7 && foldedName(drive).starts_with("drive_")) {
            working_.top = drives_ / drive;
            followPath(working_.names, std::string_view(relative).substr(drive.size()));
            return;
        }
    }
    followPath(working_.names, working.string());
}

std::string SitePaths::machinePath(std::string_view path) const
{
    const Way way = wayOf(path);
    fs::path result = way.top;
    bool exists = true;
    for (const std::string& name : way.names) {
        std::error_code error;
        if (exists && !fs::exists(fs::symlink_status(result / name, error))) {
            const auto found = nameWithoutCase(result, name);
            exists = found.has_value();
            result /= found.value_or(name);
        } else {
            result /= name;
        }
    }
    return result.string();
}

SitePaths::Way SitePaths::wayOf(std::string_view path) const
{
    Way way;
    if (beginsWithDrive(path)) {
        if (path.size() > 2 && !isPathSeparator(path[2]))
            refuse(path, "a path on a drive begins at its top, as in C:\\");
        way.top = driveTop(path);
        path.remove_prefix(2);
    } else if (path.size() >= 2 && path[0] == '\\' && isPathSeparator(path[1])) {
        refuse(path, "there are no network folders here");
    } else if (!path.empty() && path[0] == '/') {
        way.top = "/";
    } else if (!path.empty() && path[0] == '\\') {
        way.top = working_.top;
    } else {
        way = working_;
    }
    followPath(way.names, path);
    return way;
}

fs::path SitePaths::driveTop(std::string_view path) const
{
    if (drives_.empty())
        refuse(path, "there are no drives here (ORVAN_SITE_DRIVES names the folder of the drives)");
    fs::path top = drives_ / ("drive_" + foldedName(path.substr(0, 1)));
    std::error_code error;
    if (!fs::is_directory(top, error)) refuse(path, "the site has no such drive");
    return top;
}

} // namespace cabmaker
