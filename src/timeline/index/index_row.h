#pragma once

#include "timeline/moment.h"

#include <cstdint>
#include <deque>

namespace timeline {

/// The number of a source among those of a timeline.
using SourceNumber = std::uint16_t;
inline constexpr std::size_t mostSources = 65'535;

/// What is kept in memory of a row; its texts stay in their file.
struct IndexRow {
    Moment moment = noMoment;    ///< a row without a form has that of the row before it
    std::uint64_t place = 0;     ///< where the source finds it: 48 bits, and its source's number
    std::uint32_t line = 0;      ///< in the source's file, from 1
    std::uint16_t component = 0; ///< in the names of its source; `NameTable::other` for too many
    std::int8_t level = 0;       ///< `otherLevel` where it has more than eight bits
    std::uint8_t marks = 0;

    static constexpr std::int8_t otherLevel = -128;
    static constexpr std::uint8_t belongs = 1; ///< it has no form, and belongs to the row before it
    static constexpr std::uint8_t timed = 2;   ///< the line has a stamp of its own

    static constexpr int placeBits = 48;
    static constexpr std::uint64_t largestPlace = (std::uint64_t{1} << placeBits) - 1;

    std::uint64_t placeInSource() const { return place & largestPlace; }
    SourceNumber source() const { return static_cast<SourceNumber>(place >> placeBits); }
    void stand(SourceNumber source, std::uint64_t at)
    {
        place = (std::uint64_t{source} << placeBits) | at;
    }
    bool belongsToRowBefore() const { return (marks & belongs) != 0; }
};
static_assert(sizeof(IndexRow) == 24);

/// The rows of one source, in its order. A deque moves none when it grows.
using SourceRows = std::deque<IndexRow>;

} // namespace timeline
