#pragma once

#include "hosts/viewer/document/shared_timeline.h"

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <mutex>
#include <optional>
#include <stop_token>
#include <thread>
#include <utility>

namespace viewer {

/// Tells whether nobody waits any more for what is being done.
using GivenUp = std::function<bool()>;

/// Answers wishes on a thread of its own, the last one alone: with a new wish the one before is
/// given up.
template <typename Wish>
class WishThread {
public:
    using Answer = std::function<void(const Wish&, const GivenUp&)>;

    /// `answer` is called on the thread; it ends soon when its wish is given up, as it is when this
    /// goes.
    explicit WishThread(Answer answer)
        : answer_(std::move(answer)), thread_([this](const std::stop_token& stop) { run(stop); })
    {}

    void wish(Wish wish)
    {
        const std::lock_guard lock(asking_);
        wish_ = std::move(wish);
        ++wishes_;
        asked_.notify_all();
    }

    void giveUp()
    {
        const std::lock_guard lock(asking_);
        wish_.reset();
        ++wishes_;
    }

private:
    void run(const std::stop_token& stop)
    {
        for (;;) {
            std::unique_lock lock(asking_);
            if (!asked_.wait(lock, stop, [this] { return wish_.has_value(); })) return;
            const Wish wish = *std::exchange(wish_, std::nullopt);
            const std::uint64_t number = wishes_;
            lock.unlock();
            answer_(wish, [this, &stop, number] {
                if (stop.stop_requested()) return true;
                const std::lock_guard asking(asking_);
                return wishes_ != number;
            });
        }
    }

    Answer answer_;
    std::mutex asking_; ///< of the wish
    std::condition_variable_any asked_;
    std::optional<Wish> wish_;
    std::uint64_t wishes_ = 0;
    std::jthread thread_;
};

/// Does a job on rows in steps of some milliseconds, between which they are free for whoever shows
/// them, and tells of it now and then and at its end. The job's `goOn(timeline, until)` is true
/// when it is done; `tell(done)` is called between two steps.
template <typename Job, typename Tell>
void doInParts(SharedTimeline& timeline, Job& job, const GivenUp& givenUp, const Tell& tell)
{
    using Clock = std::chrono::steady_clock;
    constexpr std::chrono::milliseconds stepLength{2};
    constexpr std::chrono::milliseconds longestPart{2000};
    std::chrono::milliseconds partLength{50};
    auto nextPart = Clock::now() + partLength;
    for (bool done = false; !done;) {
        if (givenUp()) return;
        timeline.work([&](const timeline::Timeline& rows) {
            done = job.goOn(rows, Clock::now() + stepLength);
        });
        if (!done && Clock::now() < nextPart) continue;
        tell(done);
        partLength = std::min(2 * partLength, longestPart);
        nextPart = Clock::now() + partLength;
    }
}

} // namespace viewer
