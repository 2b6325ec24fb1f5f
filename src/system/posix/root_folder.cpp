#include "system/root_folder.h"

#include "system/posix/open_beneath.h"
#include "system/posix/permissions.h"
#include "system/posix/stat_facts.h"
#include "system/slash_paths.h"
#include "system/system_error.h"
#include "text/utf8.h"

#include <cerrno>
#include <climits>
#include <dirent.h>
#include <fcntl.h>
#include <string_view>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>
#include <utility>

namespace {

using namespace runTimeErrors;

constexpr int folderFlags = O_PATH | O_DIRECTORY | O_CLOEXEC;
constexpr int listingFlags = O_RDONLY | O_DIRECTORY | O_CLOEXEC;

int flagsOf(const FileOpening& opening)
{
    // What is no plain file is not waited for: a pipe has a writer, or none, that does not come.
    int flags = O_NONBLOCK | O_NOCTTY;
    switch (opening.access) {
    case FileAccess::read:
        flags |= O_RDONLY;
        break;
    case FileAccess::write:
        flags |= O_WRONLY;
        break;
    case FileAccess::append:
        flags |= O_WRONLY | O_APPEND;
        break;
    case FileAccess::readAndWrite:
        flags |= O_RDWR;
        break;
    case FileAccess::readAndAppend:
        flags |= O_RDWR | O_APPEND;
        break;
    }
    if (opening.creation != Creation::never) flags |= O_CREAT;
    if (opening.creation == Creation::always) flags |= O_EXCL;
    if (opening.lastLink == LastLink::refused) flags |= O_NOFOLLOW;
    return flags;
}

/// Refuses what is no plain file; `file` is not open where the system opens no such thing.
FileDescriptor requirePlain(FileDescriptor file, const std::string& shown)
{
    struct stat facts {};
    if (!file.isOpen() || ::fstat(file.get(), &facts) != 0 ||
        (!S_ISREG(facts.st_mode) && !S_ISDIR(facts.st_mode)))
        throw RunTimeError(permissionDenied, "Permission denied: " + shown + " is no plain file");
    if (S_ISDIR(facts.st_mode)) throw RunTimeError(permissionDenied);
    return file;
}

/// Whether a failed opening says that there is something, and no file.
bool isNoFile(int error)
{
    return error == ENXIO || error == ENODEV;
}

/// Names in an open folder, without "." and "..". Raises 76, 70.
std::vector<std::string> namesOf(FileDescriptor folder)
{
    if (!folder.isOpen()) throw systemError(errno, pathNotFound);
    const std::unique_ptr<DIR, int (*)(DIR*)> listing(::fdopendir(folder.get()), ::closedir);
    if (!listing) throw systemError(errno, pathNotFound);
    folder.release();
    std::vector<std::string> names;
    for (;;) {
        errno = 0;
        const dirent* entry = ::readdir(listing.get());
        if (entry == nullptr && errno != 0) throw systemError(errno, pathNotFound);
        if (entry == nullptr) return names;
        const std::string_view name = entry->d_name;
        if (name != "." && name != "..") names.emplace_back(name);
    }
}

FileDescriptor openListing(int folder, const std::string& name)
{
    return FileDescriptor(::openat(folder, name.c_str(), listingFlags | O_NOFOLLOW));
}

std::int64_t sizeOf(FileDescriptor folder)
{
    std::int64_t size = 0;
    FileDescriptor present(::fcntl(folder.get(), F_DUPFD_CLOEXEC, 0));
    for (const auto& name : namesOf(std::move(folder))) {
        struct stat facts {};
        if (::fstatat(present.get(), name.c_str(), &facts, AT_SYMLINK_NOFOLLOW) != 0)
            continue; // gone since the listing
        if (S_ISREG(facts.st_mode)) size += facts.st_size;
        if (S_ISDIR(facts.st_mode)) size += sizeOf(openListing(present.get(), name));
    }
    return size;
}

void removeContents(FileDescriptor folder)
{
    FileDescriptor present(::fcntl(folder.get(), F_DUPFD_CLOEXEC, 0));
    for (const auto& name : namesOf(std::move(folder))) {
        struct stat facts {};
        if (::fstatat(present.get(), name.c_str(), &facts, AT_SYMLINK_NOFOLLOW) != 0)
            throw systemError(errno, pathNotFound);
        const bool isFolder = S_ISDIR(facts.st_mode);
        if (isFolder) removeContents(openListing(present.get(), name));
        if (S_ISREG(facts.st_mode) && (facts.st_mode & S_IWUSR) == 0)
            throw RunTimeError(permissionDenied);
        if (::unlinkat(present.get(), name.c_str(), isFolder ? AT_REMOVEDIR : 0) != 0)
            throw systemError(errno, pathNotFound);
    }
}

/// Whether the system's error says that nothing is there, or that nobody may look: a name may lead
/// on there all the same. Any other says that the machine failed.
bool isAnAnswer(int error)
{
    return error == ENOENT || error == ENOTDIR || error == EACCES || error == ENAMETOOLONG;
}

/// The first name that differs from `wanted` in case alone; nothing when there is none, or the
/// folder may not be read. Raises 57 where the machine could not tell.
std::optional<std::string> nameIgnoringCase(FileDescriptor folder, const std::string& wanted)
{
    if (!folder.isOpen() && isAnAnswer(errno)) return {};
    const auto folded = foldCase(wanted);
    std::optional<std::string> found;
    for (auto& name : namesOf(std::move(folder)))
        if ((!found || name < *found) && foldCase(name) == folded) found = std::move(name);
    return found;
}

/// Whether a path is a name in the folder itself, which leads nowhere else.
bool isSingleName(const std::string& path)
{
    return !path.empty() && path != ".." && path.find('/') == std::string::npos;
}

/// What the system calls an open file.
std::string nameOfDescriptor(int descriptor)
{
    char text[PATH_MAX];
    const std::string link = "/proc/self/fd/" + std::to_string(descriptor);
    const ssize_t length = ::readlink(link.c_str(), text, sizeof text);
    return length <= 0 ? std::string() : std::string(text, static_cast<std::size_t>(length));
}

} // namespace

