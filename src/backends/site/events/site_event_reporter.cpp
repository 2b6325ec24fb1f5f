#include "backends/site/events/site_event_reporter.h"

#include "backends/site/files/site_file.h"
#include "platform/clock.h"
#include "runtime/run_time_error.h"
#include "system/file_bytes.h"
#include "system/file_facts.h"
#include "tracelines/trace_line_format.h"

#include <nlohmann/json.hpp>
#include <utility>

namespace {

using Json = nlohmann::ordered_json;

constexpr const char* eventLogs = "eventlogs";

/// Whether a log's last line was cut short, so that the next event needs a line end before it.
bool endsWithinALine(const FileDescriptor& log)
try {
    const auto size = static_cast<std::uint64_t>(factsOf(log).size);
    char last = '\n';
    return size > 0 && readAt(log, &last, 1, size - 1) == 1 && last != '\n';
} catch (const RunTimeError&) {
    return false;
}

/// Another program may be quicker; what keeps the folder from being made keeps a log from it too.
void makeEventLogs(const RootFolder& site)
{
    try {
        site.makeFolder(eventLogs);
    } catch (const RunTimeError&) {
        return;
    }
}

} // namespace

SiteEventReporter::SiteEventReporter(RootFolder site, std::string computer, LogFields fields,
                                     const Clock& clock)
    : site_(std::move(site)), computer_(std::move(computer)), fields_(fields), clock_(clock)
{}

std::int32_t SiteEventReporter::registerTool(const std::string&)
{
    return ++lastHandle_;
}

void SiteEventReporter::report(const std::string& source, std::int32_t, int type, std::int32_t id,
                               const std::vector<std::string>& inserts)
{
    Json event;
    event["time"] = sortableDateTime(clock_.now());
    event["type"] = type;
    event["source"] = source;
    event["id"] = id;
    event["computer"] = computer_;
    event["inserts"] = inserts;
    auto line = event.dump(-1, ' ', false, Json::error_handler_t::replace) + "\n";

    if (!site_.isFolder(eventLogs)) makeEventLogs(site_);
    const FileDescriptor log =
        openSiteFile(site_, std::string(eventLogs) + "/Application.jsonl",
                     {FileAccess::readAndAppend, Creation::ifMissing, LastLink::refused},
                     runTimeErrors::pathNotFound);
    if (endsWithinALine(log)) line.insert(0, "\n");
    writeAll(log, line);
}

void SiteEventReporter::formatTraceLine(std::string_view rawLine, std::string& formatted)
{
    if (!appendFormattedTraceLine(rawLine, fields_, formatted))
        throw RunTimeError(runTimeErrors::invalidCall);
}

std::string_view SiteEventReporter::timeOfSoundLine(std::string_view rawLine) const
{
    return timeOfSoundTraceLine(rawLine, fields_);
}
