#include "backends/portable/whole_file.h"

#include "backends/portable/posix_errors.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <random>
#include <sys/sendfile.h>
#include <sys/stat.h>
#include <tuple>
#include <unistd.h>
#include <utility>

namespace {

constexpr std::size_t copyStep = 16U << 20;

std::string folderOf(const std::string& path)
{
    const auto slash = path.rfind('/');
    return slash == std::string::npos ? "." : path.substr(0, slash + 1);
}

/// A new file in the target's folder, under a name that nobody else has.
std::pair<std::string, FileDescriptor> makeTemporary(const std::string& target, mode_t mode)
{
    std::random_device random;
    for (int attempt = 0; attempt < 100; ++attempt) {
        std::string name = folderOf(target) + ".new-" + std::to_string(::getpid()) + "-" +
                           std::to_string(random() % 1'000'000'000);
        FileDescriptor file(::open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode));
        if (file.isOpen()) return {std::move(name), std::move(file)};
        if (errno != EEXIST) throw posixError(errno, runTimeErrors::pathNotFound);
    }
    throw RunTimeError(runTimeErrors::permissionDenied);
}

/// One step of a copy by the fastest way that the two file systems offer: 0 at the end, -1 with
/// `errno` on failure. `way` moves on past a way that they don't.
ssize_t copySome(int from, int to, int& way)
{
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
    return writeBytes(to, {buffer, size}) == size ? count : -1;
}

} // namespace

std::string readWholeFile(const std::string& path, int missing, std::size_t limit)
{
    const FileDescriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (!file.isOpen()) throw posixError(errno, missing);
    return readWholeFile(file, missing, limit);
}

std::string readWholeFile(const FileDescriptor& file, int missing, std::size_t limit)
{
    struct stat facts {};
    std::string bytes;
    if (::fstat(file.get(), &facts) == 0 && facts.st_size > 0)
        bytes.reserve(std::min(static_cast<std::size_t>(facts.st_size), limit) + 1);
    char buffer[65536];
    for (;;) {
        const ssize_t count = ::read(file.get(), buffer, sizeof buffer);
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) throw posixError(errno, missing);
        if (count == 0) return bytes;
        if (bytes.size() + static_cast<std::size_t>(count) > limit)
            throw RunTimeError(runTimeErrors::outOfStringSpace);
        bytes.append(buffer, static_cast<std::size_t>(count));
    }
}

ReplacementFile::ReplacementFile(std::string target, mode_t mode) : target_(std::move(target))
{
    std::tie(temporary_, file_) = makeTemporary(target_, mode);
}

ReplacementFile::~ReplacementFile()
{
    if (!temporary_.empty()) ::unlink(temporary_.c_str());
}

void ReplacementFile::write(std::string_view bytes)
{
    if (writeBytes(file_.get(), bytes) < bytes.size())
        throw posixError(errno, runTimeErrors::deviceIo);
}

void ReplacementFile::commit(bool synced)
{
    if (synced && ::fdatasync(file_.get()) != 0) throw posixError(errno, runTimeErrors::deviceIo);
    if (const int error = file_.close()) throw posixError(error, runTimeErrors::deviceIo);
    if (::rename(temporary_.c_str(), target_.c_str()) != 0)
        throw posixError(errno, runTimeErrors::pathNotFound);
    temporary_.clear();
}

void copyWholeFile(const std::string& source, const std::string& target)
{
    FileDescriptor from(::open(source.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (!from.isOpen()) throw posixError(errno, runTimeErrors::fileNotFound);
    struct stat facts {};
    if (::fstat(from.get(), &facts) != 0) throw posixError(errno, runTimeErrors::fileNotFound);
    if (S_ISDIR(facts.st_mode)) throw RunTimeError(runTimeErrors::fileNotFound);

    ReplacementFile copy(target, facts.st_mode & 0777);
    int way = 0;
    for (;;) {
        const ssize_t count = copySome(from.get(), copy.descriptor(), way);
        if (count == 0) break;
        if (count < 0 && errno != EINTR) throw posixError(errno, runTimeErrors::deviceIo);
    }
    const timespec times[] = {facts.st_atim, facts.st_mtim};
    ::futimens(copy.descriptor(), times);
    copy.commit(false);
}
