#pragma once

#include "hosts/cli/reading/row_cells.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace cli {

/// How rows are written. What a format appends can go to a terminal as it is, if it was made for
/// one.
class RowFormat {
public:
    virtual ~RowFormat() = default;

    /// How many rows it wants to see before it writes the first; 0 for none.
    virtual std::size_t rowsToMeasure() const { return 0; }
    virtual void measure(const RowCells&) {}

    /// What stands before the first row, for each row, and behind the last.
    virtual void begin(std::string&) {}
    virtual void row(const RowCells& row, const timeline::Record& record, std::string& text) = 0;
    virtual void end(std::string&) {}
};

/// A column of a table, with its header in UTF-8.
struct TableColumn {
    RowColumn column;
    std::string header;
    std::size_t least = 0; ///< how wide it is at least
};

struct TableLook {
    std::vector<TableColumn> columns;
    std::optional<std::size_t> width; ///< what longer lines are cut to
    bool fits = false;                ///< whether columns make room for traces in that width
    bool colours = false;             ///< whether rows are coloured by their level
    bool measuresAll = true;          ///< whether all rows are measured, or the first ones
    bool knowsAllRows = false;        ///< whether no row comes that was not measured
};

/// How many rows a table looks at before it writes the first, where it doesn't look at all.
inline constexpr std::size_t rowsMeasuredAtFirst = 10'000;

/// Columns under headers, as wide as their widest cell, but for what makes room for traces. A line
/// that the columns can't show stands where its trace would.
std::unique_ptr<RowFormat> makeTableFormat(TableLook look);

/// Lines as they stand in their logs: byte for byte, or for a terminal. A row of what has no lines
/// is written as the tool's formatter would.
std::unique_ptr<RowFormat> makeRawFormat(bool forTerminal);

/// A JSON object a row, with the line itself as "raw" where the columns can't show it.
std::unique_ptr<RowFormat> makeJsonFormat(std::vector<RowColumn> columns);

/// Appends a cell of comma-separated text, in quotes where it needs them.
void appendCsvCell(std::string& line, std::string_view cell);

struct CsvLook {
    std::vector<RowColumn> columns;
    bool withoutFormulas = false; ///< for spreadsheets
    bool forTerminal = false;
};

/// Comma-separated text of RFC 4180, with a header.
std::unique_ptr<RowFormat> makeCsvFormat(CsvLook look);

/// What a row's moment is in universal time.
using ToUniversal = std::function<timeline::Moment(timeline::Moment)>;

/// The logs data model of OpenTelemetry: an ExportLogsServiceRequest in JSON a line, of many rows
/// each. A row with the lines that belong to it is one record. `host` is the server's name, and may
/// be empty.
std::unique_ptr<RowFormat> makeOtlpFormat(std::string host, ToUniversal toUniversal);

} // namespace cli
