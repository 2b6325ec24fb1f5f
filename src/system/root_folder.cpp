#include "system/root_folder.h"

#include "system/slash_paths.h"
#include "system/system_error.h"

#include <cerrno>
#include <filesystem>
#include <utility>

namespace {

/// What parts the names of a path: on some machines there are two.
constexpr char separators[] = {'/', static_cast<char>(std::filesystem::path::preferred_separator),
                               '\0'};

} // namespace

std::string joinedPath(const std::string& folder, const std::string& name)
{
    if (folder.empty() || name.empty()) return folder + name;
    return folder + (folder.back() == '/' ? "" : "/") + name;
}

std::string lastNameOf(const std::string& path)
{
    return path.substr(path.find_last_of(separators) + 1);
}

std::string folderPathOf(const std::string& path)
{
    const auto separator = path.find_last_of(separators);
    return separator == std::string::npos ? std::string() : path.substr(0, separator);
}

RootFolder::RootFolder(std::shared_ptr<FileDescriptor> folder, std::string path, Bounds bounds)
    : folder_(std::move(folder)), path_(std::move(path)), bounds_(bounds)
{}

std::string RootFolder::shown(const std::string& path) const
{
    return joinedPath(path_, path);
}

void RootFolder::makeFolders(const std::string& path) const
{
    if (path.empty() || isFolder(path)) return;
    makeFolders(folderPathOf(path));
    try {
        makeFolder(path);
    } catch (const RunTimeError& error) {
        if (error.number() != runTimeErrors::fileAlreadyExists || !isFolder(path)) throw;
    }
}

void RootFolder::fail(const std::string& path, int missing) const
{
    const int error = errno;
    if (error == EXDEV)
        throw RunTimeError(runTimeErrors::permissionDenied,
                           "Permission denied: " + shown(path) + " leads out of the site");
    if (error == ELOOP)
        throw RunTimeError(runTimeErrors::permissionDenied,
                           "Permission denied: " + shown(path) + " is a link that is not followed");
    throw systemError(error, missing);
}
