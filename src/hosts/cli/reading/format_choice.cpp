#include "hosts/cli/reading/format_choice.h"

#include "core/localisation.h"
#include "core/string_table.h"
#include "hosts/cli/open_tool.h"
#include "hosts/cli/reading/read_options.h"
#include "hosts/cli/reading/results.h"
#include "platform/workstation.h"

#include <utility>

namespace cli {

namespace {

/// How wide a column is at least where the rows that come are not known yet.
std::size_t usualWidth(RowColumn column)
{
    switch (column) {
    case RowColumn::number:
        return 6;
    case RowColumn::moment:
        return 23;
    case RowColumn::timeStamp:
    case RowColumn::process:
    case RowColumn::source:
        return 12;
    case RowColumn::component:
        return 16;
    case RowColumn::callId:
        return 24;
    case RowColumn::file:
        return 36;
    default:
        return 0;
    }
}

std::vector<RowColumn> columnsOf(const FormatChoice& choice, bool forTable)
{
    if (!choice.columns.empty()) return choice.columns;
    std::vector<RowColumn> columns;
    if (choice.isOneLog)
        columns = {RowColumn::number, RowColumn::timeStamp};
    else if (forTable)
        columns = {RowColumn::moment, RowColumn::process};
    else
        columns = {RowColumn::number, RowColumn::moment, RowColumn::process,
                   RowColumn::file,   RowColumn::line,   RowColumn::timeStamp};
    for (const RowColumn column :
         {RowColumn::source, RowColumn::traceNumber, RowColumn::component, RowColumn::level})
        columns.push_back(column);
    columns.insert(columns.end(), choice.extended.begin(), choice.extended.end());
    columns.push_back(RowColumn::trace);
    return columns;
}

std::string headerOf(RowColumn column, OpenTool* tool)
{
    const auto text = [tool](TextId id) {
        return tool != nullptr ? myLoadResString(tool->context(), id)
                               : std::string(englishText(id));
    };
    switch (column) {
    case RowColumn::number:
        return "#";
    case RowColumn::moment:
        return "Moment";
    case RowColumn::process:
        return "Process";
    case RowColumn::file:
        return "File";
    case RowColumn::line:
        return "Line";
    case RowColumn::timeStamp:
        return text(TextId::timestamp);
    case RowColumn::source:
        return text(TextId::source);
    case RowColumn::traceNumber:
        return text(TextId::traceNumber);
    case RowColumn::component:
        return text(TextId::component);
    case RowColumn::level:
        return text(TextId::level);
    case RowColumn::thread:
        return text(TextId::thread);
    case RowColumn::port:
        return text(TextId::port);
    case RowColumn::callId:
        return text(TextId::callId);
    case RowColumn::trace:
        return text(TextId::trace);
    }
    return {};
}

std::unique_ptr<RowFormat> makeTable(const FormatChoice& choice)
{
    TableLook look;
    for (const RowColumn column : columnsOf(choice, true))
        look.columns.push_back(
            {column, headerOf(column, choice.tool), choice.asked.follow ? usualWidth(column) : 0});
    const bool onTerminal = choice.target.isTerminal();
    if (onTerminal && !choice.asked.wide) look.width = choice.target.width();
    look.fits = choice.columns.empty();
    look.colours = choice.target.colours();
    look.measuresAll = !onTerminal;
    look.knowsAllRows = choice.knowsAllRows;
    return makeTableFormat(std::move(look));
}

} // namespace

std::unique_ptr<RowFormat> makeFormat(const FormatChoice& choice)
{
    const bool onTerminal = choice.target.isTerminal();
    if (choice.name == "raw") return makeRawFormat(onTerminal);
    if (choice.name == "json") return makeJsonFormat(columnsOf(choice, false));
    if (choice.name == "csv")
        return makeCsvFormat({columnsOf(choice, false), choice.asked.excel, onTerminal});
    if (choice.name != "otlp") return makeTable(choice);
    const auto details = choice.tool != nullptr
                             ? choice.tool->context().platform.workstation.details()
                             : std::nullopt;
    return makeOtlpFormat(
        details ? details->computerName : "",
        [clock = choice.clock](timeline::Moment moment) { return clock->universal(moment); });
}

} // namespace cli
