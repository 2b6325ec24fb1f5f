#include "timeline/sources/source_making.h"

#include "platform/trace_rows.h"
#include "runtime/run_time_error.h"
#include "runtime/text.h"
#include "system/local_time.h"
#include "system/root_folder.h"
#include "timeline/sources/event_log_source.h"
#include "timeline/sources/kept_bytes.h"
#include "timeline/sources/log_guess.h"
#include "timeline/sources/log_source.h"
#include "timeline/sources/trace_database_source.h"

#include <utility>

namespace timeline {

namespace {

constexpr Moment millisecondsPerSecond = 1000;

[[noreturn]] void raiseNoSource(const std::string& name, const std::string& why)
{
    throw RunTimeError(runTimeErrors::invalidFileFormat, name + " " + why);
}

bool hasEnding(std::string_view name, std::string_view ending)
{
    return name.size() >= ending.size() &&
           equalIgnoringCase(name.substr(name.size() - ending.size()), ending);
}

} // namespace

Moment machineLocalTime(Moment universal)
{
    const std::tm parts = localTimeOf(static_cast<std::time_t>(universal / millisecondsPerSecond));
    return dayOf(parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday) +
           ((parts.tm_hour * 60 + parts.tm_min) * 60 + parts.tm_sec) * millisecondsPerSecond +
           universal % millisecondsPerSecond;
}

SourceMaking::SourceMaking(const TraceTableReader& databases, SourceOptions options)
    : databases_(databases), options_(std::move(options))
{}

void SourceMaking::raiseNone(const std::string& name)
{
    raiseNoSource(name,
                  "is no log, trace database, exported event log or cabinet that can be read");
}

Moment SourceMaking::local(Moment universal) const
{
    return options_.localTime ? options_.localTime(universal) : machineLocalTime(universal);
}

bool SourceMaking::isSource(const Candidate& candidate) const
{
    const LogName name = readLogName(lastNameOf(candidate.name));
    return databases_.isDatabase(candidate.head) || isEventLog(candidate.head) || name.isLog ||
           lookAtLines(candidate.head, name).form;
}

std::unique_ptr<Source> SourceMaking::make(const Candidate& candidate) const
{
    SourceFacts facts;
    facts.name = candidate.name;
    facts.path = candidate.path;
    if (databases_.isDatabase(candidate.head)) {
        facts.kind = SourceKind::traceDatabase;
        std::shared_ptr<TraceTables> tables;
        try {
            tables = databases_.open(std::make_shared<KeptBytes>(candidate.file));
        } catch (const RunTimeError& error) {
            throw RunTimeError(error.number(), candidate.name + ": " + error.description());
        }
        return std::make_unique<TraceDatabaseSource>(facts, std::move(tables));
    }
    if (isEventLog(candidate.head)) {
        facts.kind = SourceKind::eventLog;
        return std::make_unique<EventLogSource>(std::move(facts), candidate.file);
    }
    const LogName name = readLogName(lastNameOf(candidate.name));
    const FirstLines lines = lookAtLines(candidate.head, name);
    if (lines.form || name.isLog) return makeLog(candidate, lines, name);
    const std::string& shown = candidate.path.empty() ? candidate.name : candidate.path;
    if (hasEnding(candidate.name, ".mdb"))
        raiseNoSource(shown, "is no trace database, or its first page is damaged");
    if (hasEnding(candidate.name, ".cab"))
        raiseNoSource(shown, "is no cabinet, or its head is damaged");
    raiseNone(shown);
}

/// Puts the first lines of a log, which have no day, in front of its first date, or else its last
/// ones on the day when it was modified.
void SourceMaking::guessFirstDay(const Candidate& candidate, LogFacts& facts)
{
    const KeptFile::Use use(*candidate.file);
    const FirstStamps stamps = readFirstStamps(use.descriptor(), facts.source.form);
    if (!stamps.dated && !candidate.modified) return;
    facts.opened = (stamps.dated ? *stamps.dated : dayOf(*candidate.modified)) -
                   millisecondsPerDay * stamps.midnights;
    facts.source.guesses.push_back(
        stamps.dated ? "The days of the first lines of " + candidate.name +
                           " are counted back from the first date in it"
                     : "No day stands in " + candidate.name +
                           " or its name: its last line is taken to be of the day when it was"
                           " modified");
}

std::unique_ptr<Source> SourceMaking::makeLog(const Candidate& candidate, const FirstLines& lines,
                                              const LogName& name) const
{
    LogFacts facts;
    facts.opened = name.opened;
    facts.source.name = candidate.name;
    facts.source.path = candidate.path;
    facts.source.process = name.process;
    std::vector<std::string>& guesses = facts.source.guesses;

    LineForm byName = LineForm::basic;
    if (name.isDataFile)
        byName = LineForm::data;
    else if (name.isFormattedCopy)
        byName = LineForm::formatted;
    LineForm form = lines.form.value_or(byName);
    const bool isRaw = form == LineForm::basic || form == LineForm::extended;
    if (options_.form && isRaw) {
        form = *options_.form;
    } else if (isRaw && lines.form) {
        guesses.push_back("The lines of " + candidate.name + " are taken to be " +
                          (form == LineForm::extended ? "extended ones, with thread, port and call"
                                                        " id"
                                                      : "basic ones, without thread, port and call"
                                                        " id"));
    }
    facts.source.form = form;
    if (form == LineForm::formatted) facts.source.kind = SourceKind::formattedCopy;
    if (form == LineForm::data) facts.source.kind = SourceKind::dataFile;

    if (options_.codePage)
        facts.codePage = *options_.codePage;
    else if (lines.beyondAscii)
        guesses.push_back("The letters of " + candidate.name +
                          " are taken to be those of Windows-1252");
    if (form == LineForm::data) {
        facts.localTime = options_.localTime ? options_.localTime : machineLocalTime;
        if (!options_.localTime)
            guesses.push_back("The times of " + candidate.name +
                              " are shown by the clock of this machine");
    }
    if (!lines.dated && !facts.opened) guessFirstDay(candidate, facts);
    return std::make_unique<LogSource>(std::move(facts), candidate.file);
}

} // namespace timeline
