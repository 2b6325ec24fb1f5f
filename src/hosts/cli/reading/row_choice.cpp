#include "hosts/cli/reading/row_choice.h"

#include "hosts/cli/command.h"
#include "hosts/cli/naming/near_names.h"
#include "hosts/cli/reading/read_options.h"
#include "runtime/run_time_error.h"
#include "runtime/text.h"

namespace cli {

namespace {

using timeline::Column;
using timeline::FrameEnd;
using timeline::Letters;
using timeline::TextPattern;

/// Runs what raises run-time errors for texts that a person typed.
template <typename Read>
auto readTyped(Read&& read)
{
    try {
        return read();
    } catch (const RunTimeError& error) {
        throw UsageError(error.description());
    }
}

std::shared_ptr<const TextPattern> expression(const std::string& pattern, Letters letters)
{
    return std::make_shared<const TextPattern>(TextPattern::Kind::expression, pattern, letters);
}

} // namespace

RowChoice::RowChoice(const ReadOptions& options) : macroTrace_(options.macroTrace)
{
    readTyped([&] {
        if (!options.since.empty()) since_.emplace(options.since);
        if (!options.until.empty()) until_.emplace(options.until);
        if (!options.last.empty()) {
            timeline::readSpan(options.last); // refuses what is no span
            since_.emplace("-" + options.last);
        }
        addColumns(options);
        addPatterns(options);
        timeline::Filter tried(choice_);
    });
}

void RowChoice::addColumns(const ReadOptions& options)
{
    const std::pair<Column, const std::vector<std::string>&> columns[] = {
        {Column::process, options.processes}, {Column::component, options.components},
        {Column::source, options.sources},    {Column::level, options.levels},
        {Column::callId, options.calls},      {Column::port, options.ports},
        {Column::thread, options.threads},    {Column::traceNumber, options.numbers}};
    for (const auto& [column, values] : columns)
        if (!values.empty()) choice_.columns.push_back({column, values, false});
}

void RowChoice::addPatterns(const ReadOptions& options)
{
    const Letters letters = options.ignoreCase ? Letters::inAnyCase : Letters::asWritten;
    for (const std::string& pattern : options.patterns)
        choice_.patterns.push_back(expression(pattern, letters));
    for (const std::string& exclusion : options.exclusions) addExclusion(exclusion, letters);
}

void RowChoice::addExclusion(const std::string& exclusion, Letters letters)
{
    const auto sign = exclusion.find('=');
    if (sign == std::string::npos)
        throw UsageError("--exclude takes KEY=VALUE, not \"" + exclusion + "\"");
    const std::string key = exclusion.substr(0, sign);
    const std::string value = exclusion.substr(sign + 1);
    if (equalIgnoringCase(key, "grep")) {
        choice_.without.push_back(expression(value, letters));
        return;
    }
    const auto column = timeline::columnOf(key);
    if (!column) {
        const std::vector<std::string> keys = {"process", "source", "component", "level", "thread",
                                               "port",    "call",   "number",    "grep"};
        throw UsageError("--exclude takes " + namesToChoose(keys) + ", not \"" + key + "\"" +
                         didYouMean(key, keys));
    }
    choice_.columns.push_back({*column, {value}, true});
}

void RowChoice::findMacroTrace(const MacroTraceLookUp& lookUp)
{
    if (!macroTrace_.empty()) choice_.macroTrace = lookUp(macroTrace_);
}

bool RowChoice::needsLastRow() const
{
    return (since_ && since_->needsReference()) || (until_ && until_->needsReference());
}

bool RowChoice::takesAll() const
{
    return !since_ && !until_ && timeline::Filter(choice_).letsAllThrough();
}

timeline::Filter RowChoice::filter(timeline::Moment lastRow, timeline::ServerClock& clock) const
{
    timeline::Choice choice = choice_;
    if (since_) choice.since = since_->moment(FrameEnd::since, lastRow, clock);
    if (until_) choice.until = until_->moment(FrameEnd::until, lastRow, clock);
    return timeline::Filter(std::move(choice));
}

} // namespace cli
