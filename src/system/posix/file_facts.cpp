#include "system/file_facts.h"

#include "system/posix/stat_facts.h"
#include "system/system_error.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace {

FileKind kindOf(mode_t mode)
{
    switch (mode & S_IFMT) {
    case S_IFREG:
        return FileKind::file;
    case S_IFDIR:
        return FileKind::folder;
    case S_IFLNK:
        return FileKind::link;
    case S_IFIFO:
        return FileKind::pipe;
    default:
        return FileKind::other;
    }
}

} // namespace

FileFacts factsOf(const struct stat& record)
{
    FileFacts facts;
    facts.kind = kindOf(record.st_mode);
    facts.identity = {record.st_dev, record.st_ino};
    facts.size = record.st_size;
    facts.modified = {record.st_mtim.tv_sec, record.st_mtim.tv_nsec};
    facts.changed = {record.st_ctim.tv_sec, record.st_ctim.tv_nsec};
    facts.hardLinks = record.st_nlink;
    facts.owner = record.st_uid;
    facts.readOnly = (record.st_mode & S_IWUSR) == 0;
    return facts;
}

FileFacts factsOf(const FileDescriptor& file)
{
    struct stat record {};
    if (::fstat(file.get(), &record) != 0) throw systemError(errno, runTimeErrors::deviceIo);
    return factsOf(record);
}

std::optional<FileFacts> factsOf(const std::string& path)
{
    struct stat record {};
    if (::stat(path.c_str(), &record) != 0) return {};
    return factsOf(record);
}

std::optional<FileFacts> unfollowedFactsOf(const std::string& path)
{
    struct stat record {};
    if (::lstat(path.c_str(), &record) != 0) return {};
    return factsOf(record);
}

bool isPlainFile(const std::string& path)
{
    const auto facts = factsOf(path);
    return facts && facts->kind == FileKind::file;
}

bool isOurs(const FileFacts& facts)
{
    return facts.owner == ::geteuid();
}

bool setTimes(const std::string& path, FileMoment moment)
{
    timespec time{};
    time.tv_sec = static_cast<time_t>(moment.seconds);
    time.tv_nsec = static_cast<long>(moment.nanoseconds);
    const timespec times[] = {time, time};
    return ::utimensat(AT_FDCWD, path.c_str(), times, 0) == 0;
}

bool mayWrite(const std::string& path)
{
    return ::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == 0;
}
