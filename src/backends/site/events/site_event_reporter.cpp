#include "backends/site/events/site_event_reporter.h"

#include "backends/site/events/trace_line_format.h"
#include "platform/clock.h"
#include "system/file_descriptor.h"
#include "system/system_error.h"

#include <cerrno>
#include <fcntl.h>
#include <nlohmann/json.hpp>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace {

using Json = nlohmann::ordered_json;

constexpr const char* eventLogs = "eventlogs";

/// Whether a log's last line was cut short, so that the next event needs a line end before it.
bool endsWithinALine(int log)
{
    struct stat facts {};
    char last = '\n';
    if (::fstat(log, &facts) != 0 || facts.st_size == 0) return false;
    return ::pread(log, &last, 1, facts.st_size - 1) == 1 && last != '\n';
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
        site_.openFile(std::string(eventLogs) + "/Application.jsonl",
                       O_RDWR | O_CREAT | O_APPEND | O_NOFOLLOW, runTimeErrors::pathNotFound);
    if (endsWithinALine(log.get())) line.insert(0, "\n");
    if (writeBytes(log.get(), line) < line.size())
        throw systemError(errno, runTimeErrors::deviceIo);
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
