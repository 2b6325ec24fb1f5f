#include "cabmaker/source_file.h"

#include <algorithm>
#include <cerrno>
#include <utility>

#include "cabmaker/told_failure.h"
#include "system/file_bytes.h"
#include "system/local_time.h"
#include "system/root_folder.h"
#include "system/system_error.h"

namespace cabmaker {

namespace {

SourceFacts sourceFactsOf(const FileFacts& facts)
{
    return {.bytes = static_cast<std::uint64_t>(facts.size),
            .modified = facts.modified,
            .identity = facts.identity,
            .readOnly = facts.readOnly};
}

constexpr const char* cannotRead = "cannot read";

} // namespace

SourceFacts sourceFacts(const std::string& path, const std::string& shownName)
{
    const FileFacts facts = tellingFailure(cannotRead, shownName, [&] {
        const auto found = RootFolder("/", RootFolder::Bounds::machine).facts(path);
        if (!found) throw systemError(ENOENT, runTimeErrors::fileNotFound);
        return *found;
    });
    if (facts.kind != FileKind::file)
        throw RunTimeError(runTimeErrors::pathFileAccess,
                           "cannot read " + shownName + ": it is not a plain file");
    return sourceFactsOf(facts);
}

CabinetTime cabinetTime(std::time_t moment)
{
    const std::tm local = localTimeOf(moment);
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
      remaining_(facts.bytes), file_(tellingFailure(cannotRead, shownName_, [this] {
          return openMachineFile(path_, forReading, runTimeErrors::fileNotFound);
      }))
{}

std::size_t SourceReader::read(std::span<std::uint8_t> target)
{
    const auto wanted =
        static_cast<std::size_t>(std::min<std::uint64_t>(remaining_, target.size()));
    if (wanted == 0) return 0;
    const std::size_t count = tellingFailure(cannotRead, shownName_, [&] {
        return readSome(file_, reinterpret_cast<char*>(target.data()), wanted);
    });
    if (count == 0) refuse();
    remaining_ -= count;
    return count;
}

void SourceReader::finish()
{
    const FileFacts facts =
        tellingFailure(cannotRead, shownName_, [this] { return factsOf(file_); });
    // The open file may have lost its name meanwhile, so both are looked at.
    if (sourceFactsOf(facts) != facts_ || sourceFacts(path_, shownName_) != facts_) refuse();
}

void SourceReader::refuse() const
{
    throw RunTimeError(runTimeErrors::pathFileAccess,
                       shownName_ + " changed while it was being packed");
}

} // namespace cabmaker
