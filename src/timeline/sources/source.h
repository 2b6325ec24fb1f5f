#pragma once

#include "text/code_page.h"
#include "timeline/filter/filter.h"
#include "timeline/index/index_row.h"
#include "timeline/index/name_table.h"
#include "timeline/lines/line_fields.h"
#include "timeline/record.h"

#include <atomic>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace timeline {

enum class SourceKind { log, formattedCopy, dataFile, traceDatabase, eventLog };

/// What is known of a source before its rows are read.
struct SourceFacts {
    SourceKind kind = SourceKind::log;
    std::string
        name; ///< as a person knows it, in UTF-8: a file's name, or a cabinet's and its member's
    std::string path; ///< of the machine; empty where no file bears a name
    std::string
        process; ///< that wrote it; empty where its name does not tell, or rows have their own
    LineForm form = LineForm::basic;
    std::vector<std::string> guesses; ///< sentences that tell what was guessed, such as its form
};

/// How far a reading is, for another thread to look at, and that thread's wish that it end.
struct Progress {
    std::atomic<std::uint64_t> done{0};  ///< bytes, or whatever the source counts
    std::atomic<std::uint64_t> total{0}; ///< 0 while nobody knows
    std::atomic<bool> cancelled{false};
    /// Of a source that has so many rows, more need not be read: it may end early, after whole
    /// rows. Set before the reading.
    std::size_t enough = std::numeric_limits<std::size_t>::max();
    /// Whether a source may read on one thread more. Set before the reading.
    bool spareThread = false;
};

/// Where rows come from: a log, a table of a trace database, an event log.
///
/// A source is used by one thread at a time. What fails raises RunTimeError with a sentence that
/// names the source; what was read until then stays.
class Source {
public:
    virtual ~Source() = default;

    virtual const SourceFacts& facts() const = 0;

    /// Whether its rows have a column. All have those of the basic line form.
    virtual bool has(Column column) const
    {
        const bool extended =
            column == Column::thread || column == Column::port || column == Column::callId;
        return !extended || facts().form == LineForm::extended;
    }

    /// Appends the rows from where the last call ended to the end, those that the filter lets
    /// through, in the order of the source; ends early, after whole rows, when `progress` is
    /// cancelled. A later call goes on with what was written behind that end.
    virtual void read(const Filter& filter, SourceRows& rows, Progress& progress) = 0;

    /// The texts of one of its rows, in a record whose room is used again. Raises 57 when the file
    /// has them no more.
    virtual void record(const IndexRow& row, Record& record) = 0;

    /// Appends the line of one of its rows, for `recordOfLine`: with both, texts of rows can be
    /// read long before they are looked at. False where rows are more than lines of text. Raises
    /// what `record` raises.
    virtual bool appendLine(const IndexRow&, std::string&) { return false; }

    /// What `record` gives, out of the row's line, which the texts look at.
    virtual void recordOfLine(const IndexRow&, std::string_view, Record&) {}

    /// Which of its rows, or lines that are not empty, a row is: from 1, and the same whatever was
    /// chosen of them.
    virtual std::uint64_t numberOf(const IndexRow& row) const { return row.line; }

    /// Frees what makes the next `record` quick.
    virtual void letGo() {}

    /// The components of its rows.
    const NameTable& components() const { return components_; }

    /// What could not be read, or was passed over, in sentences; they grow while it is read.
    const std::vector<std::string>& troubles() const { return troubles_; }

protected:
    NameTable components_;
    std::vector<std::string> troubles_;
};

} // namespace timeline
