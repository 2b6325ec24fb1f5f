#include "hosts/cli/reading/read_options.h"
#include "hosts/cli/manual/values.h"

#include "backends/site/code_pages.h"
#include "hosts/cli/arguments.h"
#include "hosts/cli/command.h"
#include "hosts/cli/reading/server_clock.h"
#include "runtime/run_time_error.h"

#include <algorithm>
#include <charconv>

namespace cli {

namespace {

/// What a script leaves out by mistake would else choose all rows.
std::string whyNothing(const std::string& text)
{
    return text.empty() ? "there is nothing in it" : "";
}

void declareChoice(Arguments& arguments, ReadOptions& options)
{
    const auto addMany = [&](const char* name, std::vector<std::string>& values,
                             const char* valueName, const char* description,
                             Values kind = Values::any) {
        arguments.add(name, values, description).called(valueName).completes(kind).oneAtATime();
    };
    arguments
        .add("--since", options.since, "rows at this time or later, such as 15:20 or yesterday")
        .called("TIME")
        .refusedBy(whyNothing);
    arguments.add("--until", options.until, "rows at this time or earlier")
        .called("TIME")
        .refusedBy(whyNothing);
    arguments.add("--last", options.last, "rows of the last 2h, 30m, ... before the last row")
        .called("SPAN")
        .refusedBy(whyNothing);
    addMany("--process", options.processes, "NAME", "rows of this process", Values::processes);
    addMany("--component", options.components, "NAME", "rows of this component",
            Values::components);
    addMany("--source", options.sources, "NAME", "rows of this source");
    addMany("--level", options.levels, "LEVEL", "rows of this level, or of a range such as 0-1");
    addMany("--call", options.calls, "ID", "rows of this call, over all processes");
    addMany("--port", options.ports, "PORT", "rows of this port");
    addMany("--thread", options.threads, "THREAD", "rows of this thread");
    addMany("--number", options.numbers, "NUMBER", "rows of this trace number, or of a range");
    addMany("--grep", options.patterns, "RE", "rows in which this regular expression occurs");
    arguments.addFlag("--ignore-case", options.ignoreCase, "take no care of case in --grep");
    addMany("--exclude", options.exclusions, "KEY=VALUE",
            "no rows with this, such as level=7, component=Timer or grep=RE");
    arguments.add("--macro", options.macroTrace, "rows that this macro trace turns on")
        .called("\"GROUP - TRACE\"")
        .completes(Values::macroTraces)
        .refusedBy(whyNothing);
    arguments.add("-n", options.first, "the first so many of these rows").called("N").positive();
    arguments.add("--tail", options.tail, "the last so many").called("N").positive();
    arguments.addFlag("--follow", options.follow,
                      "the last 10, or --tail, and then each that comes, until Ctrl-C");
}

void declareOutput(Arguments& arguments, ReadOptions& options)
{
    arguments.addFlag("--count", options.count, "tell how many rows these are");
    arguments.add("--count-by", options.countBy, "tell how many rows have each value of a column")
        .called("COLUMN")
        .completes(Values::countedColumns)
        .refusedBy(whyNothing);
    arguments.addFlag("--histogram", options.histogram, "draw how many rows there are over time");
    arguments.addFlag("--calls", options.listCalls, "list the calls, with their processes");
    arguments.add("--columns", options.columns, "these columns, with commas between them")
        .called("LIST")
        .completes(Values::columns)
        .refusedBy(whyNothing);
    arguments.add("--format", options.format, "how rows are written; else table, with --json json")
        .called("FORMAT")
        .oneOf({"table", "raw", "json", "csv", "otlp"});
    arguments.addFlag("--excel", options.excel, "csv of which a spreadsheet takes no formulas");
    arguments.addFlag("--wide", options.wide, "cut no row to the width of the terminal");
    arguments
        .add("--color", options.color, "colour rows by their level; else as you have set, or auto")
        .called("WHEN")
        .oneOf({"auto", "always", "never"});
    arguments.addFlag("--no-pager", options.noPager, "write to the terminal itself");
}

std::string whyNoCodePage(const std::string& text)
{
    if (codePageOfText(text)) return {};
    std::string known;
    for (const int number : knownCodePages())
        known.append(known.empty() ? "" : ", ").append(std::to_string(number));
    return "\"" + text + "\" is no code page that is known; there are " + known;
}

std::string whyNoZone(const std::string& text)
{
    try {
        zoneOfText(text);
        return {};
    } catch (const RunTimeError& error) {
        return error.description();
    }
}

/// Raises UsageError for what makes no sense of rows that come one by one.
void checkFollowing(const ReadOptions& options)
{
    if (options.counts()) throw UsageError("--follow shows rows as they come, and counts none");
    if (options.first > 0)
        throw UsageError("--follow begins with the last rows; -n is for the first");
    if (!options.until.empty())
        throw UsageError("--follow shows what comes, and --until is for what was there");
    if (std::find(options.logs.begin(), options.logs.end(), "-") != options.logs.end())
        throw UsageError("standard input can't be followed; name a log");
}

} // namespace

std::optional<CodePage> codePageOfText(std::string_view text)
{
    int number = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc{} || stop != end || number < 1) return std::nullopt;
    return codePageOf(number);
}

void ReadOptions::declare(Arguments& arguments)
{
    arguments
        .add("LOG", logs,
             "a log's name, or a path to a log or to a folder of logs; else all logs of the "
             "server; - is standard input")
        .completes(Values::logsAndFiles);
    arguments
        .add("--fields", fields,
             "how the server wrote its lines; else as it is set, or as they look without a server")
        .called("FORM")
        .oneOf({"basic", "extended"});
    arguments
        .add("--code-page", codePage,
             "the code page of the logs' letters, such as 1252; else the server's, or 1252")
        .called("NUMBER")
        .refusedBy(whyNoCodePage);
    arguments
        .add("--zone", zone,
             "the server's zone, as +01:00 or a TZ text, which times of data files are shown in; "
             "else as it is set, or this machine's")
        .called("ZONE")
        .refusedBy(whyNoZone);
    declareChoice(arguments, *this);
    declareOutput(arguments, *this);
}

void ReadOptions::check() const
{
    const int counting =
        (count ? 1 : 0) + (histogram ? 1 : 0) + (listCalls ? 1 : 0) + (countBy.empty() ? 0 : 1);
    if (counting > 1)
        throw UsageError("--count, --count-by, --histogram and --calls are one for each run");
    if (counting > 0 && (format == "raw" || format == "otlp"))
        throw UsageError("what is counted can't be written as " + format);
    if (counting > 0 && !columns.empty())
        throw UsageError("--columns is for rows, and what is counted has none");
    if (follow) checkFollowing(*this);
    if (first > 0 && tail > 0) throw UsageError("-n and --tail are one for each run");
    if (!last.empty() && !since.empty())
        throw UsageError("--last and --since are one for each run");
    if (excel && format != "csv") throw UsageError("--excel is for --format csv");
    if (!columns.empty() && (format == "raw" || format == "otlp"))
        throw UsageError("--columns is for tables, json and csv");
}

} // namespace cli
