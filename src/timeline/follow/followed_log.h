#pragma once

#include "system/file_facts.h"
#include "timeline/filter/filter.h"
#include "timeline/timeline.h"

#include <functional>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace timeline {

/// What a look at logs has found.
struct News {
    std::vector<IndexRow> rows;       ///< rows that came, as they stand in their logs
    std::vector<std::string> notices; ///< sentences of what became of files
};

/// Makes a source of the log at a path of the machine. Raises RunTimeError.
using LogOpening = std::function<std::unique_ptr<Source>(const std::string& path)>;

/// How logs are followed.
struct FollowManner {
    /// Of a log, about so many rows are added by one look at most; others come with the next one.
    std::size_t mostRows = std::numeric_limits<std::size_t>::max();

    /// Whether the rows of a file stay that was given another name, beside those of the file that
    /// has its own now: each has a source then.
    bool keepsRenamed = false;

    /// Is asked before the source of a number is exchanged, as its file was cut off or written anew
    /// and has its rows no more. False: not yet, it is asked again with the next look. Unset for
    /// one who keeps none.
    std::function<bool(std::size_t)> mayExchange;
};

/// A log whose file is looked at again and again. What became of it shows by its size, its time
/// and by which file its name leads to.
///
/// A file that is cut off or written anew is read from its beginning again. One that is gone is
/// read on for as long as its writer has it; another one in its place is read after it was read to
/// its end.
class FollowedLog {
public:
    /// A log of a timeline that was read; that and the manner outlive this. A last line that has no
    /// end waits from now on until it is whole; a log of which half a line was read is read from
    /// its beginning again once it has grown.
    FollowedLog(Timeline& timeline, std::size_t number, const FollowManner& manner);

    /// A log that has just come.
    FollowedLog(Timeline& timeline, std::string path, const FollowManner& manner);

    /// Whether a source is a log in a file that can be followed.
    static bool canFollow(const Source& source);

    /// Adds what came since the last look. The rows of the last look are gone from the timeline's
    /// sources where a log was begun anew.
    void look(const Filter& filter, const LogOpening& opening, News& news);

    /// Whether the last look left rows that are there for the next one.
    bool hasMore() const { return more_; }

    const std::string& path() const { return path_; }

    /// Which file it is; nothing while none was read.
    const std::optional<FileIdentity>& identity() const { return identity_; }

private:
    std::optional<FileFacts> factsHere() const;
    void lookWhileGone(const Filter& filter, News& news);
    void lookAtSame(const FileFacts& facts, const Filter& filter, const LogOpening& opening,
                    News& news);
    void begin(const FileFacts& facts, const Filter& filter, const LogOpening& opening, News& news);
    void readOn(const Filter& filter, News& news);
    bool hasWhatWasRead() const;
    std::optional<std::string> bytesBefore(std::uint64_t offset) const;
    bool hasWholeLine() const;
    void tell(std::string sentence, News& news);
    class LogSource& log() const;

    Timeline& timeline_;
    const FollowManner& manner_;
    std::string path_;
    std::string name_;
    bool throughLink_; ///< whether a person named a link to it
    std::optional<std::size_t> number_;
    std::optional<FileIdentity> identity_;
    std::int64_t size_ = -1; ///< when it was looked at last
    FileMoment modified_;
    std::optional<std::string> lastBytes_; ///< in front of the end of what was read
    bool gone_ = false;
    bool more_ = false;
    bool halfRead_ = false; ///< whether the last line that was read has no end
    bool renamed_ = false;  ///< whether the file whose rows are there has another name
    bool begins_ = false;   ///< whether it is to be read from its beginning, once it has a line
    std::size_t troublesTold_ = 0;
    std::string told_;
};

} // namespace timeline
