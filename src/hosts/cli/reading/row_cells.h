#pragma once

#include "logreader/diagnostic_line.h"
#include "timeline/record.h"
#include "timeline/timeline.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

class CodePage;
struct ToolContext;

namespace cli {

/// What a row can be shown by.
enum class RowColumn {
    number,
    moment,
    process,
    file,
    line,
    timeStamp,
    source,
    traceNumber,
    component,
    level,
    thread,
    port,
    callId,
    trace,
};

/// A column's name in JSON and in `--columns`.
std::string_view nameOf(RowColumn column);

/// The names of all columns, in the order of `RowColumn`.
std::vector<std::string> columnNamesOfRows();

/// The names of those by which rows are counted.
std::vector<std::string> countedColumnNames();

/// The columns of a list such as "moment,level,trace". Raises UsageError for a name that is none.
std::vector<RowColumn> columnsOfList(std::string_view list);

/// A row as the tool's own view of a log has it. Texts live until the next row is read.
struct RowCells {
    std::uint64_t number = 0; ///< of the row in its log, from 1
    timeline::Moment moment = timeline::noMoment;
    bool goesOn = false;      ///< whether it belongs to the row that was read before it
    std::string_view process; ///< UTF-8, as `file` is; the other texts are of `codePage`
    std::string_view file;
    std::uint32_t line = 0;
    std::string_view timeStamp;
    std::string_view source;
    std::int32_t traceNumber = 0;
    std::string_view component;
    std::int16_t level = 0;
    std::string_view thread;
    std::string_view port;
    std::string_view callId;
    std::string_view trace;
    std::string_view raw;               ///< the line itself where the columns can't show it
    const CodePage* codePage = nullptr; ///< null for UTF-8
};

/// Whether a column holds numbers.
bool isNumber(RowColumn column);

/// A number column's value.
std::int64_t numberIn(const RowCells& row, RowColumn column);

/// Appends the text of a column in UTF-8; a number in decimal form, that of the row with leading
/// zeros.
void appendCell(std::string& text, const RowCells& row, RowColumn column);

/// Appends a text of the row, such as `raw`, in UTF-8.
void appendDecoded(std::string& text, std::string_view bytes, const CodePage* codePage);

/// Reads rows of a timeline as cells.
class RowReader {
public:
    /// With a tool the cells of odd lines are those that it finds, too: of lines without a form,
    /// and of those whose fields its parser takes from elsewhere. Both outlive this.
    RowReader(const timeline::Timeline& timeline, ToolContext* tool)
        : timeline_(timeline), tool_(tool)
    {}

    /// The cells of a row, until the next call. Raises what reading it raises.
    const RowCells& read(const timeline::IndexRow& row);

    /// What stands in its source of the row that was read last.
    const timeline::Record& record() const { return record_; }

private:
    bool asksTheTool(const timeline::SourceFacts& facts) const;
    void takeToolsCells();
    void takeTrace(const timeline::SourceFacts& facts);

    const timeline::Timeline& timeline_;
    ToolContext* tool_;
    timeline::Record record_;
    RowCells cells_;
    std::optional<timeline::SourceNumber> lastSource_; ///< unset where no row was read before
    std::string trace_;
    std::string formatted_;
    DiagnosticLine parsed_;
};

} // namespace cli
