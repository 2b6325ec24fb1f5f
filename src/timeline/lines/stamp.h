#pragma once

#include "timeline/moment.h"

#include <cstdint>
#include <string_view>

namespace timeline {

/// The time that a line begins with.
struct Stamp {
    bool dated = false;
    Moment day = 0;         ///< the beginning of its day; of a dated one alone
    std::int32_t clock = 0; ///< milliseconds since midnight
};

/// Reads the stamp "15:23:07:123" or "2025-02-20 15:23:07" off the beginning of a line. False for
/// any other beginning, and for a time that no day has; a day that no calendar has is left out.
bool readStamp(std::string_view line, Stamp& stamp);

} // namespace timeline
