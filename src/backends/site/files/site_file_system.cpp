#include "backends/site/files/site_file_system.h"

#include "backends/site/files/file_pattern.h"
#include "backends/site/files/file_times.h"
#include "backends/site/files/folder_listing.h"
#include "backends/site/files/site_text_reader.h"
#include "backends/site/files/site_text_writer.h"
#include "system/system_error.h"
#include "system/whole_file.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>
#include <utility>

namespace {

using namespace runTimeErrors;

constexpr int deviceUnavailable = 68;

/// Whether an error says that nothing is there, and not that nobody may see what is.
bool saysNothingThere(int error)
{
    return error == fileNotFound || error == pathNotFound || error == deviceUnavailable;
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
std::size_t startOfLastName(const std::string& path)
{
    const auto separator = path.find_last_of("\\/");
    if (separator != std::string::npos) return separator + 1;
    return SitePaths::driveName(path).size();
}

struct stat factsOf(const FileDescriptor& file)
{
    struct stat facts {};
    if (::fstat(file.get(), &facts) != 0) throw systemError(errno, deviceIo);
    return facts;
}

/// A plain file as it is found, for its facts alone. Raises 53, and 70 for what is neither file nor
/// folder.
FileDescriptor existingFile(const SitePlace& place)
{
    FileDescriptor file = place.root.open(place.path, O_PATH);
    if (!file.isOpen()) place.root.fail(place.path, fileNotFound);
    const mode_t mode = factsOf(file).st_mode;
    if (S_ISDIR(mode)) throw RunTimeError(fileNotFound);
    if (!S_ISREG(mode)) throw RunTimeError(permissionDenied);
    return file;
}

std::string below(const std::string& folder, const std::string& name)
{
    return folder.empty() ? name : folder + "/" + name;
}

/// A folder whose entries are looked at one by one.
class Listing {
public:
    Listing(const SitePlace& place, const SitePaths::StandIns& standIns)
        : place_(place), standIns_(standIns), folder_(place.root.open(place.path, O_PATH))
    {}

    /// The facts of an entry, and of what a link leads to that stays inside; a mode of 0 for what
    /// is out of reach, or gone since the listing.
    struct stat factsOf(const std::string& name)
    {
        struct stat facts {};
        unseen_ = 0;
        target_ = FileDescriptor();
        if (const auto standIn = standIns_.find(name); standIn != standIns_.end()) {
            target_ = FileDescriptor(::open(standIn->second.c_str(), O_PATH | O_CLOEXEC));
        } else if (::fstatat(folder_.get(), name.c_str(), &facts, AT_SYMLINK_NOFOLLOW) == 0) {
            if (!S_ISLNK(facts.st_mode)) return facts;
            target_ = place_.root.open(below(place_.path, name), O_PATH);
        } else if (errno != ENOENT) {
            unseen_ = errno;
        }
        if (!target_.isOpen() || ::fstat(target_.get(), &facts) != 0) facts.st_mode = 0;
        return facts;
    }

    /// Why the machine would not tell the facts of the last `factsOf`; 0 when it did, for what has
    /// gone since the listing, and for a link that can't be followed.
    int unseen() const { return unseen_; }

    /// Where the entry of the last `factsOf` is: a descriptor, and the name in it.
    std::pair<int, std::string> entry(const std::string& name) const
    {
        if (target_.isOpen()) return {target_.get(), {}};
        return {folder_.get(), name};
    }

private:
    const SitePlace& place_;
    const SitePaths::StandIns& standIns_;
    FileDescriptor folder_;
    FileDescriptor target_;
    int unseen_ = 0;
};

/// What lies in a folder of a site, and what stands in for what does not.
std::vector<std::string> unsortedNames(const SitePlace& place, const SitePaths::StandIns& standIns)
{
    std::vector<std::string> names;
    if (standIns.empty() || place.root.isFolder(place.path)) names = place.root.names(place.path);
    for (const auto& standIn : standIns) names.push_back(standIn.first);
    return names;
}

} // namespace

SiteFileSystem::SiteFileSystem(SitePaths& paths, PosixTimeZone zone)
    : paths_(paths), zone_(std::move(zone))
{}

bool SiteFileSystem::fileExists(const std::string& path) const
{
    try {
        const SitePlace place = paths_.place(path);
        return place.root.isFile(place.path);
    } catch (const RunTimeError&) {
        return false;
    }
}

bool SiteFileSystem::folderExists(const std::string& path) const
{
    try {
        const SitePlace place = paths_.place(path);
        return place.root.isFolder(place.path);
    } catch (const RunTimeError&) {
        return false;
    }
}

FileInfo SiteFileSystem::describe(int folder, const std::string& nameInFolder, std::string name,
                                  const struct stat& facts) const
{
    FileInfo info;
    info.folder = S_ISDIR(facts.st_mode);
    info.size = info.folder ? 0 : facts.st_size;
    info.readOnly = isReadOnly(facts.st_mode);
    info.modified = localDate(zone_, facts.st_mtim.tv_sec);
    info.created = creationTime(folder, nameInFolder, name, zone_, info.modified);
    info.name = std::move(name);
    return info;
}

FileInfo SiteFileSystem::file(const std::string& path) const
{
    const SitePlace place = paths_.place(path);
    const FileDescriptor found = existingFile(place);
    return describe(found.get(), {}, lastNameOf(place.path), factsOf(found));
}

std::int64_t SiteFileSystem::folderSize(const std::string& path) const
{
    const SitePlace place = paths_.place(path);
    return place.root.size(place.path);
}

/// Whether a folder is there to be listed. Raises 70, 57 where that can't be told: a folder that
/// nobody may see is not an empty one.
bool SiteFileSystem::hasFolder(const std::string& path) const
try {
    const SitePlace place = paths_.place(path);
    const auto facts = place.root.facts(place.path);
    return facts && S_ISDIR(facts->st_mode);
} catch (const RunTimeError& error) {
    if (saysNothingThere(error.number())) return false;
    throw;
}

/// Names in a folder, and of what stands in for its missing contents. Raises 76.
std::vector<std::string> SiteFileSystem::namesIn(const SitePlace& place,
                                                 const std::string& folder) const
{
    return sortedNames(unsortedNames(place, paths_.standInsOf(folder)));
}

std::vector<FileInfo> SiteFileSystem::entries(const std::string& folder) const
{
    const SitePlace place = paths_.place(folder);
    Listing listing(place, paths_.standInsOf(folder));
    std::vector<FileInfo> found;
    for (auto& name : namesIn(place, folder)) {
        const auto facts = listing.factsOf(name);
        if (listing.unseen() != 0) throw systemError(listing.unseen(), pathNotFound);
        if (!S_ISREG(facts.st_mode) && !S_ISDIR(facts.st_mode)) continue;
        const auto [where, nameThere] = listing.entry(name);
        found.push_back(describe(where, nameThere, std::move(name), facts));
    }
    return found;
}

std::vector<std::string> SiteFileSystem::matching(const std::string& pattern) const
{
    const auto lastName = startOfLastName(pattern);
    const auto folder = lastName == 0 ? "." : pattern.substr(0, lastName);
    const FilePattern wanted(std::string_view(pattern).substr(lastName));
    std::vector<std::string> found;
    const auto& standIns = paths_.standInsOf(folder);
    if (standIns.empty() && !hasFolder(folder)) return found;
    const SitePlace place = paths_.place(folder);
    Listing listing(place, standIns);
    std::vector<std::string> names = unsortedNames(place, standIns);
    std::erase_if(names, [&](const std::string& name) { return !wanted.matches(name); });
    for (auto& name : sortedNames(std::move(names))) {
        // A file that nobody can look at is listed: who goes on to it hears why.
        if (S_ISREG(listing.factsOf(name).st_mode) || listing.unseen() != 0)
            found.push_back(std::move(name));
    }
    return found;
}

void SiteFileSystem::createFolder(const std::string& path)
{
    const SitePlace place = paths_.place(path);
    place.root.makeFolder(place.path);
}

void SiteFileSystem::createPrivateFolder(const std::string& path)
{
    const SitePlace place = paths_.place(path);
    place.root.makeFolder(place.path, 0700);
}

void SiteFileSystem::removeFolder(const std::string& path)
{
    const SitePlace place = paths_.place(path);
    if (paths_.isRoot(path)) throw RunTimeError(permissionDenied);
    place.root.removeEmptyFolder(place.path);
}

void SiteFileSystem::copyFile(const std::string& source, const std::string& target)
{
    const SitePlace from = paths_.place(source);
    existingFile(from);
    const FileDescriptor file = from.root.openFile(from.path, O_RDONLY, fileNotFound);
    const SitePlace to = paths_.place(target);
    if (const auto there = to.root.ownFacts(to.path)) {
        const auto facts = factsOf(file);
        const bool same = facts.st_dev == there->st_dev && facts.st_ino == there->st_ino;
        if (same || !S_ISREG(there->st_mode) || isReadOnly(there->st_mode))
            throw RunTimeError(permissionDenied);
    }
    sweepReplacementFiles(to.root, folderPathOf(to.path));
    copyWholeFile(file, to.root, to.path);
}

void SiteFileSystem::deleteFile(const std::string& path)
{
    const SitePlace place = paths_.place(path);
    if (isReadOnly(factsOf(existingFile(place)).st_mode)) throw RunTimeError(permissionDenied);
    place.root.removeFile(place.path);
}

void SiteFileSystem::clearAttributes(const std::string& path)
{
    const FileDescriptor file = existingFile(paths_.place(path));
    const auto mode = factsOf(file).st_mode & 07777;
    // By its descriptor, as the name could be another file's by now; the file may not be readable.
    const std::string itself = "/proc/self/fd/" + std::to_string(file.get());
    const mode_t ordinary = 0666 & ~fileModeMask();
    if (::chmod(itself.c_str(), mode | ordinary | S_IRUSR | S_IWUSR) != 0)
        throw systemError(errno, fileNotFound);
}

std::unique_ptr<TextReader> SiteFileSystem::openForReading(const std::string& path) const
{
    const SitePlace place = paths_.place(path);
    const bool folderThere = place.root.isFolder(folderPathOf(place.path));
    return std::make_unique<SiteTextReader>(
        place.root.openFile(place.path, O_RDONLY, folderThere ? fileNotFound : pathNotFound));
}

std::unique_ptr<TextWriter> SiteFileSystem::openForWriting(const std::string& path, int flags) const
{
    const SitePlace place = paths_.place(path);
    FileDescriptor file = place.root.openFile(place.path, O_WRONLY | O_CREAT | flags, pathNotFound);
    const auto facts = factsOf(file);
    if (isReadOnly(facts.st_mode)) throw RunTimeError(permissionDenied);
    if (flags != O_APPEND && facts.st_nlink > 1) {
        // The file's other names, perhaps those of a backup, keep what it holds.
        place.root.removeFile(place.path);
        file = place.root.openFile(place.path, O_WRONLY | O_CREAT | O_EXCL, pathNotFound);
    } else if (flags != O_APPEND && ::ftruncate(file.get(), 0) != 0) {
        throw systemError(errno, deviceIo);
    }
    return std::make_unique<SiteTextWriter>(std::move(file));
}

std::unique_ptr<TextWriter> SiteFileSystem::openForAppending(const std::string& path)
{
    return openForWriting(path, O_APPEND);
}

std::unique_ptr<TextWriter> SiteFileSystem::createTextFile(const std::string& path)
{
    return openForWriting(path, O_NOFOLLOW);
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
    const SitePlace place = paths_.place(drive);
    const FileDescriptor folder = place.root.open(place.path, O_PATH);
    if (!folder.isOpen()) place.root.fail(place.path, pathNotFound);
    if (::fstatvfs(folder.get(), &facts) != 0) throw systemError(errno, pathNotFound);
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
