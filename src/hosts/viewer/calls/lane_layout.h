#pragma once

#include "hosts/viewer/calls/call_rows.h"
#include "hosts/viewer/calls/time_scale.h"

#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

namespace viewer {

/// Where the rows of a call stand over a range of times: dots in lanes. Rows that would stand upon
/// each other share a dot, so that there are never more of them than a screen shows.
class LaneLayout {
public:
    /// What stands at a place of a lane.
    struct Dot {
        int x = 0;             ///< of the first of its rows
        std::size_t row = 0;   ///< the first of its most severe rows
        std::size_t count = 0; ///< of its rows
        Severity severity = Severity::none;
    };

    /// Pixels of a lane that share a dot.
    static constexpr int cell = 4;

    LaneLayout() = default;
    LaneLayout(const CallRows& rows, const TimeScale& scale);

    /// The dots of a lane in sight, from the left.
    const std::vector<Dot>& dots(std::size_t lane) const { return lanes_[lane]; }
    std::size_t lanes() const { return lanes_.size(); }

    /// The dot of a lane next to a place, if it is not farther away than so many pixels.
    std::optional<Dot> dotAt(std::size_t lane, int x, int reach) const;

    /// The first moment of a call's rows and the last; nothing where none has one.
    static std::optional<std::pair<timeline::Moment, timeline::Moment>>
    timesOf(const CallRows& rows);

    /// The place of a row: one without a moment stands with the first that has one.
    static double xOf(const CallRow& row, const TimeScale& scale);

private:
    std::vector<std::vector<Dot>> lanes_;
};

} // namespace viewer