/// Opens as open(2), in the bounds of the root; not open, with `errno`, when that fails.
struct RootFolder::Way {
    const RootFolder& root;

    FileDescriptor open(const std::string& path, int flags, Links links = Links::within) const
    {
        const int folder = root.descriptor();
        const mode_t mode = newFileMode(OthersMay::write);
        if (root.bounds_ == Bounds::beneath) return openBeneath(folder, path, flags, mode, links);
        const char* name = path.empty() ? "." : path.c_str();
        return FileDescriptor(::openat(folder, name, flags | O_CLOEXEC, mode));
    }

    /// The folder that holds the last name.
    FileDescriptor parentOf(const std::string& path, Links links) const
    {
        FileDescriptor folder = open(folderPathOf(path), folderFlags, links);
        if (!folder.isOpen()) root.fail(folderPathOf(path), pathNotFound);
        return folder;
    }
};

RootFolder::Way RootFolder::way() const
{
    return {*this};
}

RootFolder::RootFolder(const std::string& path, Bounds bounds)
    : folder_(std::make_shared<FileDescriptor>(::open(path.c_str(), folderFlags))), path_(path),
      bounds_(bounds)
{
    if (!folder_->isOpen()) throw systemError(errno, pathNotFound);
}

std::optional<RootFolder> RootFolder::belowIfThere(const std::string& path) const
{
    auto folder = std::make_shared<FileDescriptor>(way().open(path, folderFlags));
    if (folder->isOpen()) return RootFolder(std::move(folder), shown(path), bounds_);
    if (errno == ENOENT || errno == ENOTDIR) return {};
    fail(path, pathNotFound);
}

RootFolder RootFolder::below(const std::string& path) const
{
    auto folder = std::make_shared<FileDescriptor>(way().open(path, folderFlags));
    if (!folder->isOpen()) fail(path, pathNotFound);
    return RootFolder(std::move(folder), shown(path), bounds_);
}

std::string RootFolder::machinePath(const std::string& path) const
{
    if (bounds_ == Bounds::machine) return shown(path);
    const std::string top = nameOfDescriptor(folder_->get());
    std::string rest;
    for (std::string there = path;; there = folderPathOf(there)) {
        const FileDescriptor file = way().open(there, O_PATH);
        if (!file.isOpen() && !isAnAnswer(errno)) fail(there, permissionDenied);
        const std::string name = file.isOpen() ? nameOfDescriptor(file.get()) : std::string();
        if (top.empty() || (there.empty() && name.empty())) return shown(path);
        if (name == top || (top == "/" && name.size() == 1)) return shown(rest);
        const std::size_t start = top == "/" ? 0 : top.size();
        if (!name.empty() && name.compare(0, start, top, 0, start) == 0 && name[start] == '/')
            return shown(joinedPath(name.substr(start + 1), rest));
        rest = joinedPath(lastNameOf(there), rest);
    }
}

