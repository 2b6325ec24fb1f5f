#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>
#include <utility>
#include <vector>

/// How one log was read.
struct LogSight {
    std::string unread;          ///< why the reading broke off; empty when nothing failed
    std::int64_t lines = 0;      ///< handed out by the latest reading
    bool readToEnd = false;      ///< the latest reading came to the log's end
    bool cut = false;            ///< it lost bytes while it was read
    bool vanished = false;       ///< it was not there any more when it had been read
    std::int64_t rowsLost = 0;   ///< rows of the trace database that were begun and not stored
    std::string rowsLostBecause; ///< the first reason; empty when no statement gave one
};

/// What the services of a tool saw of the server's logs: the tool tells of no log that it could not
/// list, open or read to its end, and goes on.
///
/// One for a run of the tool, since a page lists the logs long before the gather reads them. The
/// watched services fill it, and who tells the person asks it. Paths and patterns are the tool's,
/// as it hands them to the file system.
class GatherReport {
public:
    /// A listing succeeded and gave `names`: what was said of it, and of the logs that it named,
    /// holds no more.
    void listed(const std::string& pattern, const std::vector<std::string>& names = {});

    /// A listing failed.
    void notListed(const std::string& pattern, std::string why);

    /// A file's facts could be had, or not.
    void seen(const std::string& path);
    void notSeen(const std::string& path, std::string why);

    /// A reading of a log begins; the rows that are begun from now on are those of its lines.
    void readingBegins(const std::string& path);

    /// The reading ends: `sight` tells of it, but for the rows.
    void readingEnds(const std::string& path, LogSight sight);

    /// A row of the trace database was begun; one of a process was stored; it could not be stored.
    void rowBegun() { ++rowsBegun_; }
    void rowStored(std::string_view process);
    void rowLost(const std::string& why);

    /// Why the first of the listings of a folder that failed did so; none when all succeeded.
    std::optional<std::string> listingFailure(const std::string& folder) const;

    /// Names of the logs of a folder that were listed and could not be looked at, with the reasons,
    /// sorted.
    std::vector<std::pair<std::string, std::string>> unseenLogs(const std::string& folder) const;

    /// Whether the latest listing of a pattern gave a name.
    bool wasListed(const std::string& pattern, const std::string& name) const;

    /// How many rows were stored of each process.
    const std::map<std::string, std::int64_t, std::less<>>& storedRows() const
    {
        return storedRows_;
    }

    /// The readings and rows so far count no more.
    void forgetReadings();

    /// The latest reading of a log; null for one that was not read.
    const LogSight* reading(const std::string& path) const;

private:
    struct Unseen {
        std::string listing; ///< the pattern whose listing named it
        std::string why;
    };

    std::map<std::string, std::string> failedListings_;               ///< by pattern
    std::map<std::string, std::unordered_set<std::string>> listings_; ///< names by pattern
    std::map<std::string, Unseen> unseen_;                            ///< by path
    std::map<std::string, LogSight> readings_;                        ///< by path
    std::string latestListing_;
    std::int64_t rowsBegun_ = 0; ///< of the reading that goes on
    std::int64_t rowsStored_ = 0;
    std::string firstLoss_;
    std::map<std::string, std::int64_t, std::less<>> storedRows_; ///< by process
};
