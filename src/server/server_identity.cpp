#include "server/server_identity.h"

#include "core/error_trap.h"
#include "core/registry_store.h"

bool mdlOrvan::logsExtendedFields(const ServerVersion& server)
{
    return server.major >= 2 && server.minor >= 1 && server.release >= 0 && server.build >= 0;
}

ServerVersion mdlOrvan::getVersion(ToolContext& tool)
{
    ErrorTrap step{tool, "mdlOrvan", "getVersion", countedTrap};
    ServerVersion found;
    const std::string key = std::string(baseKey) + "\\";
    step.body([&] {
        step.enterProc();
        step([&] { found.major = getRegistryNumber(tool, key, "MajorVersion"); });
        step([&] { found.minor = getRegistryNumber(tool, key, "MinorVersion"); });
        step([&] { found.release = getRegistryNumber(tool, key, "ReleaseVersion"); });
        step([&] { found.build = getRegistryNumber(tool, key, "BuildVersion"); });
        step([&] { found.version = getRegistryText(tool, key, "Version"); });
        step.exitProc();
    });
    return found;
}
