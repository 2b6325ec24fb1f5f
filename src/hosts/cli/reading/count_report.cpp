#include "hosts/cli/reading/count_report.h"

#include "hosts/cli/reading/bar_chart.h"
#include "hosts/cli/reading/table_fit.h"
#include "hosts/cli/terminal/output.h"
#include "hosts/common/shown_width.h"
#include "text/visible_text.h"
#include "timeline/counts/calls.h"
#include "timeline/counts/facets.h"
#include "timeline/counts/histogram.h"

#include <algorithm>
#include <sstream>

namespace cli {

namespace {

constexpr std::size_t mostBuckets = 40;

std::string joined(const std::vector<std::string>& texts)
{
    std::string text;
    for (const std::string& one : texts) text.append(text.empty() ? "" : " ").append(one);
    return text;
}

/// "1:02:07.123"
std::string lastedText(timeline::Moment span)
{
    const std::string clock = timeline::momentText(timeline::dayOf(1970, 1, 1) + span).substr(11);
    const auto days = span / timeline::millisecondsPerDay;
    return days == 0 ? clock : std::to_string(days) + "d " + clock;
}

/// A line of comma-separated text.
std::string csvLine(const std::vector<std::string>& cells)
{
    std::string line;
    for (std::size_t at = 0; at < cells.size(); ++at) {
        if (at > 0) line += ',';
        appendCsvCell(line, cells[at]);
    }
    return line;
}

std::vector<std::string> linesOf(const std::string& text)
{
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) lines.push_back(line);
    return lines;
}

std::size_t widestLine(const std::string& text)
{
    std::size_t widest = 0;
    for (const std::string& line : linesOf(text)) widest = std::max(widest, shownWidth(line));
    return widest;
}

/// Whether calls begin on one day.
bool beginOnOneDay(const std::vector<timeline::Call>& calls)
{
    return std::all_of(calls.begin(), calls.end(), [&](const timeline::Call& call) {
        return timeline::dayOf(call.first) == timeline::dayOf(calls.front().first);
    });
}

} // namespace

/// What was counted, as a table.
struct CountReport::Cells {
    std::vector<std::string> headers;
    std::vector<std::vector<std::string>> rows;
    std::vector<std::size_t> numbers; ///< columns of those

    /// As columns under headers, as a terminal shows them.
    std::string table() const
    {
        Table table(headers);
        for (const std::size_t column : numbers) table.alignRight(column);
        for (const auto& row : rows) table.row(row);
        return visibleText(table.text(), LineEnds::kept);
    }
};

void CountReport::write(const Cells& cells) const
{
    Output& output = target_.output();
    if (form_ == CountForm::csv) {
        const auto line = [&](const std::vector<std::string>& row) {
            if (target_.isTerminal())
                output.line(csvLine(row));
            else
                output.bytes(csvLine(row) + "\r\n");
        };
        line(cells.headers);
        for (const auto& row : cells.rows) line(row);
        return;
    }
    for (const std::string& line : linesOf(cells.table()))
        output.line(width_ ? line.substr(0, bytesInWidth(line, *width_)) : line);
}

void CountReport::total() const
{
    const auto rows = rows_.size();
    if (form_ == CountForm::json)
        target_.output().value(Json{{"count", rows}});
    else if (form_ == CountForm::csv)
        write({{"count"}, {{std::to_string(rows)}}, {}});
    else
        target_.output().line(std::to_string(rows));
}

void CountReport::byColumn(timeline::Column column) const
{
    timeline::FacetCounter counter(timeline_, column);
    for (auto walk = rows_.walk(); const auto* row = walk.next();) counter.add(*row);
    const std::string name(timeline::nameOf(column));
    if (form_ == CountForm::json) {
        Json values = Json::array();
        for (const auto& facet : counter.facets())
            values.push_back({{name, facet.value}, {"rows", facet.rows}});
        target_.output().value(values);
        return;
    }
    Cells cells{{name, "rows"}, {}, {1}};
    for (const auto& facet : counter.facets())
        cells.rows.push_back(
            {facet.value, form_ == CountForm::csv
                              ? std::to_string(facet.rows)
                              : groupedNumber(static_cast<long long>(facet.rows))});
    write(cells);
}

