#pragma once

#include "timeline/follow/followed_log.h"
#include "timeline/follow/new_logs.h"

#include <chrono>
#include <deque>
#include <optional>

namespace timeline {

/// Lets a last line that has no end wait until it is whole, in the logs of a timeline that are to
/// be read and followed then.
void holdBackHalfLines(Timeline& timeline);

/// Follows logs that grow: whoever asks from time to time is told what came.
///
/// A look costs a call of the system for each log, and once a second a list of each folder that is
/// watched. Of more than `mostLooks` logs, so many are looked at in turn.
class Follower {
public:
    static constexpr std::size_t mostLooks = 256;

    enum class Order {
        ofLogs, ///< as rows stand in their log, for one log with its successors
        ofTime, ///< rows of one look by their moments
    };

    /// `timeline` outlives it. `opening` makes sources of logs that come, or begin anew.
    Follower(Timeline& timeline, Filter filter, LogOpening opening, NewLogs newLogs, Order order,
             FollowManner manner = {});
    Follower(const Follower&) = delete;
    Follower& operator=(const Follower&) = delete;

    /// Follows a source of the timeline from where it was read to. False for one that can't be
    /// followed, as it is no log in a file of its own.
    bool follow(std::size_t number);

    /// Looks at the logs. Rows point into the timeline's sources until the next look; the timeline
    /// itself does not keep them.
    News look(std::chrono::steady_clock::time_point now);

    /// Whether the last look left rows that are there for the next one.
    bool hasMore() const { return more_; }

private:
    void findNewLogs(News& news);
    bool isFollowed(const std::string& path) const;

    Timeline& timeline_;
    Filter filter_;
    LogOpening opening_;
    NewLogs newLogs_;
    Order order_;
    FollowManner manner_;
    std::deque<FollowedLog> logs_;
    std::size_t next_ = 0; ///< that is looked at
    bool more_ = false;
    std::optional<std::chrono::steady_clock::time_point> listed_;
};

} // namespace timeline
