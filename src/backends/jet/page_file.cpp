#include "backends/jet/page_file.h"

#include "backends/jet/data_page.h"
#include "backends/jet/errors.h"
#include "platform/trace_database.h"
#include "runtime/run_time_error.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace jet {

namespace {

constexpr std::size_t largestBytes = std::size_t{formatFilePages} * pageSize;
constexpr std::uint32_t pagesPerRun = 64;

using Clock = std::chrono::steady_clock;

/// The most pages that the process may give a file; writing past it would end the program.
std::uint64_t pagesAllowed()
{
    rlimit limit{};
    if (getrlimit(RLIMIT_FSIZE, &limit) != 0 || limit.rlim_cur == RLIM_INFINITY)
        return largestFilePages;
    return limit.rlim_cur / pageSize;
}

/// A run of pages as the file grows by them: empty data pages that belong to nothing. A file that
/// ends with some of them has no page without a type.
const std::array<char, pagesPerRun * pageSize>& emptyRun()
{
    static const auto run = [] {
        std::array<char, pagesPerRun * pageSize> pages{};
        for (std::size_t at = 0; at < pages.size(); at += pageSize)
            DataPage::begin(pages.data() + at, 0);
        return pages;
    }();
    return run;
}

/// Locks every byte that the file has or will have, until the file is closed. False where another
/// program holds a lock on any of them; a file system without locks gives true.
///
/// This is the kind of lock that file servers carry from machine to machine.
bool lockAgainstWriters(int file)
{
    struct flock all {};
    all.l_type = F_WRLCK;
    all.l_whence = SEEK_SET;
    return fcntl(file, F_OFD_SETLK, &all) == 0 || (errno != EAGAIN && errno != EACCES);
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
    // A link that was put in the place of the fresh copy would lead the rows elsewhere.
    file_ = open(path.c_str(), O_RDWR | O_CLOEXEC | O_NOFOLLOW);
    if (file_ < 0) {
        if (errno == ENOENT || errno == ENOTDIR) raiseFileNotFound(path);
        raiseCannotOpen(path);
    }
    try {
        if (!lockAgainstWriters(file_))
            throw RunTimeError(traceDatabaseErrors::fileInUse,
                               "Couldn't use '" + path + "'; file already in use.");
        readSize();
        windows_.emplace(file_);
    } catch (const RunTimeError&) {
        ::close(file_);
        throw;
    }
}

PageFile::~PageFile()
{
    if (extent_ > count_) trim();
    ::close(file_);
}

void PageFile::readSize()
{
    struct stat facts {};
    if (fstat(file_, &facts) != 0 || !S_ISREG(facts.st_mode)) raiseUnknownFormat("no plain file");
    const auto size = static_cast<std::uint64_t>(facts.st_size);
    if (size < pageSize || size > largestBytes)
        raiseUnknownFormat("a size of " + std::to_string(size));
    count_ = extent_ = static_cast<std::uint32_t>(size / pageSize);
}

void PageFile::reserve(std::uint32_t more)
{
    if (count_ + std::uint64_t{more} > largestFilePages) raiseDatabaseFull();
    if (count_ + more > extent_) extendTo(count_ + more);
}

std::uint32_t PageFile::take()
{
    if (count_ == extent_) reserve(1);
    return count_++;
}

void PageFile::extendTo(std::uint32_t pages)
{
    if (wasCut()) raiseFailure();
    const auto most = std::min<std::uint64_t>(largestFilePages, pagesAllowed());
    if (pages > most) raiseDiskFull();
    const auto begun = Clock::now();
    if (passedOver_ > 0 && begun < askedAgain_) {
        --passedOver_;
        raiseDiskFull();
    }
    while (extent_ < pages) {
        const auto run = std::min<std::uint64_t>(pagesPerRun, most - extent_);
        const auto wanted = std::min<std::uint64_t>(run, pages - extent_);
        if (!extendBy(run) && !extendBy(wanted)) raiseRefused(begun);
    }
    refusals_ = 0;
}

/// A full file system may write back all it holds before it refuses, which takes a moment each
/// time; a gather has millions of rows. One that refuses at once is asked each time, and room that
/// comes back is found before the few rows are lost that a table of filters has.
void PageFile::raiseRefused(Clock::time_point begun)
{
    constexpr int share = 20; ///< of the time, one part is spent on asking at most
    const auto now = Clock::now();
    askedAgain_ = now + share * (now - begun);
    constexpr int alwaysTried = 8;
    constexpr int rarest = 10; ///< once in as many, as a power of two
    ++refusals_;
    if (refusals_ > alwaysTried) passedOver_ = (1 << std::min(refusals_ - alwaysTried, rarest)) - 1;
    raiseDiskFull();
}

bool PageFile::extendBy(std::uint64_t run)
{
    const std::uint64_t end = std::uint64_t{extent_} * pageSize;
    if (writeAll(file_, emptyRun().data(), run * pageSize, end)) {
        extent_ += static_cast<std::uint32_t>(run);
        return true;
    }
    // What was written of the run goes; where that fails it is empty, which no reader minds.
    if (ftruncate(file_, static_cast<off_t>(end)) != 0) errno = 0;
    return false;
}

bool PageFile::isEmpty(std::uint32_t number) const
{
    const char* content = page(number);
    return std::memcmp(content, emptyRun().data(), pageSize) == 0 ||
           std::all_of(content, content + pageSize, [](char byte) { return byte == 0; });
}

void PageFile::trim()
{
    if (wasCut()) return;
    // Where this fails, empty pages or a part of one stay: what a kill leaves, and no reader minds.
    if (ftruncate(file_, static_cast<off_t>(std::size_t{count_} * pageSize)) == 0)
        extent_ = count_;
    else
        errno = 0;
}

void PageFile::replace(std::uint32_t number, const char* content)
{
    // What it leads to may be missing from the file.
    if (failed()) {
        std::memcpy(page(number), content, pageSize);
        return;
    }
    if (writeAll(file_, content, pageSize, std::uint64_t{number} * pageSize)) return;
    if (errno == EIO) throw RunTimeError(runTimeErrors::deviceIo);
    raiseDiskFull();
}

bool PageFile::wasCut() const
{
    struct stat facts {};
    return fstat(file_, &facts) != 0 ||
           static_cast<std::uint64_t>(facts.st_size) < std::uint64_t{extent_} * pageSize;
}

void PageFile::raiseFailure() const
{
    if (wasCut()) raiseUnknownFormat("the file was cut while it was open");
    raiseDiskFull();
}

} // namespace jet
