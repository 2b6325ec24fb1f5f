#pragma once

#include "timeline/timeline.h"

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace timeline {

/// Reads a timeline on a thread of its own, while another one looks at the rows so far.
///
/// The first rows of each source come before more of any. Who looks need not wait for the reading:
/// it pauses then, after a whole row. All methods may be called by any thread.
class BackgroundReading {
public:
    /// Begins to read. The timeline has its sources, outlives this, and is touched by nobody else
    /// meanwhile, but in `look`. `threads` as of `Timeline::read`.
    BackgroundReading(Timeline& timeline, Filter filter, unsigned threads = 1);

    /// Cancels, and waits for the end.
    ~BackgroundReading();

    BackgroundReading(const BackgroundReading&) = delete;
    BackgroundReading& operator=(const BackgroundReading&) = delete;

    /// How far it is. `total` grows until each source was looked at, and is 0 before; `rows` are
    /// those that `look` finds at least.
    struct State {
        std::uint64_t done = 0;
        std::uint64_t total = 0;
        std::size_t rows = 0;
        bool ended = false;                ///< all was read, or the reading was cancelled
        std::vector<std::string> failures; ///< sentences, each once
    };
    State state() const;

    /// Calls with the rows so far, in the order of time; rows that come later may stand between
    /// them. Not from within such a call.
    void look(const std::function<void(const Timeline&)>& looking);

    /// Has it end after a row; the rows so far stay.
    void cancel();

    /// Waits until it has ended.
    void wait();

private:
    void readAll();
    bool readSlice();
    void tell(bool ended);
    void tellFailure(const std::string& sentence);

    Timeline& timeline_;
    Filter filter_;
    unsigned threads_;

    std::mutex reading_; ///< whoever holds it may use the timeline
    std::condition_variable looked_;
    std::atomic<int> lookers_{0}; ///< those that look or wish to
    std::atomic<bool> cancelled_{false};
    Progress slice_; ///< of what is read without a pause

    mutable std::mutex telling_; ///< of the state
    std::condition_variable ended_;
    State state_; ///< before the slice
    std::jthread thread_;
};

} // namespace timeline
