#include "system/file_bytes.h"

#include "system/system_error.h"

#include <cerrno>
#include <fcntl.h>
#include <limits>
#include <sys/resource.h>
#include <unistd.h>

namespace {

/// Writes bytes by a call that takes those that are left and how many were written before them.
template <typename Call>
std::size_t writeBy(const Call& call, std::string_view bytes)
{
    std::size_t written = 0;
    while (written < bytes.size()) {
        const ssize_t count = call(bytes.substr(written), written);
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) break;
        written += static_cast<std::size_t>(count);
    }
    return written;
}

} // namespace

std::size_t readSome(const FileDescriptor& file, char* into, std::size_t size)
{
    for (;;) {
        const ssize_t count = ::read(file.get(), into, size);
        if (count >= 0) return static_cast<std::size_t>(count);
        if (errno != EINTR) throw systemError(errno, runTimeErrors::deviceIo);
    }
}

std::size_t readAt(const FileDescriptor& file, char* into, std::size_t size, std::uint64_t at)
{
    std::size_t done = 0;
    while (done < size) {
        const ssize_t count =
            ::pread(file.get(), into + done, size - done, static_cast<off_t>(at + done));
        if (count == 0) break;
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) throw systemError(errno, runTimeErrors::deviceIo);
        done += static_cast<std::size_t>(count);
    }
    return done;
}

std::size_t writeBytes(const FileDescriptor& file, std::string_view bytes)
{
    return writeBy([&](std::string_view left,
                       std::size_t) { return ::write(file.get(), left.data(), left.size()); },
                   bytes);
}

std::size_t writeBytesAt(const FileDescriptor& file, std::string_view bytes, std::uint64_t at)
{
    return writeBy(
        [&](std::string_view left, std::size_t before) {
            return ::pwrite(file.get(), left.data(), left.size(), static_cast<off_t>(at + before));
        },
        bytes);
}

void writeAll(const FileDescriptor& file, std::string_view bytes)
{
    if (writeBytes(file, bytes) < bytes.size()) throw systemError(errno, runTimeErrors::deviceIo);
}

bool resize(const FileDescriptor& file, std::uint64_t size)
{
    return ::ftruncate(file.get(), static_cast<off_t>(size)) == 0;
}

std::uint64_t largestFileAllowed()
{
    rlimit limit{};
    if (::getrlimit(RLIMIT_FSIZE, &limit) != 0 || limit.rlim_cur == RLIM_INFINITY)
        return std::numeric_limits<std::uint64_t>::max();
    return limit.rlim_cur;
}

void goTo(const FileDescriptor& file, std::uint64_t at)
{
    ::lseek(file.get(), static_cast<off_t>(at), SEEK_SET);
}

void expectReadingThrough(const FileDescriptor& file)
{
    ::posix_fadvise(file.get(), 0, 0, POSIX_FADV_SEQUENTIAL);
}
