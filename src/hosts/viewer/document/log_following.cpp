#include "hosts/viewer/document/log_following.h"

#include "system/file_facts.h"
#include "timeline/sources/log_source.h"

#include <chrono>
#include <utility>

namespace viewer {

namespace {

using timeline::Timeline;

/// A line is shown soon after it was written, and looking costs next to nothing.
constexpr std::chrono::milliseconds betweenLooks{100};

/// Rows that a look adds: some milliseconds, for which nobody else has the timeline.
constexpr std::size_t rowsOfLook = 5'000;

/// Whether no other file has the name of a source since, and is a source of its own.
bool hasItsName(const Timeline& timeline, std::size_t number)
{
    const auto* log = dynamic_cast<const timeline::LogSource*>(&timeline.source(number));
    if (log == nullptr) return true;
    for (std::size_t later = number + 1; later < timeline.sourceCount(); ++later) {
        const auto* other = dynamic_cast<const timeline::LogSource*>(&timeline.source(later));
        if (other != nullptr && other->facts().path == log->facts().path &&
            other->fileIdentity() != log->fileIdentity())
            return false;
    }
    return true;
}

} // namespace

LogFollowing::LogFollowing(SharedTimeline& timeline, Told told)
    : timeline_(timeline), told_(std::move(told)), opener_(timeline::SourceOptions()),
      thread_([this](const std::stop_token& stop) { run(stop); })
{}

LogFollowing::~LogFollowing() = default;

void LogFollowing::watch(const std::string& path)
{
    const auto facts = factsOf(path);
    const bool isFolder = facts && facts->kind == FileKind::folder;
    const std::lock_guard lock(asking_);
    anyFolder_ = anyFolder_ || isFolder;
    if (isFolder)
        newLogs_.watchFolder(path);
    else
        newLogs_.watchProcessOf(path);
}

void LogFollowing::follow(bool wish)
{
    const std::lock_guard lock(asking_);
    begins_ = wish && (begins_ || !wish_);
    wish_ = wish;
    asked_.notify_all();
}

void LogFollowing::run(const std::stop_token& stop)
{
    bool more = false;
    for (;;) {
        {
            std::unique_lock lock(asking_);
            const auto pause = more ? std::chrono::milliseconds(0) : betweenLooks;
            asked_.wait_for(lock, stop, pause, [] { return false; });
            asked_.wait(lock, stop, [this] { return wish_; });
            if (stop.stop_requested()) return;
        }
        LogNews news;
        more = timeline_.change([&](Timeline& timeline) { news = look(timeline); }) && follower_ &&
               follower_->hasMore();
        if (news.grown || news.withdrawn || news.followable || !news.notices.empty())
            told_(std::move(news));
    }
}

LogNews LogFollowing::look(Timeline& timeline)
{
    LogNews news;
    if (timeline.sourceCount() == 0) return news;
    {
        const std::lock_guard lock(asking_);
        if (std::exchange(begins_, false)) news.followable = followable_;
    }
    if (!follower_ || additions_ != timeline_.additions()) {
        begin(timeline);
        news.followable = followable_;
    }
    withdraws_ = false;
    timeline::News found = follower_->look(std::chrono::steady_clock::now());
    timeline.keep(found.rows);
    for (; sources_ < timeline.sourceCount(); ++sources_) {
        const timeline::SourceFacts& facts = timeline.source(sources_).facts();
        news.homes[sources_] = {facts.name, facts.path};
    }
    news.grown = !found.rows.empty();
    news.withdrawn = withdraws_;
    news.notices = std::move(found.notices);
    return news;
}

/// Follows what is there now. What an earlier follower knew shows by the sources.
void LogFollowing::begin(Timeline& timeline)
{
    additions_ = timeline_.additions();
    sources_ = timeline.sourceCount();
    timeline::NewLogs newLogs;
    bool anyFolder = false;
    {
        const std::lock_guard lock(asking_);
        newLogs = newLogs_;
        anyFolder = anyFolder_;
    }
    timeline::FollowManner manner;
    manner.mostRows = rowsOfLook;
    manner.keepsRenamed = true;
    manner.mayExchange = [this, &timeline](std::size_t number) {
        return mayExchange(timeline, number);
    };
    follower_.emplace(
        timeline, timeline::Filter(),
        [this](const std::string& path) { return opener_.openLog(path); }, std::move(newLogs),
        timeline::Follower::Order::ofLogs, std::move(manner));
    const std::size_t sources = timeline.sourceCount();
    std::size_t followed = 0;
    for (std::size_t number = 0; number < sources; ++number)
        if (hasItsName(timeline, number) && follower_->follow(number)) ++followed;
    followable_ = followed == sources         ? Followable::all
                  : followed > 0 || anyFolder ? Followable::some
                                              : Followable::none;
}

/// Withdraws the rows of a source whose file has them no more; true once nobody uses them.
bool LogFollowing::mayExchange(Timeline& timeline, std::size_t number)
{
    if (timeline.rowsOf(number).empty()) return true;
    if (!timeline.isWithdrawn(number)) {
        withdrawn_[number] = timeline_.withdraw(timeline, number);
        withdraws_ = true;
    }
    return withdrawn_[number].expired();
}

} // namespace viewer
