#pragma once

#include "hosts/cli/config/person_settings.h"
#include "hosts/cli/reading/row_cells.h"
#include "hosts/cli/reading/row_format.h"
#include "hosts/cli/reading/shown_rows.h"
#include "hosts/cli/terminal/interrupt.h"
#include "hosts/cli/terminal/output.h"

#include <optional>
#include <string>

namespace cli {

struct ReadOptions;

/// Where what `read` shows goes: a terminal, perhaps by way of a pager, or whatever else standard
/// output leads to.
class ResultTarget {
public:
    /// An option of the command counts before what the person has set.
    ResultTarget(const ReadOptions& options, const PersonSettings& settings, Output& output);
    ~ResultTarget();
    ResultTarget(const ResultTarget&) = delete;
    ResultTarget& operator=(const ResultTarget&) = delete;

    bool isTerminal() const { return terminal_; }
    bool colours() const { return colours_; }

    /// The columns of the terminal, or 80.
    std::size_t width() const { return width_; }

    Output& output() { return output_; }

    /// Begins the results: with the pager, where there is to be one.
    void begin();

    /// Whether nobody wants any more of them.
    bool isOver() const;

    /// Ends them, and waits for the person who reads them in a pager. Raises CommandFailure when
    /// they could not be written.
    void end();

private:
    Output& output_;
    std::string pager_;
    bool pages_;
    bool terminal_;
    bool colours_;
    std::size_t width_;
    std::optional<InterruptWish> interrupt_; ///< so that nobody's terminal is left to a pager
};

/// Reads rows one after the other. One that can't be read is passed over: the first is told, and of
/// the others how many there are.
class TellingReader {
public:
    explicit TellingReader(RowReader& reader) : reader_(reader) {}

    /// Null for a row that can't be read.
    const RowCells* read(const timeline::IndexRow& row);

    const timeline::Record& record() const { return reader_.record(); }

    /// Tells of those that were passed over and not told of yet.
    void tellOthers();

    bool failed() const { return failed_; }

private:
    RowReader& reader_;
    bool failed_ = false;
    std::size_t others_ = 0; ///< that were passed over, behind the one that was told
};

/// Writes rows in a format. What reading a row raises is told, and the others are written; false
/// then.
bool writeRows(const ShownRows& rows, RowReader& reader, RowFormat& format, ResultTarget& target);

} // namespace cli
