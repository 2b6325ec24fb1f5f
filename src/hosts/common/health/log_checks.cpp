#include "core/registry_store.h"
#include "hosts/common/health/examined_server.h"
#include "hosts/common/health/health_checks.h"
#include "hosts/common/health/health_sentences.h"
#include "logreader/log_file_names.h"
#include "platform/event_reporter.h"
#include "platform/file_system.h"
#include "runtime/run_time_error.h"

namespace healthChecks {

namespace {

using namespace healthSentences;
using health::lacking;
using health::notLookedAt;
using health::well;

HealthReport lookAtLogFolder(ExaminedServer& server)
{
    const std::string folder = getRegistryText(server.context(), logManagerKey, logFolderValue);
    if (folder.empty()) return notLookedAt(afterAnother, {std::string(logFolderName)});
    if (!server.files().folderExists(folder))
        return lacking(HealthState::missing, {noFolder, {folder}}, healthSentences::copyFolder);
    std::size_t logs = 0;
    try {
        server.files().entries(folder);
        for (const char* pattern : {logFileNames::diagnosticLogs, logFileNames::dataFiles})
            logs += server.files().matching(folder + "\\" + pattern).size();
    } catch (const RunTimeError& error) {
        return lacking(HealthState::unusable, {unlistedFolder, {folder, health::clauseOf(error)}},
                       letRead);
    }
    return well({logFiles, {folder, std::to_string(logs)}});
}

/// Whether the log that the server names as a process's current one is there to be read.
bool hasCurrentLog(ExaminedServer& server, const std::string& process)
try {
    const std::string log = getRegistryText(
        server.context(), std::string(logProcessesKey) + "\\" + process, currentLogValue);
    if (log.empty()) return false;
    server.files().openForReading(log);
    return true;
} catch (const RunTimeError&) {
    return false;
}

HealthReport lookAtCurrentLogs(ExaminedServer& server)
{
    const auto processesThatLog =
        server.registryKeys().subkeys(registryRoot::localMachine, logProcessesKey);
    if (!processesThatLog || processesThatLog->empty())
        return notLookedAt(afterAnother, {std::string(processes)});
    std::vector<std::string> without;
    for (const std::string& process : *processesThatLog)
        if (!hasCurrentLog(server, process)) without.push_back(process);
    if (!without.empty())
        return lacking(HealthState::missing, {noCurrentLogs, {health::listed(without)}}, startLogs);
    return well({processNames, {health::listed(*processesThatLog)}});
}

/// It formats the lines of the logs; without it no log can be read.
HealthReport lookAtEventReporter(ExaminedServer& server)
try {
    EventReporter& reporter = server.context().platform.eventReporter;
    reporter.startUp();
    reporter.completeStartUp();
    return well({canBeStarted, {}});
} catch (const RunTimeError& error) {
    return lacking(HealthState::missing, {noReporter, {health::clauseOf(error)}}, repairServer);
}

} // namespace

std::vector<HealthCheck> ofLogs()
{
    return {
        {"log-folder", logFolder, true, lookAtLogFolder},
        {"current-logs", currentLogs, true, lookAtCurrentLogs},
        {"event-reporter", eventReporter, true, lookAtEventReporter},
    };
}

} // namespace healthChecks
