#include "hosts/cli/driving/traces_on.h"

#include "hosts/cli/driving/flag_words.h"
#include "hosts/cli/driving/known_names.h"
#include "hosts/cli/open_tool.h"
#include "hosts/cli/site_times.h"
#include "platform/database.h"
#include "platform/tool_events.h"
#include "runtime/run_time_error.h"
#include "timeline/filter/time_text.h"
#include "traces/macro_trace_record.h"

#include <algorithm>
#include <map>

namespace cli {

namespace {

using timeline::Moment;

/// A time of the event log; nothing for a text that is none.
std::optional<Moment> momentOfEvent(const std::string& time, SiteTimes& times)
try {
    const timeline::TimeText text(time);
    if (text.needsReference()) return {};
    return text.moment(timeline::FrameEnd::since, times.now(), times.clock());
} catch (const RunTimeError&) {
    return {};
}

/// Since when macro traces are on without a break, by their names, as far as events tell. Being
/// recorded as on once more is no new beginning.
std::map<std::string, Moment> beginningsInEvents(OpenTool& tool, SiteTimes& times)
{
    std::map<std::string, Moment> beginnings;
    for (const DatedEvent& past : tool.server().pastEvents()) {
        if (past.event.id == toolEvents::macroTraceOff) beginnings.erase(past.event.insert);
        if (past.event.id != toolEvents::macroTraceOn) continue;
        if (const auto moment = momentOfEvent(past.time, times))
            beginnings.try_emplace(past.event.insert, *moment);
    }
    return beginnings;
}

std::vector<MacroTraceOn> macroTracesOn(OpenTool& tool)
{
    std::vector<MacroTraceOn> on;
    if (!tool.context().g_domMacroTraces) return on;
    SiteTimes times(tool.context());
    const auto beginnings = beginningsInEvents(tool, times);
    for (const auto& shown : knownNames::shownTraces(*tool.context().g_domMacroTraces)) {
        if (shown.element->attribute("Enabled") != "1") continue;
        MacroTraceOn trace{shown.group, shown.trace, {}};
        // The record is written anew each time that the wizard finds the trace ticked.
        if (const auto date =
                mdlTraces::macroTraceRecorded(tool.context(), trace.group, trace.trace))
            trace.since = momentOf(*date);
        const auto begun = beginnings.find(trace.group + " - " + trace.trace);
        if (begun != beginnings.end())
            trace.since = std::min(trace.since.value_or(begun->second), begun->second);
        on.push_back(std::move(trace));
    }
    return on;
}

std::optional<std::vector<LevelsOn>> levelsOn(OpenTool& tool)
try {
    std::vector<LevelsOn> all;
    for (const FlagWords& word : readFlagWords(tool.context().g_connection)) {
        const auto added = static_cast<std::uint32_t>(word.flags & ~word.defaultFlags);
        LevelsOn on{word.name, {}};
        for (int level = 0; level < levelsOfAWord; ++level)
            if ((added >> level & 1U) != 0) on.levels.push_back(level);
        if (!on.levels.empty()) all.push_back(std::move(on));
    }
    return all;
} catch (const RunTimeError&) {
    return {};
}

} // namespace

TracesOn tracesOn(OpenTool& tool)
{
    return {macroTracesOn(tool), levelsOn(tool)};
}

} // namespace cli
