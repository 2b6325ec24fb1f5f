#pragma once

#include "timeline/moment.h"

#include <QString>

#include <vector>

namespace viewer {

/// Marks of a line of time, where a clock or a calendar has round numbers.
struct TimeTicks {
    timeline::Moment step = 1; ///< from one to the next, in milliseconds
    std::vector<timeline::Moment> moments;

    /// The marks from one moment to another, so near to each other as `most` of them allow, which
    /// is 1 at least.
    static TimeTicks between(double from, double to, int most);

    /// What a mark says: a day, or a clock's time with what the step needs of it.
    QString text(timeline::Moment moment) const;
};

} // namespace viewer
