#include "cabmaker/source_file.h"

#include <algorithm>
#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "cabmaker/file_error.h"

namespace cabmaker {

namespace {

SourceFacts factsOf(const struct stat& status)
{
    return {.bytes = static_cast<std::uint64_t>(status.st_size),
            .modifiedSeconds = status.st_mtim.tv_sec,
            .modifiedNanoseconds = status.st_mtim.tv_nsec,
            .identity = status.st_ino,
            .readOnly = (status.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0};
}

} // namespace

SourceFacts sourceFacts(const std::string& path, const std::string& shownName)
{
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) throw fileError("cannot read " + shownName, errno);
    if (!S_ISREG(status.st_mode))
        throw RunTimeError(runTimeErrors::pathFileAccess,
                           "cannot read " + shownName + ": it is not a plain file");
    return factsOf(status);
}

CabinetTime cabinetTime(std::time_t moment)
{
    std::tm local{};
    localtime_r(&moment, &local);
    const int year = local.tm_year + 1900;
    if (year < 1980) return {};
    constexpr std::uint16_t lastDate = 0xff9f;
    constexpr std::uint16_t lastTime = 0xbf7d;
    if (year > 2107) return {.date = lastDate, .time = lastTime};
    const int date = (year - 1980) << 9 | (local.tm_mon + 1) << 5 | local.tm_mday;
    const int time = local.tm_hour << 11 | local.tm_min << 5 | std::min(local.tm_sec, 59) / 2;
    return {.date = static_cast<std::uint16_t>(date), .time = static_cast<std::uint16_t>(time)};
}

SourceReader::SourceReader(std::string path, std::string shownName, const SourceFacts& facts)
    : path_(std::move(path)), shownName_(std::move(shownName)), facts_(facts),
      remaining_(facts.bytes), descriptor_(::open(path_.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK))
{
    if (descriptor_ < 0) throw fileError("cannot read " + shownName_, errno);
}

SourceReader::~SourceReader()
{
    ::close(descriptor_);
}

std::size_t SourceReader::read(std::span<std::uint8_t> target)
{
    const auto wanted =
        static_cast<std::size_t>(std::min<std::uint64_t>(remaining_, target.size()));
    if (wanted == 0) return 0;
    ssize_t count = 0;
    do {
        count = ::read(descriptor_, target.data(), wanted);
    } while (count < 0 && errno == EINTR);
    if (count < 0) throw fileError("cannot read " + shownName_, errno);
    if (count == 0) refuse();
    remaining_ -= static_cast<std::uint64_t>(count);
    return static_cast<std::size_t>(count);
}

void SourceReader::finish()
{
    struct stat status {};
    if (::fstat(descriptor_, &status) != 0) throw fileError("cannot read " + shownName_, errno);
    // The open file may have lost its name meanwhile, so both are looked at.
    if (factsOf(status) != facts_ || sourceFacts(path_, shownName_) != facts_) refuse();
}

void SourceReader::refuse() const
{
    throw RunTimeError(runTimeErrors::pathFileAccess,
                       shownName_ + " changed while it was being packed");
}

} // namespace cabmaker
