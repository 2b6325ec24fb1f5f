#pragma once

#include "hosts/common/logs/log_opener.h"
#include "hosts/viewer/document/shared_timeline.h"
#include "hosts/viewer/document/source_opening.h"
#include "timeline/follow/follower.h"

#include <condition_variable>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <stop_token>
#include <string>
#include <thread>
#include <vector>

namespace viewer {

/// How many of the sources can be followed: those that are logs in files of their own.
enum class Followable { all, some, none };

/// What became of followed logs.
struct LogNews {
    bool grown = false;                      ///< rows came, and stand in the timeline
    bool withdrawn = false;                  ///< rows of a log that was cut off are none any more
    std::optional<Followable> followable;    ///< told when the following begins, or begins again
    std::map<std::size_t, SourceHome> homes; ///< of logs that were begun, by their numbers
    std::vector<std::string> notices;        ///< sentences of what became of files
};

/// Follows the logs of a timeline on a thread of its own, while they are not read otherwise: rows
/// that come are kept there.
class LogFollowing {
public:
    /// Is called on the following's thread, when there is something to tell.
    using Told = std::function<void(LogNews)>;

    /// The timeline outlives it.
    LogFollowing(SharedTimeline& timeline, Told told);
    ~LogFollowing();

    /// Notes which logs are there, before a path of the machine is opened, so that none that comes
    /// later is missed. May be called by any thread.
    void watch(const std::string& path);

    /// Follows, or does not. Waits for nobody.
    void follow(bool wish);

private:
    void run(const std::stop_token& stop);
    LogNews look(timeline::Timeline& timeline);
    void begin(timeline::Timeline& timeline);
    bool mayExchange(timeline::Timeline& timeline, std::size_t number);

    SharedTimeline& timeline_;
    Told told_;
    std::mutex asking_; ///< of the wish, and of the new logs
    std::condition_variable_any asked_;
    bool wish_ = false;
    bool begins_ = false; ///< whether the wish is a new one
    timeline::NewLogs newLogs_;
    bool anyFolder_ = false; ///< among the paths that are watched
    // What follows is the thread's own.
    LogOpener opener_;
    std::optional<timeline::Follower> follower_;
    std::size_t additions_ = 0; ///< of sources, that the follower knows
    std::size_t sources_ = 0;   ///< whose homes are known
    Followable followable_ = Followable::none;
    std::map<std::size_t, std::weak_ptr<const void>> withdrawn_; ///< sources that are used yet
    bool withdraws_ = false;                                     ///< whether the look withdrew rows
    std::jthread thread_;
};

} // namespace viewer
