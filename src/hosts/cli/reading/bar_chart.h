#pragma once

#include "timeline/counts/histogram.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace cli {

/// Rows of a bucket by what their levels tell.
struct BucketParts {
    std::uint64_t errors = 0;
    std::uint64_t warnings = 0;
    std::uint64_t others = 0;
};
BucketParts partsOfBucket(const timeline::Histogram::Bucket& bucket);

/// A histogram as lines of a terminal, a bucket each: when it begins, a bar of "!" for errors, "+"
/// for warnings and "#" for other rows, and their numbers. A bar is as long as its rows are many
/// beside the largest bucket's, and whatever a bucket has is seen in it.
std::string barChart(const timeline::Histogram& histogram, std::size_t width, bool colours);

} // namespace cli
