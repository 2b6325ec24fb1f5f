#include "timeline/follow/follower.h"

#include "system/root_folder.h"
#include "timeline/sources/log_source.h"

#include <algorithm>
#include <utility>

namespace timeline {

namespace {

constexpr std::chrono::seconds betweenLists{1};

} // namespace

void holdBackHalfLines(Timeline& timeline)
{
    for (std::size_t at = 0; at < timeline.sourceCount(); ++at)
        if (auto* log = dynamic_cast<LogSource*>(&timeline.source(at))) log->waitForLineEnds(true);
}

Follower::Follower(Timeline& timeline, Filter filter, LogOpening opening, NewLogs newLogs,
                   Order order, FollowManner manner)
    : timeline_(timeline), filter_(std::move(filter)), opening_(std::move(opening)),
      newLogs_(std::move(newLogs)), order_(order), manner_(std::move(manner))
{}

bool Follower::follow(std::size_t number)
{
    if (!FollowedLog::canFollow(timeline_.source(number))) return false;
    logs_.emplace_back(timeline_, number, manner_);
    return true;
}

News Follower::look(std::chrono::steady_clock::time_point now)
{
    News news;
    const std::size_t looks = std::min(logs_.size(), mostLooks);
    more_ = false;
    for (std::size_t at = 0; at < looks && news.rows.size() < manner_.mostRows; ++at) {
        next_ %= logs_.size();
        FollowedLog& log = logs_[next_++];
        log.look(filter_, opening_, news);
        more_ = more_ || log.hasMore();
    }
    more_ = more_ || news.rows.size() >= manner_.mostRows;
    if (!listed_ || now - *listed_ >= betweenLists) {
        listed_ = now;
        findNewLogs(news);
    }
    if (order_ == Order::ofTime)
        std::stable_sort(
            news.rows.begin(), news.rows.end(),
            [](const IndexRow& one, const IndexRow& other) { return one.moment < other.moment; });
    return news;
}

/// Begins with the logs that came, after what the older ones had.
void Follower::findNewLogs(News& news)
{
    for (std::string& path : newLogs_.come()) {
        if (isFollowed(path)) continue;
        news.notices.push_back(lastNameOf(path) + " is a new log, and is followed");
        logs_.emplace_back(timeline_, std::move(path), manner_);
        logs_.back().look(filter_, opening_, news);
    }
}

/// Whether a name, or the file that it leads to, is that of a log that is followed: one that was
/// given another name is none that is new.
bool Follower::isFollowed(const std::string& path) const
{
    const auto facts = unfollowedFactsOf(path);
    return std::any_of(logs_.begin(), logs_.end(), [&](const FollowedLog& log) {
        return log.path() == path || (facts && log.identity() == facts->identity);
    });
}

} // namespace timeline
