#pragma once

#include "timeline/filter/filter.h"
#include "timeline/timeline.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace cli {

/// The rows of a timeline that are shown, in their order: that of time, or of the log where there
/// is one alone. A trace database alone goes by time.
class ShownRows {
public:
    /// All rows of `timeline`, which outlives this and is read no further meanwhile.
    explicit ShownRows(const timeline::Timeline& timeline);

    /// Keeps those alone that a filter lets through, by looking at the rows themselves. Raises what
    /// reading them raises.
    void choose(const timeline::Filter& filter);

    /// Keeps the first or the last so many alone.
    void keepFirst(std::size_t count);
    void keepLast(std::size_t count);

    std::size_t size() const { return count_; }

    /// Walks over them from the first.
    class Walk {
    public:
        /// The next row; null behind the last.
        const timeline::IndexRow* next();

    private:
        friend class ShownRows;
        explicit Walk(const ShownRows& rows);
        const timeline::IndexRow* step();
        const timeline::IndexRow* stepAhead();

        const ShownRows& rows_;
        std::optional<timeline::Timeline::Cursor> cursor_;
        std::size_t position_ = 0;
        std::size_t left_;
        std::vector<const timeline::IndexRow*> ahead_; ///< that the timeline was told of
        std::size_t nextAhead_ = 0;
    };
    Walk walk() const { return Walk(*this); }

private:
    void orderByLog() const;

    const timeline::Timeline& timeline_;
    /// Unset for those of the timeline. Rows in the order of a log are put here when somebody walks
    /// over them first: to count them takes no room.
    mutable std::optional<std::vector<timeline::IndexRow>> chosen_;
    std::size_t skipped_ = 0; ///< in front of the first
    std::size_t count_;
};

/// The moment of the last row of a timeline in the order of time; `noMoment` where there is none.
timeline::Moment lastMomentOf(const timeline::Timeline& timeline);

/// Reads of each source of a timeline as little as shows which rows are the first `count` of all.
/// Of sources whose stamps go back in time some may stand further behind.
void readFirstRows(timeline::Timeline& timeline, const timeline::Filter& filter,
                   timeline::Progress& progress, std::size_t count);

} // namespace cli
