#include "backends/jet/page_file.h"

#include "backends/jet/errors.h"
#include "platform/trace_database.h"
#include "runtime/run_time_error.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace jet {

namespace {

constexpr std::size_t mappedBytes = std::size_t{formatFilePages} * pageSize;
constexpr std::uint32_t pagesPerRun = 64;
constexpr std::uint32_t pagesKept = 2048;

/// The most pages that the process may give a file; writing past it would end the program.
std::uint64_t pagesAllowed()
{
    rlimit limit{};
    if (getrlimit(RLIMIT_FSIZE, &limit) != 0 || limit.rlim_cur == RLIM_INFINITY)
        return largestFilePages;
    return limit.rlim_cur / pageSize;
}

/// Writes all bytes; what fails gives false.
bool writeAll(int file, const char* bytes, std::size_t size, std::uint64_t at)
{
    while (size > 0) {
        const ssize_t written = pwrite(file, bytes, size, static_cast<off_t>(at));
        if (written < 0 && errno == EINTR) continue;
        if (written <= 0) return false;
        bytes += written;
        size -= static_cast<std::size_t>(written);
        at += static_cast<std::uint64_t>(written);
    }
    return true;
}

} // namespace

PageFile::PageFile(const std::string& path)
{
    file_ = open(path.c_str(), O_RDWR | O_CLOEXEC);
    if (file_ < 0) {
        if (errno == ENOENT || errno == ENOTDIR) raiseFileNotFound(path);
        raiseCannotOpen(path);
    }
    try {
        if (flock(file_, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK)
            throw RunTimeError(traceDatabaseErrors::fileInUse,
                               "Couldn't use '" + path + "'; file already in use.");
        readSize();
        map(path);
    } catch (const RunTimeError&) {
        ::close(file_);
        throw;
    }
}

PageFile::~PageFile()
{
    // Zeros left behind where this fails are what a kill leaves: no reader minds them.
    if (extent_ > count_ && ftruncate(file_, static_cast<off_t>(std::size_t{count_} * pageSize)))
        errno = 0;
    munmap(base_, mappedBytes);
    ::close(file_);
}

void PageFile::readSize()
{
    struct stat facts {};
    if (fstat(file_, &facts) != 0 || !S_ISREG(facts.st_mode)) raiseUnknownFormat("no plain file");
    const auto size = static_cast<std::uint64_t>(facts.st_size);
    if (size < pageSize || size > mappedBytes)
        raiseUnknownFormat("a size of " + std::to_string(size));
    count_ = extent_ = static_cast<std::uint32_t>(size / pageSize);
}

void PageFile::map(const std::string& path)
{
    void* mapped = mmap(nullptr, mappedBytes, PROT_READ | PROT_WRITE, MAP_SHARED, file_, 0);
    if (mapped == MAP_FAILED) raiseCannotOpen(path);
    base_ = static_cast<char*>(mapped);
}

void PageFile::reserve(std::uint32_t more)
{
    if (count_ + std::uint64_t{more} > largestFilePages) raiseDatabaseFull();
    if (count_ + more > extent_) extendTo(count_ + more);
}

std::uint32_t PageFile::take()
{
    if (count_ == extent_) reserve(1);
    if (count_ - released_ >= 2 * pagesKept) {
        madvise(base_ + std::size_t{released_} * pageSize, pagesKept * pageSize, MADV_DONTNEED);
        released_ += pagesKept;
    }
    return count_++;
}

void PageFile::extendTo(std::uint32_t pages)
{
    const auto most = std::min<std::uint64_t>(largestFilePages, pagesAllowed());
    if (pages > most) raiseDiskFull();
    while (extent_ < pages) {
        const auto run = std::min<std::uint64_t>(pagesPerRun, most - extent_);
        const auto wanted = std::min<std::uint64_t>(run, pages - extent_);
        if (!extendBy(run) && !extendBy(wanted)) raiseDiskFull();
    }
}

bool PageFile::extendBy(std::uint64_t run)
{
    static constexpr std::array<char, pagesPerRun * pageSize> zeros{};
    const std::uint64_t end = std::uint64_t{extent_} * pageSize;
    if (writeAll(file_, zeros.data(), run * pageSize, end)) {
        extent_ += static_cast<std::uint32_t>(run);
        return true;
    }
    // What was written of the run goes; where that fails it is zeros, which no reader minds.
    if (ftruncate(file_, static_cast<off_t>(end)) != 0) errno = 0;
    return false;
}

void PageFile::dropPartialPage()
{
    if (ftruncate(file_, static_cast<off_t>(std::size_t{extent_} * pageSize)) != 0) errno = 0;
}

void PageFile::replace(std::uint32_t number, const char* content)
{
    if (!writeAll(file_, content, pageSize, std::uint64_t{number} * pageSize))
        throw RunTimeError(runTimeErrors::deviceIo);
}

void PageFile::releaseMemory()
{
    madvise(base_, std::size_t{count_} * pageSize, MADV_DONTNEED);
}

} // namespace jet
