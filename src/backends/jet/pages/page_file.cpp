#include "backends/jet/pages/page_file.h"

#include "backends/jet/errors.h"
#include "backends/jet/pages/data_page.h"
#include "backends/jet/pages/database_file.h"
#include "platform/trace_database.h"
#include "runtime/run_time_error.h"
#include "system/file_bytes.h"
#include "system/file_facts.h"
#include "system/file_lock.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <string_view>

namespace jet {

namespace {

constexpr std::size_t largestBytes = std::size_t{formatFilePages} * pageSize;
constexpr std::uint32_t pagesPerRun = 64;

/// The most pages that the process may give a file; writing past it would end the program.
std::uint64_t pagesAllowed()
{
    return std::min<std::uint64_t>(largestFileAllowed() / pageSize, largestFilePages);
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

} // namespace

PageFile::PageFile(const std::string& path, std::function<Moment()> now)
    : now_(std::move(now)),
      // A link that was put in the place of the fresh copy would lead the rows elsewhere.
      file_(openDatabaseFile(path,
                             {.access = FileAccess::readAndWrite, .lastLink = LastLink::refused}))
{
    if (!tryLockBytes(file_))
        throw RunTimeError(traceDatabaseErrors::fileInUse,
                           "Couldn't use '" + path + "'; file already in use.");
    readSize();
    windows_.emplace(file_);
}

PageFile::~PageFile()
{
    if (extent_ > count_) trim();
}

void PageFile::readSize()
{
    const auto size = static_cast<std::uint64_t>(factsOf(file_).size);
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
    const Moment begun = now_();
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
    passedOver_ = 0;
}

/// A full file system may write back all it holds before it refuses, which takes a moment each
/// time; a gather has millions of rows. One that refuses at once is asked each time, and room that
/// comes back is found before the few rows are lost that a table of filters has.
void PageFile::raiseRefused(Moment begun)
{
    constexpr int share = 20; ///< of the time, one part is spent on asking at most
    const Moment now = now_();
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
    const std::string_view pages(emptyRun().data(), run * pageSize);
    if (windows_->write(pages, end) == pages.size()) {
        extent_ += static_cast<std::uint32_t>(run);
        return true;
    }
    // What was written of the run goes; where that fails it is empty, which no reader minds.
    windows_->cut(end);
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
    if (windows_->cut(std::uint64_t{count_} * pageSize)) extent_ = count_;
}

void PageFile::replace(std::uint32_t number, const char* content)
{
    // What it leads to may be missing from the file.
    if (failed()) {
        std::memcpy(page(number), content, pageSize);
        return;
    }
    if (windows_->write({content, pageSize}, std::uint64_t{number} * pageSize) == pageSize) return;
    if (errno == EIO) throw RunTimeError(runTimeErrors::deviceIo);
    raiseDiskFull();
}

bool PageFile::wasCut() const
try {
    return static_cast<std::uint64_t>(factsOf(file_).size) < std::uint64_t{extent_} * pageSize;
} catch (const RunTimeError&) {
    return true;
}

void PageFile::raiseFailure() const
{
    if (wasCut()) raiseUnknownFormat("the file was cut while it was open");
    raiseDiskFull();
}

} // namespace jet
