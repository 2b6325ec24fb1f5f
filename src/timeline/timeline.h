#pragma once

#include "timeline/filter/filter.h"
#include "timeline/index/index_row.h"
#include "timeline/rows_ahead.h"
#include "timeline/sources/source.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <string>
#include <vector>

namespace timeline {

/// Rows of many sources as one line of time: by their moments, those of the same moment by their
/// sources' order, and then as they stand in their source. A row's own lines stay behind it.
class Timeline {
public:
    Timeline();
    ~Timeline();

    /// Adds a source behind the others. Raises 7 past `mostSources`.
    void add(std::unique_ptr<Source> source);

    std::size_t sourceCount() const;
    Source& source(std::size_t number) const;

    /// The rows of a source in the order of time.
    const SourceRows& rowsOf(std::size_t number) const;

    /// Reads what the sources have behind what was read before, and puts it in its place. What a
    /// source raises is kept as one of `failures`, and the others are still read. `threads` at most
    /// read at a time; a source may have one of those that no other one needs.
    void read(const Filter& filter, Progress& progress, unsigned threads = 1);

    /// Reads what one source has behind what was read before, and appends it to `rows` in the
    /// source's order instead of keeping it. Raises what the source raises; `rows` has what was
    /// read until then.
    void readOn(std::size_t number, const Filter& filter, Progress& progress,
                std::vector<IndexRow>& rows);

    /// Keeps rows that `readOn` read: puts them in their places among those of their source. They
    /// stand behind all others of it in its file.
    void keep(const std::vector<IndexRow>& rows);

    /// The largest line of the rows of a source; 0 for none.
    std::uint32_t lastLineOf(std::size_t number) const;

    /// Has whoever counts rows from now on leave out those of a source, which stay until another
    /// source is put in its place.
    void withdraw(std::size_t number);
    bool isWithdrawn(std::size_t number) const;

    /// Puts another source in the place of one, whose rows are gone.
    void exchange(std::size_t number, std::unique_ptr<Source> source);

    /// Frees the rows of all sources: they are read on from where they are.
    void forgetRows();

    /// Sentences of what the sources raised while they were read.
    const std::vector<std::string>& failures() const { return failures_; }

    /// The number of all rows, those without a form included.
    std::size_t size() const;

    /// The texts of a row.
    void record(const IndexRow& row, Record& record) const;

    /// How many rows whoever walks over them tells `expect` of at a time; 0 where there are so few
    /// sources that it does nothing.
    std::size_t rowsAhead() const;

    /// Tells which rows `record` will be asked for next, in this order and perhaps not for all, so
    /// that it can read those of one file together.
    void expect(const std::vector<const IndexRow*>& rows) const;

    /// Walks over the rows from the first one at a moment or later.
    class Cursor;
    Cursor begin() const;
    Cursor from(Moment moment) const;

private:
    struct Part;

    /// Sources that are quick to ask at a time.
    static constexpr std::size_t mostQuickSources = 64;

    std::deque<Part> parts_;
    std::vector<std::string> failures_;
    mutable std::vector<SourceNumber> quick_; ///< those that were asked for records last
    mutable RowsAhead ahead_;
};

/// A place between rows. What is read meanwhile makes it worthless.
class Timeline::Cursor {
public:
    /// The next row in the order of time; null behind the last.
    const IndexRow* next();

private:
    friend class Timeline;
    struct Head {
        Moment moment;
        std::uint32_t source;
    };
    Cursor(const Timeline& timeline, Moment moment);
    static bool isLater(const Head& one, const Head& other);

    const Timeline* timeline_;
    std::vector<std::size_t> positions_; ///< of the next row of each source
    std::vector<Head> heads_;            ///< a heap, the earliest first
};

} // namespace timeline
