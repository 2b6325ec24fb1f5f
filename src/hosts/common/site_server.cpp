#include "hosts/common/site_server.h"

#include "backends/site/events/event_line.h"
#include "backends/site/site_turn.h"
#include "hosts/common/places.h"
#include "runtime/run_time_error.h"
#include "system/file_bytes.h"
#include "system/file_facts.h"
#include "system/whole_file.h"

#include <sstream>

namespace {

/// Where the event reporter of a site writes.
constexpr const char* eventLog = "eventlogs/Application.jsonl";

} // namespace

SiteServer::SiteServer(const std::string& folder, const std::string& installedData,
                       const HostFacts& facts, SiteUse use)
    : site_(folder, installedData, facts, use),
      traceDatabases_([this](const std::string& path) { return machinePath(path); },
                      site_.codePage()),
      database_(site_)
{}

Platform SiteServer::platform(Desktop& desktop)
{
    return site_.platform(desktop, traceDatabases_, database_);
}

bool SiteServer::writable() const
{
    return mayWrite(site_.folder());
}

bool SiteServer::isServers(const std::string& path) const
{
    return site_.paths().isOfSite(path);
}

std::string SiteServer::machinePath(const std::string& path)
{
    return site_.paths().machinePath(path);
}

std::string SiteServer::obstacleTo(const std::string& program) const
{
    return site_.processes().obstacleTo(program);
}

std::string SiteServer::toolPath(const std::string& typed)
{
    std::string path = places::wholePath(typed);
    site_.paths().permit(path);
    return path;
}

HeldTurn SiteServer::takeTurn(const std::function<void(const std::string&)>& notice)
{
    return std::make_shared<SiteTurn>(site_.folder(), SiteTurn::usualPatience, notice);
}

std::int64_t SiteServer::endOfEvents() const
try {
    const auto facts = site_.paths().root().facts(eventLog);
    return facts ? facts->size : 0;
} catch (const RunTimeError&) {
    return 0;
}

std::vector<ReportedEvent> SiteServer::eventsSince(std::int64_t place) const
{
    std::vector<ReportedEvent> events;
    std::istringstream log(eventLogFrom(place));
    for (std::string line; std::getline(log, line);)
        if (const auto event = parseEventLine(line))
            events.push_back({event->id, event->firstInsert});
    return events;
}

std::vector<DatedEvent> SiteServer::pastEvents() const
{
    std::vector<DatedEvent> events;
    std::istringstream log(eventLogFrom(0));
    for (std::string line; std::getline(log, line);)
        if (auto event = parseEventLine(line))
            events.push_back({event->time, {event->id, event->firstInsert}});
    return events;
}

/// What stands in the event log from an offset on; nothing where it can't be read.
std::string SiteServer::eventLogFrom(std::int64_t offset) const
try {
    const FileDescriptor log =
        site_.paths().root().openFile(eventLog, forReading, runTimeErrors::fileNotFound);
    goTo(log, static_cast<std::uint64_t>(offset));
    return readWholeFile(log, runTimeErrors::fileNotFound);
} catch (const RunTimeError&) {
    return {};
}
