#pragma once

#include "hosts/viewer/document/row_set.h"
#include "hosts/viewer/document/shared_timeline.h"
#include "hosts/viewer/document/view.h"
#include "timeline/filter/text_pattern.h"

#include <condition_variable>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <stop_token>
#include <thread>

namespace viewer {

/// The rows on show in which a text occurs, by their places.
struct Hits {
    std::uint64_t number = 0; ///< of the wish that they answer
    RowSet rows;              ///< of the places that were looked at so far
    bool complete = false;
};

/// Looks through the rows on show for a text, on a thread of its own, and tells of the hits while
/// it finds more.
class HitFinder {
public:
    using Told = std::function<void(std::shared_ptr<const Hits>)>;

    /// `told` is called on the finder's thread. The timeline outlives the finder.
    HitFinder(SharedTimeline& timeline, Told told);
    ~HitFinder();

    struct Wish {
        std::uint64_t number = 0;
        std::shared_ptr<const View> view;
        std::shared_ptr<const timeline::TextPattern> pattern; ///< null for none: no row is a hit

        /// Of the same pattern in the view that this one grew from: the number of that wish, and
        /// how many places at the top are as they were. What was found there stays.
        struct Before {
            std::uint64_t number = 0;
            std::size_t same = 0;
        };
        std::optional<Before> before;
    };

    /// Looks for something else. What was looked for before is given up.
    void find(Wish wish);

private:
    void run(const std::stop_token& stop);
    void answer(const Wish& wish, const std::stop_token& stop);
    bool isGivenUp(const std::stop_token& stop) const;

    SharedTimeline& timeline_;
    Told told_;
    mutable std::mutex asking_; ///< of the wish
    std::condition_variable_any asked_;
    std::optional<Wish> wish_;
    Hits hits_; ///< so far, the thread's own
    std::jthread thread_;
};

} // namespace viewer
