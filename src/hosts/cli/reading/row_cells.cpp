#include "hosts/cli/reading/row_cells.h"

#include "core/tool_context.h"
#include "hosts/cli/command.h"
#include "hosts/cli/naming/near_names.h"
#include "logreader/format_line.h"
#include "logreader/parse_diagnostic.h"
#include "runtime/text.h"
#include "text/code_page.h"
#include "timeline/lines/line_fields.h"

#include <array>
#include <charconv>

namespace cli {

namespace {

constexpr std::array<std::string_view, 14> columnNames = {
    "number",      "moment",    "process", "file",   "line", "timeStamp", "source",
    "traceNumber", "component", "level",   "thread", "port", "callId",    "trace"};

std::string_view textIn(const RowCells& row, RowColumn column)
{
    switch (column) {
    case RowColumn::process:
        return row.process;
    case RowColumn::file:
        return row.file;
    case RowColumn::timeStamp:
        return row.timeStamp;
    case RowColumn::source:
        return row.source;
    case RowColumn::component:
        return row.component;
    case RowColumn::thread:
        return row.thread;
    case RowColumn::port:
        return row.port;
    case RowColumn::callId:
        return row.callId;
    case RowColumn::trace:
        return row.trace;
    default:
        return {};
    }
}

void appendNumber(std::string& text, std::int64_t number, std::size_t digits)
{
    char shown[24];
    const auto end = std::to_chars(shown, shown + sizeof shown, number).ptr;
    const auto length = static_cast<std::size_t>(end - shown);
    if (length < digits) text.append(digits - length, '0');
    text.append(shown, length);
}

} // namespace

std::vector<std::string> columnNamesOfRows()
{
    return {columnNames.begin(), columnNames.end()};
}

std::vector<std::string> countedColumnNames()
{
    return {"process", "source", "component", "level", "thread", "port", "callId", "traceNumber"};
}

std::string_view nameOf(RowColumn column)
{
    return columnNames[static_cast<std::size_t>(column)];
}

std::vector<RowColumn> columnsOfList(std::string_view list)
{
    std::vector<RowColumn> columns;
    for (const std::string& name : split(std::string(list), ',')) {
        std::size_t at = 0;
        while (at < columnNames.size() && !equalIgnoringCase(name, std::string(columnNames[at])))
            ++at;
        if (at == columnNames.size()) {
            const std::vector<std::string> known(columnNames.begin(), columnNames.end());
            throw UsageError("--columns takes " + namesToChoose(known) + ", not \"" + name + "\"" +
                             didYouMean(name, known));
        }
        columns.push_back(static_cast<RowColumn>(at));
    }
    return columns;
}

bool isNumber(RowColumn column)
{
    return column == RowColumn::number || column == RowColumn::line ||
           column == RowColumn::traceNumber || column == RowColumn::level;
}

std::int64_t numberIn(const RowCells& row, RowColumn column)
{
    switch (column) {
    case RowColumn::number:
        return static_cast<std::int64_t>(row.number);
    case RowColumn::line:
        return row.line;
    case RowColumn::traceNumber:
        return row.traceNumber;
    default:
        return row.level;
    }
}

void appendDecoded(std::string& text, std::string_view bytes, const CodePage* codePage)
{
    if (codePage == nullptr)
        text += bytes;
    else
        codePage->appendUtf8(text, bytes);
}

void appendCell(std::string& text, const RowCells& row, RowColumn column)
{
    constexpr std::size_t digitsOfRow = 6;
    if (isNumber(column))
        appendNumber(text, numberIn(row, column), column == RowColumn::number ? digitsOfRow : 1);
    else if (column == RowColumn::moment)
        timeline::appendMomentText(text, row.moment);
    else if (column == RowColumn::process || column == RowColumn::file)
        text += textIn(row, column);
    else
        appendDecoded(text, textIn(row, column), row.codePage);
}

const RowCells& RowReader::read(const timeline::IndexRow& row)
{
    const bool goesOn = row.belongsToRowBefore() && lastSource_ == row.source();
    lastSource_.reset();
    timeline_.record(row, record_);
    lastSource_ = row.source();
    const timeline::Source& source = timeline_.source(row.source());
    cells_ = RowCells();
    cells_.goesOn = goesOn;
    cells_.number = source.numberOf(row);
    cells_.moment = row.moment;
    cells_.process = record_.process;
    cells_.file = record_.file;
    cells_.line = record_.line;
    cells_.codePage = record_.codePage;
    if (asksTheTool(source.facts())) {
        takeToolsCells();
        return cells_;
    }
    if (!record_.hasForm) {
        cells_.raw = record_.trace;
        return cells_;
    }
    cells_.timeStamp = record_.timeStamp;
    cells_.source = record_.source;
    cells_.traceNumber = record_.traceNumber;
    cells_.component = record_.component;
    cells_.level = record_.level;
    cells_.thread = record_.thread;
    cells_.port = record_.port;
    cells_.callId = record_.callId;
    takeTrace(source.facts());
    return cells_;
}

/// The tool takes the extended fields of a formatted line from wherever its commas are, and knows
/// no lines of data files.
bool RowReader::asksTheTool(const timeline::SourceFacts& facts) const
{
    if (tool_ == nullptr || record_.whole.empty()) return false;
    if (!record_.hasForm || facts.form == timeline::LineForm::data) return true;
    return tool_->g_bExtendedLogFields && record_.whole[record_.timeStamp.size()] != ',';
}

void RowReader::takeToolsCells()
{
    const bool known = mdlDiagnostics::formatLineSafe(*tool_, record_.whole, formatted_);
    mdlDiagnostics::parseDiagnostic(*tool_, formatted_, record_.whole, false, parsed_);
    cells_.timeStamp = parsed_.timeStamp;
    cells_.source = parsed_.source;
    cells_.traceNumber = parsed_.traceNumber;
    cells_.component = parsed_.component;
    cells_.level = parsed_.traceLevel;
    cells_.thread = parsed_.thread;
    cells_.port = parsed_.port;
    cells_.callId = parsed_.callId;
    cells_.trace = parsed_.trace;
    if (!known) cells_.raw = record_.whole;
}

/// The trace with the blank that the tool's formatter leaves in it.
void RowReader::takeTrace(const timeline::SourceFacts& facts)
{
    cells_.trace = record_.trace;
    if (record_.whole.empty() || facts.form == timeline::LineForm::data) return;
    timeline::LineFields fields;
    fields.trace = record_.trace;
    trace_.clear();
    timeline::appendToolTrace(trace_, record_.whole, fields);
    cells_.trace = trace_;
}

} // namespace cli
