#include "core/registry_store.h"
#include "hosts/common/health/examined_server.h"
#include "hosts/common/health/health_checks.h"
#include "hosts/common/health/health_sentences.h"
#include "platform/file_system.h"
#include "runtime/text.h"
#include "system/file_facts.h"
#include "system/root_folder.h"

#include <set>

namespace healthChecks {

namespace {

using namespace healthSentences;
using health::lacking;
using health::notLookedAt;
using health::well;

constexpr std::int64_t megabyte = 1'000'000;

/// Below this the tool itself begins to keep fewer of its own logs.
constexpr std::int64_t leastSpace = 100 * megabyte;

HealthReport lookAtRights(ExaminedServer& server)
{
    if (server.writable()) return well({mayChange, {}});
    return lacking(HealthState::unusable, {mayNotChange, {}}, runAsAdministrator);
}

HealthReport lookAtDatabaseRights(ExaminedServer& server)
{
    if (!server.directory.isOpen()) return notLookedAt(afterDatabase);
    const std::string file = server.directory.file();
    if (file.empty()) return well({serverDecides, {}});
    if (mayWrite(file)) return well({mayChange, {}});
    return lacking(HealthState::unusable, {mayNotWrite, {file}}, runAsAdministrator);
}

/// The folder of a path of the machine that is there, the path itself or one above it.
std::string nearestFolder(std::string path)
{
    while (!factsOf(path)) {
        const std::string above = folderPathOf(path);
        if (above.empty() || above == path) break;
        path = above;
    }
    return path;
}

/// The tool makes the folder of its log when it begins one.
HealthReport lookAtToolLog(ExaminedServer& server)
{
    const std::string folder = server.machinePath(server.besideTool("LOGS"));
    if (mayWrite(nearestFolder(folder))) return well({plain, {folder}});
    return lacking(HealthState::unusable, {mayNotWrite, {folder}}, runAsAdministrator);
}

/// The drives that logs and the tool's own files lie on.
std::set<std::string> drivesInUse(ExaminedServer& server)
{
    std::set<std::string> drives;
    for (const std::string& path :
         {server.besideTool("LOGS"),
          getRegistryText(server.context(), logManagerKey, logFolderValue)})
        if (const std::string drive = server.files().driveName(path); !drive.empty())
            drives.insert(upperCase(drive) + "\\");
    return drives;
}

HealthReport lookAtSpace(ExaminedServer& server)
{
    HealthReport report = well({mayChange, {}});
    std::int64_t least = -1;
    for (const std::string& drive : drivesInUse(server)) {
        if (!server.files().folderExists(drive)) continue; // of the log folder, more is said there
        const std::int64_t free = server.files().diskSpace(drive).freeBytes;
        if (least >= 0 && free >= least) continue;
        least = free;
        const std::vector<std::string> inserts = {drive, std::to_string(free / megabyte)};
        report = free < leastSpace
                     ? lacking(HealthState::unusable, {littleSpace, inserts}, makeRoom)
                     : well({freeSpace, inserts});
    }
    if (least < 0) return notLookedAt(afterAnother, {std::string(logFolder)});
    return report;
}

} // namespace

std::vector<HealthCheck> ofRights()
{
    return {
        {"rights", rights, true, lookAtRights},
        {"rights.database", databaseRights, true, lookAtDatabaseRights},
        {"rights.tool-log", toolLog, false, lookAtToolLog},
        {"space", space, false, lookAtSpace},
    };
}

} // namespace healthChecks
