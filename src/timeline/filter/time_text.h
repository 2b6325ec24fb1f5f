#pragma once

#include "timeline/moment.h"

#include <optional>
#include <string_view>

namespace timeline {

/// The end of a time frame that a text names.
enum class FrameEnd {
    since, ///< a day without a clock is its beginning
    until, ///< a day without a clock is its last millisecond
};

/// A time as a person writes it.
///
/// "2025-02-20", "today" and "yesterday" name a day, "15:20", "15:20:07" and "15:20:07.123" a time
/// of it, and a day may have such a time behind a blank. "-2h" is that long before the last row of
/// what is read, since logs are old when they are read: "today" is that row's day, and so is the
/// day of a time that names none.
class TimeText {
public:
    /// Raises 5, with a sentence that says what may be written, for any other text.
    explicit TimeText(std::string_view text);

    /// Whether `moment` looks at the last row.
    bool needsLastRow() const { return !day_; }

    /// The moment that is meant; `noMoment` where it takes a last row and there is none.
    Moment moment(FrameEnd end, Moment lastRow) const;

private:
    std::optional<Moment> day_;   ///< the beginning of a day that is named with its date
    std::int32_t daysBack_ = 0;   ///< from the last row's day, where none is named
    std::optional<Moment> clock_; ///< since midnight
    std::optional<Moment> back_;  ///< from the last row
};

/// Reads a span of time in milliseconds, such as "90s", "2h" or "1h30m": whole numbers with ms, s,
/// m, h, d or w behind each. Raises 5, with a sentence, for any other text.
Moment readSpan(std::string_view text);

} // namespace timeline
