#include "core/registry_store.h"
#include "core/utility.h"
#include "hosts/common/health/examined_server.h"
#include "hosts/common/health/health_checks.h"
#include "hosts/common/health/health_sentences.h"
#include "server/server_identity.h"

namespace healthChecks {

namespace {

using namespace healthSentences;
using health::lacking;
using health::well;

constexpr const char* signalsKey = "Software\\Kelma Systems\\Kelma Orvan\\RoLogMgr\\BroadCast";
constexpr const char* eventLogsKey = "System\\CurrentControlSet\\Services\\Eventlog";
constexpr const char* eventSourcesKey =
    "System\\CurrentControlSet\\Services\\EventLog\\Application";
constexpr const char* installFolderValue = "InstalledFolderPath";

bool hasValue(ExaminedServer& server, const char* key, const char* name)
{
    return server.registryKeys().value(registryRoot::localMachine, key, name).has_value();
}

/// A text as the tool reads it; a report where that comes to nothing.
HealthReport textReport(ExaminedServer& server, const char* key, const char* name)
{
    const std::string text = getRegistryText(server.context(), key, name);
    if (!text.empty()) return well({plain, {text}});
    if (hasValue(server, key, name))
        return lacking(HealthState::damaged, {unreadValue, {name, key}}, mendRegistry);
    return lacking(HealthState::missing, {noValue, {name, key}}, mendRegistry);
}

HealthReport lookAtServerFolder(ExaminedServer& server)
{
    HealthReport report = textReport(server, baseKey, installFolderValue);
    if (report.state != HealthState::ok) return report;
    const std::string folder = getInstalledFolderPath(server.context());
    if (server.files().folderExists(folder)) return report;
    return lacking(HealthState::missing, {noFolder, {folder}}, copyFolder);
}

/// Without one, or with one that the tool can't take, it reads log lines in their basic form.
HealthReport lookAtVersion(ExaminedServer& server)
{
    constexpr std::int32_t most = 32'767;
    std::string version;
    for (const char* part : {"MajorVersion", "MinorVersion", "ReleaseVersion", "BuildVersion"}) {
        if (!hasValue(server, baseKey, part))
            return lacking(HealthState::missing, {noVersion, {}}, mendRegistry);
        const std::int32_t number = getRegistryNumber(server.context(), baseKey, part, -1);
        if (number < 0 || number > most)
            return lacking(HealthState::damaged, {unreadValue, {part, baseKey}}, mendRegistry);
        version += (version.empty() ? "" : ".") + std::to_string(number);
    }
    return well({plain, {version}});
}

HealthReport lookAtLogFolderName(ExaminedServer& server)
{
    return textReport(server, logManagerKey, logFolderValue);
}

/// The names of the keys below one, which has to have some.
HealthReport namesReport(ExaminedServer& server, const char* key, std::string_view found)
{
    const auto keys = server.registryKeys().subkeys(registryRoot::localMachine, key);
    if (!keys) return lacking(HealthState::missing, {noKey, {key}}, mendRegistry);
    if (keys->empty()) return lacking(HealthState::missing, {emptyKey, {key}}, mendRegistry);
    return well({found, {health::listed(*keys)}});
}

HealthReport lookAtProcesses(ExaminedServer& server)
{
    return namesReport(server, logProcessesKey, processNames);
}

/// The tool writes its signals below the key and never makes it.
HealthReport lookAtSignals(ExaminedServer& server)
{
    if (server.registryKeys().keyExists(registryRoot::localMachine, signalsKey))
        return well({plain, {signalsKey}});
    return lacking(HealthState::missing, {noKey, {signalsKey}}, mendRegistry);
}

HealthReport lookAtEventLogs(ExaminedServer& server)
{
    return namesReport(server, eventLogsKey, names);
}

HealthReport lookAtEventSources(ExaminedServer& server)
{
    return namesReport(server, eventSourcesKey, names);
}

} // namespace

std::vector<HealthCheck> ofRegistry()
{
    return {
        {"registry.server-folder", serverFolder, true, lookAtServerFolder},
        {"registry.version", version, false, lookAtVersion},
        {"registry.log-folder", logFolderName, true, lookAtLogFolderName},
        {"registry.processes", processes, true, lookAtProcesses},
        {"registry.signals", signals, true, lookAtSignals},
        {"registry.event-logs", eventLogs, false, lookAtEventLogs},
        {"registry.event-sources", eventSources, false, lookAtEventSources},
    };
}

} // namespace healthChecks
