#include "timeline/follow/followed_log.h"

#include "runtime/run_time_error.h"
#include "system/file_bytes.h"
#include "system/root_folder.h"
#include "timeline/sources/log_source.h"

#include <algorithm>
#include <utility>

namespace timeline {

namespace {

/// By so many bytes a log is known again that has grown.
constexpr std::size_t knownBytes = 64;

/// In so many bytes a first line is looked for.
constexpr std::size_t firstBytes = 64U << 10;

} // namespace

FollowedLog::FollowedLog(Timeline& timeline, std::size_t number, const FollowManner& manner)
    : timeline_(timeline), manner_(manner), path_(timeline.source(number).facts().path),
      name_(lastNameOf(path_)), throughLink_(false), number_(number)
{
    const auto facts = unfollowedFactsOf(path_);
    throughLink_ = facts && facts->kind == FileKind::link;
    log().waitForLineEnds(true);
    troublesTold_ = log().troubles().size();
    identity_ = log().fileIdentity();
    lastBytes_ = bytesBefore(log().bytesRead());
    // Which form its lines have shows once it has some.
    begins_ = log().bytesRead() == 0;
    halfRead_ = !begins_ && lastBytes_ && !lastBytes_->ends_with('\n');
}

FollowedLog::FollowedLog(Timeline& timeline, std::string path, const FollowManner& manner)
    : timeline_(timeline), manner_(manner), path_(std::move(path)), name_(lastNameOf(path_)),
      throughLink_(false), begins_(true)
{}

bool FollowedLog::canFollow(const Source& source)
{
    return dynamic_cast<const LogSource*>(&source) != nullptr && !source.facts().path.empty();
}

LogSource& FollowedLog::log() const
{
    return dynamic_cast<LogSource&>(timeline_.source(*number_));
}

/// Of the plain file that is there; no link takes its place unless a person named one.
std::optional<FileFacts> FollowedLog::factsHere() const
{
    auto facts = throughLink_ ? factsOf(path_) : unfollowedFactsOf(path_);
    if (facts && facts->kind != FileKind::file) facts.reset();
    return facts;
}

/// Tells a sentence, but not the same one time after time.
void FollowedLog::tell(std::string sentence, News& news)
{
    if (sentence == told_) return;
    told_ = sentence;
    news.notices.push_back(std::move(sentence));
}

void FollowedLog::look(const Filter& filter, const LogOpening& opening, News& news)
{
    const auto facts = factsHere();
    if (!facts) return lookWhileGone(filter, news);
    const bool isSame = !begins_ && facts->identity == identity_;
    if (gone_) {
        gone_ = false;
        tell(name_ + " is there again, and is read " +
                 (isSame ? "from where it ended" : "from its beginning"),
             news);
    } else if (!isSame && !begins_) {
        tell(name_ + " is another file now, which is read from its beginning", news);
    }
    if (begins_) return begin(*facts, filter, opening, news);
    if (isSame) return lookAtSame(*facts, filter, opening, news);
    log().waitForLineEnds(false);
    readOn(filter, news);
    if (more_) return;
    // Its rows are shown before another source takes its place.
    begins_ = true;
    renamed_ = true;
    size_ = -1;
}

void FollowedLog::lookWhileGone(const Filter& filter, News& news)
{
    if (!begins_) readOn(filter, news);
    if (!gone_) tell(name_ + " is gone; what comes in its place will be read", news);
    gone_ = true;
    size_ = -1;
}

void FollowedLog::lookAtSame(const FileFacts& facts, const Filter& filter,
                             const LogOpening& opening, News& news)
{
    if (facts.size == size_ && facts.modified == modified_ && !more_) return;
    const bool isShorter = static_cast<std::uint64_t>(facts.size) < log().bytesRead();
    if (isShorter || !hasWhatWasRead()) {
        told_.clear();
        tell(name_ + (isShorter ? " was cut off" : " was written anew") +
                 ", and is read from its beginning",
             news);
        begins_ = true;
        more_ = false;
        size_ = -1;
        return begin(facts, filter, opening, news);
    }
    if (halfRead_ && static_cast<std::uint64_t>(facts.size) > log().bytesRead()) {
        begins_ = true;
        size_ = -1;
        return begin(facts, filter, opening, news);
    }
    size_ = facts.size;
    modified_ = facts.modified;
    readOn(filter, news);
}

void FollowedLog::begin(const FileFacts& facts, const Filter& filter, const LogOpening& opening,
                        News& news)
{
    if (facts.size == size_ && facts.modified == modified_) return;
    size_ = facts.size;
    modified_ = facts.modified;
    const bool stays = number_ && renamed_ && manner_.keepsRenamed;
    if (number_ && !stays && manner_.mayExchange && !manner_.mayExchange(*number_)) {
        size_ = -1;
        return;
    }
    if (!hasWholeLine()) return;
    try {
        auto source = opening(path_);
        if (!canFollow(*source))
            throw RunTimeError(runTimeErrors::invalidFileFormat,
                               name_ + " is no log that can be followed");
        const auto& opened = dynamic_cast<const LogSource&>(*source);
        if (opened.fileIdentity() != facts.identity) {
            size_ = -1; // its name leads elsewhere since it was looked at
            return;
        }
        if (number_ && !stays) {
            timeline_.exchange(*number_, std::move(source));
        } else {
            timeline_.add(std::move(source));
            number_ = timeline_.sourceCount() - 1;
        }
    } catch (const RunTimeError& error) {
        return tell(error.description(), news);
    }
    begins_ = false;
    renamed_ = false;
    halfRead_ = false;
    identity_ = facts.identity;
    troublesTold_ = 0;
    log().waitForLineEnds(true);
    readOn(filter, news);
}

void FollowedLog::readOn(const Filter& filter, News& news)
{
    Progress progress;
    progress.enough = manner_.mostRows;
    const std::size_t rowsBefore = news.rows.size();
    const std::uint64_t before = log().bytesRead();
    try {
        timeline_.readOn(*number_, filter, progress, news.rows);
    } catch (const RunTimeError& error) {
        tell(error.description(), news);
    }
    more_ = news.rows.size() - rowsBefore >= manner_.mostRows;
    const auto& troubles = log().troubles();
    for (; troublesTold_ < troubles.size(); ++troublesTold_)
        news.notices.push_back(troubles[troublesTold_]);
    if (log().bytesRead() == before) return;
    told_.clear();
    lastBytes_ = bytesBefore(log().bytesRead());
}

/// Whether the end of what was read is there yet, as it is of a log that has only grown.
bool FollowedLog::hasWhatWasRead() const
{
    const auto bytes = bytesBefore(log().bytesRead());
    return !bytes || !lastBytes_ || *bytes == *lastBytes_;
}

/// What stands in front of a place; nothing where the file can't be read, or is another one.
std::optional<std::string> FollowedLog::bytesBefore(std::uint64_t offset) const
{
    try {
        const FileDescriptor file = openMachineFile(path_, forReading, runTimeErrors::fileNotFound);
        if (factsOf(file).identity != identity_) return std::nullopt;
        std::string bytes(std::min<std::uint64_t>(offset, knownBytes), '\0');
        bytes.resize(readAt(file, bytes.data(), bytes.size(), offset - bytes.size()));
        return bytes;
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

bool FollowedLog::hasWholeLine() const
{
    try {
        const FileDescriptor file = openMachineFile(path_, forReading, runTimeErrors::fileNotFound);
        std::string head(firstBytes, '\0');
        head.resize(readAt(file, head.data(), head.size(), 0));
        return head.size() == firstBytes || head.find('\n') != std::string::npos;
    } catch (const RunTimeError&) {
        return true; // opening it tells why
    }
}

} // namespace timeline