void CountReport::histogram() const
{
    timeline::Moment first = timeline::noMoment;
    timeline::Moment last = timeline::noMoment;
    for (auto walk = rows_.walk(); const auto* row = walk.next();) {
        if (row->moment == timeline::noMoment) continue;
        first = first == timeline::noMoment ? row->moment : std::min(first, row->moment);
        last = std::max(last, row->moment);
    }
    if (first == timeline::noMoment) {
        if (form_ == CountForm::json) target_.output().value(Json::array());
        return;
    }
    timeline::Histogram histogram(first, last, mostBuckets);
    timeline::Record record;
    for (auto walk = rows_.walk(); const auto* row = walk.next();) {
        if (row->belongsToRowBefore()) continue;
        const bool isIndexed = row->level != timeline::IndexRow::otherLevel;
        if (!isIndexed) timeline_.record(*row, record);
        histogram.add(row->moment, isIndexed ? std::int16_t{row->level} : record.level);
    }
    if (form_ == CountForm::table) {
        target_.output().bytes(barChart(histogram, target_.width(), target_.colours()));
        return;
    }
    Json buckets = Json::array();
    Cells cells{{"from", "rows", "errors", "warnings"}, {}, {}};
    for (const auto& bucket : histogram.buckets()) {
        Json levels = Json::object();
        for (const auto& [level, rows] : bucket.levels) levels[std::to_string(level)] = rows;
        const std::string from = timeline::momentText(bucket.begin);
        buckets.push_back({{"from", from}, {"rows", bucket.rows}, {"levels", levels}});
        const BucketParts parts = partsOfBucket(bucket);
        cells.rows.push_back({from, std::to_string(bucket.rows), std::to_string(parts.errors),
                              std::to_string(parts.warnings)});
    }
    if (form_ == CountForm::json)
        target_.output().value(buckets);
    else
        write(cells);
}

void CountReport::calls() const
{
    timeline::CallCounter counter(timeline_);
    for (auto walk = rows_.walk(); const auto* row = walk.next();) counter.add(*row);
    if (counter.calls().empty())
        target_.output().message("no row has a call id; a server writes them with extended log "
                                 "fields");
    if (form_ == CountForm::json) {
        Json calls = Json::array();
        for (const auto& call : counter.calls())
            calls.push_back({{"callId", call.id},
                             {"first", timeline::momentText(call.first)},
                             {"last", timeline::momentText(call.last)},
                             {"rows", call.rows},
                             {"processes", call.processes}});
        target_.output().value(calls);
        return;
    }
    write(callCells(counter.calls()));
}

/// Where a terminal has no room for all, the last moment goes, which the first one and the length
/// tell, and a day that all calls have stands in the header.
CountReport::Cells CountReport::callCells(const std::vector<timeline::Call>& calls) const
{
    constexpr std::size_t lengthOfDay = 10;
    Cells whole{{"callId", "first", "last", "lasted", "rows", "processes"}, {}, {3, 4}};
    for (const auto& call : calls)
        whole.rows.push_back({call.id, timeline::momentText(call.first),
                              timeline::momentText(call.last), lastedText(call.last - call.first),
                              std::to_string(call.rows), joined(call.processes)});
    if (form_ != CountForm::table || !width_ || calls.empty() ||
        widestLine(whole.table()) <= *width_)
        return whole;
    const bool oneDay = beginOnOneDay(calls);
    const std::string day = timeline::momentText(calls.front().first).substr(0, lengthOfDay);
    Cells narrow{{"callId", oneDay ? day : "first", "lasted", "rows", "processes"}, {}, {2, 3}};
    for (const auto& row : whole.rows)
        narrow.rows.push_back(
            {row[0], oneDay ? row[1].substr(lengthOfDay + 1) : row[1], row[3], row[4], row[5]});
    return narrow;
}

} // namespace cli