std::string RootFolder::pathIgnoringCase(const std::vector<std::string>& names) const
{
    std::string exact;
    for (const auto& name : names) exact = joinedPath(exact, name);
    if (way().open(exact, O_PATH).isOpen()) return exact;
    if (errno == EXDEV || errno == ELOOP) fail(exact, permissionDenied);
    std::string path;
    bool exists = true;
    for (const auto& name : names) {
        if (exists) {
            const FileDescriptor folder = way().open(path, folderFlags);
            struct stat facts {};
            exists = folder.isOpen() &&
                     ::fstatat(folder.get(), name.c_str(), &facts, AT_SYMLINK_NOFOLLOW) == 0;
            if (!exists && !isAnAnswer(errno)) fail(path, permissionDenied);
            if (!exists && folder.isOpen() && errno == ENOENT)
                if (const auto other = nameIgnoringCase(openListing(folder.get(), "."), name)) {
                    exists = true;
                    path = joinedPath(path, *other);
                    continue;
                }
        }
        path = joinedPath(path, name);
    }
    if (exists && !way().open(path, O_PATH).isOpen() && (errno == EXDEV || errno == ELOOP))
        fail(path, permissionDenied);
    return path;
}

FileDescriptor RootFolder::openFile(const std::string& path, const FileOpening& opening,
                                    int missing) const
{
    FileDescriptor file = way().open(path, flagsOf(opening));
    if (!file.isOpen() && !isNoFile(errno)) fail(path, missing);
    return requirePlain(std::move(file), shown(path));
}

FileDescriptor RootFolder::openIfAllowed(const std::string& path, const FileOpening& opening,
                                         int missing) const
{
    FileDescriptor file = way().open(path, flagsOf(opening));
    if (!file.isOpen() && (errno == EACCES || errno == EPERM || errno == EROFS)) return file;
    if (!file.isOpen() && !isNoFile(errno)) fail(path, missing);
    return requirePlain(std::move(file), shown(path));
}

FileDescriptor RootFolder::openToPassOn() const
{
    FileDescriptor folder(::openat(folder_->get(), ".", O_RDONLY | O_DIRECTORY));
    if (!folder.isOpen()) fail({}, pathNotFound);
    return folder;
}

std::optional<FileFacts> RootFolder::facts(const std::string& path) const
{
    struct stat record {};
    // Of the folder that is open, also where the user may not search it.
    if (path.empty() && ::fstat(folder_->get(), &record) == 0) return factsOf(record);
    // A single name that is no link can't lead anywhere else.
    if (isSingleName(path)) {
        if (::fstatat(folder_->get(), path.c_str(), &record, AT_SYMLINK_NOFOLLOW) == 0) {
            if (!S_ISLNK(record.st_mode)) return factsOf(record);
        } else if (errno == ENOENT) {
            return {};
        }
    }
    const FileDescriptor file = way().open(path, O_PATH);
    if (file.isOpen() && ::fstat(file.get(), &record) == 0) return factsOf(record);
    if (errno == ENOENT || errno == ENOTDIR) return {};
    fail(path, fileNotFound);
}

std::optional<FileFacts> RootFolder::unfollowedFacts(const std::string& path) const
{
    struct stat record {};
    if (isSingleName(path)) {
        if (::fstatat(folder_->get(), path.c_str(), &record, AT_SYMLINK_NOFOLLOW) == 0)
            return factsOf(record);
    } else {
        const FileDescriptor file = way().open(path, O_PATH | O_NOFOLLOW);
        if (file.isOpen() && ::fstat(file.get(), &record) == 0) return factsOf(record);
    }
    if (errno == ENOENT || errno == ENOTDIR) return {};
    fail(path, fileNotFound);
}

std::optional<FileMoment> RootFolder::birth(const std::string& path) const
{
    constexpr unsigned asked = STATX_TYPE | STATX_BTIME;
    struct statx record {};
    if (!isSingleName(path) ||
        ::statx(folder_->get(), path.c_str(), AT_SYMLINK_NOFOLLOW, asked, &record) != 0 ||
        S_ISLNK(record.stx_mode)) {
        const FileDescriptor file = way().open(path, O_PATH);
        if (!file.isOpen() || ::statx(file.get(), "", AT_EMPTY_PATH, asked, &record) != 0)
            return {};
    }
    if ((record.stx_mask & STATX_BTIME) == 0) return {};
    return FileMoment{record.stx_btime.tv_sec, record.stx_btime.tv_nsec};
}

FileSystemRoom RootFolder::room(const std::string& path) const
{
    struct statvfs record {};
    const FileDescriptor folder = way().open(path, O_PATH);
    if (!folder.isOpen()) fail(path, pathNotFound);
    if (::fstatvfs(folder.get(), &record) != 0) throw systemError(errno, pathNotFound);
    const auto blockSize = static_cast<std::int64_t>(record.f_frsize);
    return {static_cast<std::int64_t>(record.f_bavail) * blockSize,
            static_cast<std::int64_t>(record.f_blocks) * blockSize};
}

