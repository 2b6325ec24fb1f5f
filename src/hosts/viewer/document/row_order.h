#pragma once

#include "timeline/timeline.h"

#include <cstdint>
#include <limits>
#include <optional>
#include <utility>
#include <vector>

namespace viewer {

/// All rows of a timeline in the order of time, with the row of any number at hand.
///
/// A number a row would take 80 megabytes at ten million of them. Instead the order notes how far
/// each source was at every so many rows, 4 bytes a source: what lies between is walked in some
/// microseconds. Ten sources with a million rows each take 400 kilobytes, and the notes are set so
/// far apart that they never take more than some `mostNotes`.
///
/// It knows the rows that were there when it was begun. The timeline is handed to each call, and is
/// the same one, by whoever may use it then.
class RowOrder {
public:
    /// Of all rows but those that were withdrawn.
    explicit RowOrder(const timeline::Timeline& timeline);

    /// Of the rows of an order, which was built, and of those that were kept since: what stands
    /// before the first of these is taken over, and takes no time. Rows that were withdrawn since
    /// are still among them.
    RowOrder(const RowOrder& before, const timeline::Timeline& timeline);

    /// What an order has in common with the one that it grew from.
    struct Growth {
        std::size_t same = 0;      ///< rows at the top
        std::size_t sameWhole = 0; ///< those of them that can have no new line of their own
        std::vector<std::uint32_t> firstOfSource; ///< the position of each source's first new row
    };
    const Growth& growth() const { return growth_; }

    /// Whether a row is one of these.
    bool has(const timeline::IndexRow& row) const
    {
        return row.source() < limits_.size() && limits_[row.source()] > 0 &&
               row.line <= lastLines_[row.source()];
    }

    /// The number of all rows.
    std::size_t size() const { return size_; }

    /// Goes on with its notes for so many rows; true once it has them all. Until then no row may
    /// be asked for.
    bool build(const timeline::Timeline& timeline, std::size_t rows);

    class Walk;
    /// Walks from the row of a number, which is `size()` at most.
    Walk from(const timeline::Timeline& timeline, std::size_t row) const;

    /// The number of the first row at a moment or later; `size()` for none.
    std::size_t firstFrom(const timeline::Timeline& timeline, timeline::Moment moment) const;

    /// The number of a row; nothing where it is none of these.
    std::optional<std::size_t> find(const timeline::Timeline& timeline,
                                    const timeline::IndexRow& row) const;

    /// The moments of the first row and of the last, rows without one aside; nothing where no row
    /// has one.
    std::optional<std::pair<timeline::Moment, timeline::Moment>>
    span(const timeline::Timeline& timeline) const;

    /// Bytes that its notes may take, at most twice.
    static constexpr std::size_t mostNotes = 8'000'000;

private:
    struct Head {
        timeline::Moment moment;
        std::uint32_t source;
        bool operator<(const Head& other) const
        {
            return moment != other.moment ? moment < other.moment : source < other.source;
        }
    };

    void setStride();
    void findGrowth(const RowOrder& before, const timeline::Timeline& timeline);
    void takeNotes(const RowOrder& before);
    std::size_t countBefore(const timeline::Timeline& timeline, std::uint32_t source,
                            timeline::Moment moment, bool orAt) const;

    std::vector<std::uint32_t> limits_;    ///< of the rows of each source
    std::vector<std::uint32_t> lastLines_; ///< the largest line of each source
    Growth growth_;
    std::size_t size_ = 0;
    std::size_t stride_ = 0;           ///< rows from one note to the next
    std::vector<std::uint32_t> notes_; ///< the position of each source, at each note
    std::size_t built_ = 0;
    std::vector<std::uint32_t> positions_; ///< of what is being built
    std::vector<Head> heads_;
};

/// A place between rows, for as long as the order lives.
class RowOrder::Walk {
public:
    /// The next row in the order of time; null behind the last.
    const timeline::IndexRow* next();

    /// The same without going on.
    const timeline::IndexRow* peek() const;

    /// Where the row that `next` gave last stands among those of its source.
    std::size_t position() const { return position_; }

private:
    friend class RowOrder;
    Walk(const timeline::Timeline& timeline, const RowOrder& order,
         std::vector<std::uint32_t> positions);
    Walk(const timeline::Timeline& timeline, const RowOrder& order,
         std::vector<std::uint32_t> positions, std::vector<Head> heads)
        : timeline_(&timeline), order_(&order), positions_(std::move(positions)),
          heads_(std::move(heads))
    {}
    void sink();

    const timeline::Timeline* timeline_;
    const RowOrder* order_;
    std::vector<std::uint32_t> positions_;
    std::vector<Head> heads_; ///< a heap, the earliest first
    std::size_t position_ = 0;
};

} // namespace viewer
