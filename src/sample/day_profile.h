#pragma once

#include "sample/moment.h"

#include <vector>

namespace sample {

/// How the server's work spreads over the coverage: busy mornings, quiet nights.
class DayProfile {
public:
    DayProfile();

    /// When `part` of the work is done, of `whole` in all: for 0 the coverage's start.
    /// Whole numbers throughout, so that every machine finds the same moment.
    Moment momentAt(std::int64_t part, std::int64_t whole) const;

private:
    std::vector<std::int64_t> doneAtMinute_; ///< work done up to the start of each minute
};

} // namespace sample
