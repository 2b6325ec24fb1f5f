#pragma once

#include "timeline/record.h"

#include <cstdint>
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
    std::vector<std::string> processes; ///< in the order in which they had it
};

/// Gathers the rows of each call id. Rows without one are passed over, as all are of servers that
/// write no call ids.
class CallCounter {
public:
    /// `timeline` outlives it.
    explicit CallCounter(const Timeline& timeline) : timeline_(timeline) {}

    /// Counts a row; rows come in the order of time. Raises what reading its texts raises.
    void add(const IndexRow& row);

    /// In the order of their first rows.
    const std::vector<Call>& calls() const { return calls_; }

private:
    const Timeline& timeline_;
    Record record_;
    std::vector<Call> calls_;
    std::unordered_map<std::string, std::size_t> places_; ///< in `calls_`, by id
};

} // namespace timeline
