#include "hosts/cli/reading/log_reading.h"

#include "hosts/cli/naming/near_names.h"
#include "hosts/cli/reading/format_choice.h"
#include "hosts/cli/reading/log_finding.h"
#include "hosts/cli/reading/log_following.h"
#include "hosts/cli/reading/macro_trace_look_up.h"
#include "hosts/cli/reading/reading_progress.h"
#include "hosts/cli/reading/row_cells.h"
#include "hosts/cli/terminal/message.h"
#include "runtime/run_time_error.h"
#include "runtime/text.h"
#include "system/file_facts.h"

#include <algorithm>
#include <set>
#include <thread>
#include <utility>

namespace cli {

namespace {

timeline::Column countedColumn(const std::string& name)
{
    if (const auto column = timeline::columnOf(name)) return *column;
    const std::vector<std::string> columns = countedColumnNames();
    throw UsageError("--count-by takes " + namesToChoose(columns) + ", not \"" + name + "\"" +
                     didYouMean(name, columns));
}

unsigned readingThreads()
{
    return std::max(std::thread::hardware_concurrency(), 1U);
}

} // namespace

LogReading::LogReading(const GlobalOptions& options, const ReadOptions& asked, Output& output)
    : options_(options), asked_(asked), format_(!asked.format.empty() ? asked.format
                                                : options.json        ? "json"
                                                                      : "table"),
      choice_(asked), columns_(columnsOfList(asked.columns)),
      target_(asked, options.settings, output)
{
    if (!asked.countBy.empty()) countBy_ = countedColumn(asked.countBy);
}

void LogReading::run()
{
    FoundLogs found = findLogs(options_, asked_.logs);
    tool_ = std::move(found.tool);
    paths_ = std::move(found.paths);
    failed_ = found.missing;
    if (asked_.follow) watchForNewLogs();
    openLogs();
    tellMissingColumns();
    choice_.findMacroTrace([this](const std::string& name) { return macroTrace(name); });
    if (asked_.follow) {
        follow();
    } else {
        readRows();
        show();
    }
    if (tool_) tool_->close();
    if (failed_) throw CommandFailure("");
}

/// Tells what went wrong with one of several logs.
void LogReading::fail(const std::string& sentence)
{
    printMessage(sentence);
    failed_ = true;
}

void LogReading::openLogs()
{
    timeline::SourceOptions& settings = settings_;
    bool extended = asked_.fields == "extended";
    if (tool_) {
        settings.codePage = tool_->codePage();
        if (asked_.fields.empty()) extended = tool_->context().g_bExtendedLogFields;
    }
    if (!asked_.codePage.empty()) settings.codePage = codePageOfText(asked_.codePage);
    if (!asked_.zone.empty())
        clock_ = clockOf(zoneOfText(asked_.zone));
    else
        clock_ = tool_ ? clockOf(tool_->context()) : clockOfThisMachine();
    // Without these the clock is a guess, which is told of where it matters.
    if (tool_ || !asked_.zone.empty())
        settings.localTime = [clock = clock_](timeline::Moment universal) {
            return clock->local(universal);
        };
    if (tool_ || !asked_.fields.empty())
        settings.form = extended ? timeline::LineForm::extended : timeline::LineForm::basic;
    logs_.emplace(settings);
    for (const std::string& path : paths_) logs_->open(path);
    for (const std::string& failure : logs_->failures()) fail(failure);
    for (const std::string& sentence : logs_->passedOver()) printMessage(sentence);
    if (!target_.isTerminal() || format_ == "json") return;
    for (const std::string& guess : logs_->guesses()) printMessage(guess);
}

/// Tells a person who named the folder what of it was not read again; it takes no row away, and so
/// comes behind them.
void LogReading::tellReadElsewhere() const
{
    if (asked_.logs.empty() || !target_.isTerminal() || format_ == "json") return;
    for (const std::string& note : logs_->readElsewhere()) printMessage(note);
}

/// Says why rows that are chosen or counted by a column have nothing there.
void LogReading::tellMissingColumns() const
{
    const struct {
        timeline::Column column;
        bool chosen;
        const char* what;
    } extended[] = {{timeline::Column::thread, !asked_.threads.empty(), "a thread"},
                    {timeline::Column::port, !asked_.ports.empty(), "a port"},
                    {timeline::Column::callId, !asked_.calls.empty(), "a call id"}};
    for (const auto& [column, chosen, what] : extended)
        if ((chosen || countBy_ == column) && logs_->timeline().sourceCount() > 0 &&
            !anyLogHas(column))
            printMessage(std::string("no row has ") + what +
                         "; a server writes them with extended log fields");
}

bool LogReading::anyLogHas(timeline::Column column) const
{
    const timeline::Timeline& timeline = logs_->timeline();
    for (std::size_t at = 0; at < timeline.sourceCount(); ++at)
        if (timeline.source(at).has(column)) return true;
    return false;
}

void LogReading::readRows()
{
    timeline::Progress progress;
    const ReadingProgress shown(progress);
    const unsigned threads = readingThreads();
    if (choice_.needsLastRow())
        logs_->timeline().read(timeline::Filter(), progress, threads);
    else if (asked_.first > 0)
        readFirstRows(logs_->timeline(), choice_.filter(timeline::noMoment, *clock_), progress,
                      static_cast<std::size_t>(asked_.first));
    else
        logs_->timeline().read(choice_.filter(timeline::noMoment, *clock_), progress, threads);
}

void LogReading::tellTroubles()
{
    const timeline::Timeline& timeline = logs_->timeline();
    for (const std::string& failure : timeline.failures()) fail(failure);
    for (std::size_t at = 0; at < timeline.sourceCount(); ++at)
        for (const std::string& trouble : timeline.source(at).troubles()) fail(trouble);
}

/// Notes which logs are there before any of them is opened, so that none that comes is missed.
void LogReading::watchForNewLogs()
{
    for (const std::string& path : paths_) {
        const auto facts = factsOf(path);
        if (facts && facts->kind == FileKind::folder)
            newLogs_.watchFolder(path);
        else
            newLogs_.watchProcessOf(path);
    }
}

/// Raises CommandFailure for a file that was named and can't be followed; those of a folder are
/// told.
void LogReading::requireLogsToFollow() const
{
    const timeline::Timeline& timeline = logs_->timeline();
    std::set<std::string> followed;
    std::size_t others = 0;
    for (std::size_t at = 0; at < timeline.sourceCount(); ++at) {
        const timeline::Source& source = timeline.source(at);
        if (timeline::FollowedLog::canFollow(source))
            followed.insert(source.facts().path);
        else
            ++others;
    }
    bool anyFolder = false;
    for (const std::string& path : paths_) {
        if (followed.contains(path)) continue;
        if (!isPlainFile(path))
            anyFolder = anyFolder || factsOf(path).has_value();
        else if (logs_->failures().empty())
            throw CommandFailure(path + " can't be followed: it is no log that grows");
    }
    if (followed.empty() && !anyFolder) throw CommandFailure("");
    if (others > 0) printMessage("what is no log is shown, and not followed");
}

/// What rows have to fit; times are those before the last row that is there now.
timeline::Filter LogReading::followedFilter() const
{
    if (!choice_.needsLastRow()) return choice_.filter(timeline::noMoment, *clock_);
    OpenedLogs all(settings_);
    for (const std::string& path : paths_) all.open(path);
    timeline::Progress progress;
    const ReadingProgress shown(progress);
    all.timeline().read(timeline::Filter(), progress, readingThreads());
    return choice_.filter(lastMomentOf(all.timeline()), *clock_);
}

/// Shows the last rows, and then those that come.
void LogReading::follow()
{
    constexpr std::size_t usualTail = 10;
    requireLogsToFollow();
    const timeline::Filter filter = followedFilter();
    timeline::Timeline& timeline = logs_->timeline();
    timeline::Follower follower(
        timeline, filter, [this](const std::string& path) { return logs_->openLog(path); },
        newLogs_,
        isOneLog() ? timeline::Follower::Order::ofLogs : timeline::Follower::Order::ofTime);
    timeline::holdBackHalfLines(timeline);
    {
        timeline::Progress progress;
        const ReadingProgress shown(progress);
        timeline.read(filter, progress, readingThreads());
    }
    tellTroubles();
    const InterruptWish interrupt;
    RowReader reader(timeline, looksLikeTheTool() ? &tool_->context() : nullptr);
    const auto written = format(false);
    ShownRows rows(timeline);
    rows.keepLast(asked_.tail > 0 ? static_cast<std::size_t>(asked_.tail) : usualTail);
    if (!writeRows(rows, reader, *written, target_)) failed_ = true;
    timeline.forgetRows();
    for (std::size_t at = 0, count = timeline.sourceCount(); at < count; ++at) follower.follow(at);
    if (!followRows(follower, reader, *written, target_, interrupt)) failed_ = true;
    target_.end();
}

void LogReading::show()
{
    const timeline::Timeline& timeline = logs_->timeline();
    tellTroubles();
    ShownRows rows(timeline);
    if (choice_.needsLastRow()) rows.choose(choice_.filter(lastMomentOf(timeline), *clock_));
    if (asked_.first > 0) rows.keepFirst(static_cast<std::size_t>(asked_.first));
    if (asked_.tail > 0) rows.keepLast(static_cast<std::size_t>(asked_.tail));
    target_.begin();
    if (asked_.counts())
        showCounts(rows);
    else
        showRows(rows);
    target_.end();
    tellReadElsewhere();
}

void LogReading::showCounts(const ShownRows& rows)
{
    const CountForm form = format_ == "json"  ? CountForm::json
                           : format_ == "csv" ? CountForm::csv
                                              : CountForm::table;
    std::optional<std::size_t> width;
    if (target_.isTerminal() && !asked_.wide) width = target_.width();
    const CountReport report(logs_->timeline(), rows, form, target_, width);
    if (asked_.count) report.total();
    if (countBy_) report.byColumn(*countBy_);
    if (asked_.histogram) report.histogram();
    if (asked_.listCalls) report.calls();
}

void LogReading::showRows(const ShownRows& rows)
{
    // No row is no output, but for the header that a log alone has always had.
    if (rows.size() == 0 && !(isOneLog() && choice_.takesAll())) return;
    RowReader reader(logs_->timeline(), looksLikeTheTool() ? &tool_->context() : nullptr);
    const auto written = format(rows.size() <= rowsMeasuredAtFirst);
    if (!writeRows(rows, reader, *written, target_)) failed_ = true;
}

/// Whether a single log was asked for, which is shown as the tool's own view shows it.
bool LogReading::isOneLog() const
{
    if (asked_.logs.size() != 1 || logs_->timeline().sourceCount() != 1) return false;
    const timeline::SourceFacts& facts = logs_->timeline().source(0).facts();
    const bool isLog = facts.kind == timeline::SourceKind::log ||
                       facts.kind == timeline::SourceKind::formattedCopy ||
                       facts.kind == timeline::SourceKind::dataFile;
    return isLog && (facts.path.empty() || facts.path == paths_.front());
}

/// Whether rows are those that the tool's own view has, in every odd line.
bool LogReading::looksLikeTheTool() const
{
    return tool_ && isOneLog() && asked_.fields.empty();
}

/// Those of thread, port and call id that the tool's view of the log has, or any of several.
std::vector<RowColumn> LogReading::extendedColumns() const
{
    const std::pair<RowColumn, timeline::Column> extended[] = {
        {RowColumn::thread, timeline::Column::thread},
        {RowColumn::port, timeline::Column::port},
        {RowColumn::callId, timeline::Column::callId}};
    std::vector<RowColumn> columns;
    for (const auto& [column, ofTimeline] : extended)
        if (looksLikeTheTool() ? tool_->context().g_bExtendedLogFields : anyLogHas(ofTimeline))
            columns.push_back(column);
    return columns;
}

std::unique_ptr<RowFormat> LogReading::format(bool knowsAllRows) const
{
    return makeFormat({asked_, target_, tool_.get(), clock_, format_, columns_, isOneLog(),
                       extendedColumns(), knowsAllRows});
}

std::vector<timeline::ComponentLevels> LogReading::macroTrace(const std::string& name)
{
    std::vector<std::string> notes;
    auto levels =
        findMacroTrace(name, logs_->timeline(), tool_ ? &tool_->context() : nullptr, notes);
    for (const std::string& note : notes) printMessage(note);
    return levels;
}

} // namespace cli
