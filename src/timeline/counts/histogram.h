#pragma once

#include "timeline/moment.h"

#include <cstdint>
#include <map>
#include <vector>

namespace timeline {

/// Rows over time by their levels, in buckets of a width that a person counts in: seconds, minutes,
/// quarters of an hour, days. Buckets begin where a clock or a calendar has their width begin.
class Histogram {
public:
    struct Bucket {
        Moment begin = 0;
        std::uint64_t rows = 0;
        std::map<std::int16_t, std::uint64_t> levels; ///< rows of each
    };

    /// For moments from `first` to `last`; `mostBuckets` is 2 at least.
    Histogram(Moment first, Moment last, std::size_t mostBuckets);

    /// Counts a row; one outside of the moments is left out.
    void add(Moment moment, std::int16_t level);

    /// Takes a row back that was counted.
    void remove(Moment moment, std::int16_t level);

    /// Has buckets for further moments. Where they would be more than `mostBuckets`, they become
    /// wider: what was counted stays exact.
    void cover(Moment first, Moment last, std::size_t mostBuckets);

    /// One behind the other, those without rows included.
    const std::vector<Bucket>& buckets() const { return buckets_; }

    /// The width of a bucket in milliseconds.
    Moment width() const { return width_; }

private:
    Bucket* bucketOf(Moment moment);

    Moment width_;
    std::vector<Bucket> buckets_;
};

} // namespace timeline
