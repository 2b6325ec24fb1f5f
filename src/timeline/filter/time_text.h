#pragma once

#include "timeline/moment.h"
#include "timeline/server_clock.h"

#include <optional>
#include <string_view>

namespace timeline {

/// The end of a time frame that a text names.
enum class FrameEnd {
    since, ///< a day without a clock is its beginning
    until, ///< a day without a clock is its last millisecond
};

/// A time as a person writes it, by the clock on the server's wall.
///
/// "2025-02-20", "today" and "yesterday" name a day, "15:20", "15:20:07" and "15:20:07.123" a time
/// of it, and a day may have such a time behind a blank, or behind a T where the day is a date.
/// Behind both may stand how far that clock is ahead of universal time, "Z", "+01:00", "+0100" or
/// "+1": the time is then that clock's, and not the server's. "now", "2 hours ago", "1h30m ago" and
/// "-2h" are reckoned from a reference, as are today and the day of a time that names none: the
/// present moment, or for logs, which are old when they are read, that of their last row. Words
/// may be in any case.
class TimeText {
public:
    /// Raises 5, with a sentence that says what may be written, for any other text.
    explicit TimeText(std::string_view text);

    /// Whether `moment` looks at the reference.
    bool needsReference() const { return !day_; }

    /// Whether a moment of universal time is meant, which the server's clock may show as it shows
    /// another one an hour later or earlier.
    bool isInstant() const { return back_ || ahead_; }

    /// The moment that is meant, by the server's clock; `noMoment` where it takes a reference and
    /// there is none. So long before the reference is long enough for either of two moments that
    /// the clock shows alike, and for each time that it has shown since.
    Moment moment(FrameEnd end, Moment reference, ServerClock& clock) const;

    /// The same moment in universal time. Of two the first one for `since`, the second for `until`;
    /// of a time that the clock skips, what `ServerClock::universal` gives.
    Moment universal(FrameEnd end, Moment reference, ServerClock& clock) const;

private:
    Moment wall(FrameEnd end, Moment reference) const;

    std::optional<Moment> day_;   ///< the beginning of a day that is named with its date
    std::int32_t daysBack_ = 0;   ///< from the reference's day, where none is named
    std::optional<Moment> clock_; ///< since midnight
    std::optional<Moment> ahead_; ///< what the named time's clock is ahead of universal time
    std::optional<Moment> back_;  ///< from the reference
};

/// Reads a span of time in milliseconds, such as "90s", "2h", "1h30m" or "2 hours": whole numbers
/// with ms, s, m, h, d, w or their words behind each. Raises 5, with a sentence, for any other
/// text.
Moment readSpan(std::string_view text);

/// Reads what a clock is ahead of universal time, in milliseconds: "Z", "+01:00", "-0800" or "+1",
/// 14 hours at most. Nothing for any other text.
std::optional<Moment> readOffset(std::string_view text);

} // namespace timeline
