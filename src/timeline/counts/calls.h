#pragma once

#include "timeline/record.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <unordered_map>
#include <vector>

namespace timeline {

struct IndexRow;
class Timeline;

/// A call on its way through the system.
struct Call {
    std::string id; ///< UTF-8
    Moment first = noMoment;
    Moment last = noMoment;
    std::uint64_t rows = 0;
    std::uint64_t errors = 0;           ///< rows of level 0
    std::uint64_t warnings = 0;         ///< rows of level 1
    std::vector<std::string> processes; ///< in the order in which they had it
};

/// Gathers the rows of each call id. Rows without one are passed over, as all are of servers that
/// write no call ids.
class CallCounter {
public:
    /// `timeline` outlives it. Past `mostCalls` it goes on with those that it knows alone.
    explicit CallCounter(const Timeline& timeline,
                         std::size_t mostCalls = std::numeric_limits<std::size_t>::max())
        : timeline_(timeline), mostCalls_(mostCalls)
    {}

    /// Counts a row; rows come in the order of time. Raises what reading its texts raises.
    void add(const IndexRow& row);

    /// In the order of their first rows.
    const std::vector<Call>& calls() const { return calls_; }

    /// Whether a call was left out, as there were so many before it.
    bool leftOut() const { return leftOut_; }

private:
    const Timeline& timeline_;
    std::size_t mostCalls_;
    bool leftOut_ = false;
    Record record_;
    std::vector<Call> calls_;
    std::unordered_map<std::string, std::size_t> places_; ///< in `calls_`, by id
};

} // namespace timeline
