#include "system/whole_file.h"

#include "system/posix/permissions.h"
#include "system/replacement_names.h"
#include "system/system_error.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/sendfile.h>
#include <sys/stat.h>
#include <tuple>
#include <unistd.h>
#include <utility>

namespace {

constexpr std::size_t copyStep = 16U << 20;

/// A new file in a folder, under a name that nobody else has.
std::pair<std::string, FileDescriptor> makeTemporary(const RootFolder& folder, mode_t mode)
{
    return makeReplacement([&](const std::string& name) {
        return FileDescriptor(::openat(folder.descriptor(), name.c_str(),
                                       O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, mode));
    });
}

/// One step of a copy by the fastest way that the two file systems offer: 0 at the end, -1 with
/// `errno` on failure. `way` moves on past a way that they don't.
ssize_t copySome(const FileDescriptor& source, const FileDescriptor& target, int& way)
{
    const int from = source.get();
    const int to = target.get();
    if (way == 0) {
        const ssize_t count = ::copy_file_range(from, nullptr, to, nullptr, copyStep, 0);
        if (count > 0) return count;
        ++way; // also at 0: some special files claim to be empty here
    }
    if (way == 1) {
        const ssize_t count = ::sendfile(to, from, nullptr, copyStep);
        if (count >= 0 || (errno != EINVAL && errno != ENOSYS)) return count;
        ++way;
    }
    char buffer[65536];
    const ssize_t count = ::read(from, buffer, sizeof buffer);
    if (count <= 0) return count;
    const auto size = static_cast<std::size_t>(count);
    return writeBytes(target, {buffer, size}) == size ? count : -1;
}

} // namespace

ReplacementFile::ReplacementFile(const RootFolder& root, const std::string& target,
                                 OthersMay others)
    : ReplacementFile(root, target, newFileMode(others))
{}

ReplacementFile::ReplacementFile(const RootFolder& root, const std::string& target, unsigned mode)
    : folder_(root.below(folderPathOf(target))), target_(lastNameOf(target))
{
    std::tie(temporary_, file_) = makeTemporary(folder_, mode);
}

ReplacementFile::~ReplacementFile()
{
    if (!temporary_.empty()) ::unlinkat(folder_.descriptor(), temporary_.c_str(), 0);
}

void ReplacementFile::resemble(const FileDescriptor& model)
{
    struct stat record {};
    if (::fstat(model.get(), &record) != 0) throw systemError(errno, runTimeErrors::deviceIo);
    const bool owned = ::fchown(file_.get(), record.st_uid, record.st_gid) == 0;
    ::fchmod(file_.get(), record.st_mode & (owned ? 07777 : 0777));
}

void ReplacementFile::commit(bool synced)
{
    if (synced && ::fdatasync(file_.get()) != 0) throw systemError(errno, runTimeErrors::deviceIo);
    close();
    if (::renameat(folder_.descriptor(), temporary_.c_str(), folder_.descriptor(),
                   target_.c_str()) != 0)
        throw systemError(errno, runTimeErrors::pathNotFound);
    temporary_.clear();
}

void copyWholeFile(const FileDescriptor& source, const RootFolder& root, const std::string& target)
{
    struct stat facts {};
    if (::fstat(source.get(), &facts) != 0) throw systemError(errno, runTimeErrors::fileNotFound);
    ReplacementFile copy(root, target, unsigned{facts.st_mode} & 0777U);
    int way = 0;
    for (;;) {
        const ssize_t count = copySome(source, copy.file(), way);
        if (count == 0) break;
        if (count < 0 && errno != EINTR) throw systemError(errno, runTimeErrors::deviceIo);
    }
    const timespec times[] = {facts.st_atim, facts.st_mtim};
    ::futimens(copy.file().get(), times);
    copy.commit(false);
}
