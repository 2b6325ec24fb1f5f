#pragma once

#include "system/file_facts.h"
#include "timeline/filter/filter.h"
#include "timeline/timeline.h"

#include <functional>
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

/// A log whose file is looked at again and again. What became of it shows by its size, its time
/// and by which file its name leads to.
///
/// A file that is cut off or written anew is read from its beginning again. One that is gone is
/// read on for as long as its writer has it; another one in its place is read after it was read to
/// its end.
class FollowedLog {
public:
    /// A log of a timeline, which outlives this, that was read. A last line that has no end waits
    /// from now on until it is whole.
    FollowedLog(Timeline& timeline, std::size_t number);

    /// A log that has just come.
    FollowedLog(Timeline& timeline, std::string path);

    /// Whether a source is a log in a file that can be followed.
    static bool canFollow(const Source& source);

    /// Adds what came since the last look. The rows of the last look are gone from the timeline's
    /// sources where a log was begun anew.
    void look(const Filter& filter, const LogOpening& opening, News& news);

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
    std::string path_;
    std::string name_;
    bool throughLink_; ///< whether a person named a link to it
    std::optional<std::size_t> number_;
    std::optional<FileIdentity> identity_;
    std::int64_t size_ = -1; ///< when it was looked at last
    FileMoment modified_;
    std::optional<std::string> lastBytes_; ///< in front of the end of what was read
    bool gone_ = false;
    bool begins_ = false; ///< whether it is to be read from its beginning, once it has a line
    std::size_t troublesTold_ = 0;
    std::string told_;
};

} // namespace timeline