bool RootFolder::isFile(const std::string& path) const
{
    const FileDescriptor file = way().open(path, O_PATH);
    struct stat facts {};
    return file.isOpen() && ::fstat(file.get(), &facts) == 0 && S_ISREG(facts.st_mode);
}

bool RootFolder::isFolder(const std::string& path) const
{
    return way().open(path, folderFlags).isOpen();
}

std::vector<std::string> RootFolder::names(const std::string& path) const
{
    FileDescriptor folder = way().open(path, listingFlags);
    if (!folder.isOpen()) fail(path, pathNotFound);
    return namesOf(std::move(folder));
}

std::int64_t RootFolder::size(const std::string& path) const
{
    FileDescriptor folder = way().open(path, listingFlags);
    if (!folder.isOpen()) fail(path, pathNotFound);
    return sizeOf(std::move(folder));
}

void RootFolder::makeFolder(const std::string& path, OthersMay others) const
{
    if (path.empty()) throw RunTimeError(fileAlreadyExists);
    const FileDescriptor parent = way().parentOf(path, Links::within);
    if (::mkdirat(parent.get(), lastNameOf(path).c_str(), newFolderMode(others)) != 0)
        fail(path, pathNotFound);
}

void RootFolder::rename(const std::string& from, const std::string& to) const
{
    const FileDescriptor source = way().parentOf(from, Links::within);
    const FileDescriptor target = way().parentOf(to, Links::within);
    if (::renameat(source.get(), lastNameOf(from).c_str(), target.get(), lastNameOf(to).c_str()) ==
        0)
        return;
    if (errno == ENOTEMPTY) errno = EEXIST;
    fail(to, pathNotFound);
}

void RootFolder::removeFile(const std::string& path) const
{
    const FileDescriptor parent = way().parentOf(path, Links::none);
    if (::unlinkat(parent.get(), lastNameOf(path).c_str(), 0) != 0) fail(path, fileNotFound);
}

void RootFolder::removeEmptyFolder(const std::string& path) const
{
    const FileDescriptor parent = way().parentOf(path, Links::none);
    if (::unlinkat(parent.get(), lastNameOf(path).c_str(), AT_REMOVEDIR) != 0)
        fail(path, pathNotFound);
}

void RootFolder::allowWriting(const std::string& path) const
{
    const FileDescriptor file = way().open(path, O_PATH);
    if (!file.isOpen()) fail(path, fileNotFound);
    struct stat record {};
    if (::fstat(file.get(), &record) != 0) throw systemError(errno, deviceIo);
    if (S_ISDIR(record.st_mode)) throw RunTimeError(fileNotFound);
    if (!S_ISREG(record.st_mode)) throw RunTimeError(permissionDenied);
    // By its descriptor, as the name could be another file's by now; the file may not be readable.
    const std::string itself = "/proc/self/fd/" + std::to_string(file.get());
    const mode_t mode = (record.st_mode & 07777) | ordinaryFileMode() | S_IRUSR | S_IWUSR;
    if (::chmod(itself.c_str(), mode) != 0) throw systemError(errno, fileNotFound);
}

void RootFolder::removeFolder(const std::string& path) const
{
    FileDescriptor folder = way().open(path, listingFlags | O_NOFOLLOW, Links::none);
    if (!folder.isOpen()) fail(path, pathNotFound);
    const FileDescriptor parent = way().parentOf(path, Links::none);
    removeContents(std::move(folder));
    if (::unlinkat(parent.get(), lastNameOf(path).c_str(), AT_REMOVEDIR) != 0)
        fail(path, pathNotFound);
}

FileDescriptor openMachineFile(const std::string& path, const FileOpening& opening, int missing)
{
    FileDescriptor file(
        ::open(path.c_str(), flagsOf(opening) | O_CLOEXEC, newFileMode(OthersMay::write)));
    if (!file.isOpen() && errno == ELOOP)
        throw RunTimeError(permissionDenied,
                           "Permission denied: " + path + " is a link that is not followed");
    if (!file.isOpen() && !isNoFile(errno)) throw systemError(errno, missing);
    return requirePlain(std::move(file), path);
}

FileDescriptor openMachinePipe(const std::string& path, int missing)
{
    const auto isPipe = [](const std::optional<FileFacts>& facts) {
        return facts && facts->kind == FileKind::pipe;
    };
    // Looked at first, as opening a device may do something.
    if (!isPipe(factsOf(path))) throw RunTimeError(permissionDenied);
    FileDescriptor pipe(::open(path.c_str(), O_RDONLY | O_NOCTTY | O_CLOEXEC));
    if (!pipe.isOpen()) throw systemError(errno, missing);
    if (!isPipe(factsOf(pipe))) throw RunTimeError(permissionDenied);
    return pipe;
}
