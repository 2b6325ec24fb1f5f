#pragma once

#include "timeline/lines/line_buffer.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace timeline {

/// Lines that need not be looked at, as the day of those behind them is known without them.
struct PassableLines {
    std::size_t bytes = 0;   ///< that they take, with their ends
    std::uint32_t count = 0; ///< the empty ones included
    /// Which of them are empty, counted from 0, and perhaps some that stand behind them.
    std::vector<std::uint32_t> empty;
};

/// The lines in front of the last one that does not begin behind `place` and whose moment is known
/// without those before it. That is one with a time of day, as long as the clock never goes back to
/// an earlier second than `lastSecond`, or one with a date of its own. Whether that line is a row,
/// and no line without a form that only begins like one, is for the caller to see.
void findPassableLines(const KnownLines& lines, std::size_t place, std::int32_t lastSecond,
                       PassableLines& passable);

} // namespace timeline
