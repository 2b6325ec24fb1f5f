#pragma once

#include "timeline/moment.h"

#include <functional>
#include <mutex>
#include <utility>
#include <vector>

namespace timeline {

/// The clock on the server's wall, beside universal time. May be used by several threads.
class ServerClock {
public:
    using ToLocal = std::function<Moment(Moment universal)>;

    explicit ServerClock(ToLocal toLocal) : toLocal_(std::move(toLocal)) {}

    Moment local(Moment universal);

    /// Of an hour that the clock shows twice, one of the two moments (`whenShown` tells both); of
    /// one that it skips, one as far from its beginning or its end.
    Moment universal(Moment local);

    /// When the clock shows a time, earliest first: twice where it was put back, never where it was
    /// put forward.
    std::vector<Moment> whenShown(Moment local);

    /// The earliest and the latest time that the clock shows from one universal moment to another,
    /// both included. They are those of the two moments unless the clock is put back between them.
    Moment earliestShown(Moment from, Moment to);
    Moment latestShown(Moment from, Moment to);

private:
    Moment offsetAt(Moment universal);

    std::mutex mutex_;
    ToLocal toLocal_;
    Moment quarter_ = noMoment; ///< whose offset is known
    Moment offset_ = 0;
};

} // namespace timeline
