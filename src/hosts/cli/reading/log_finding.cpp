#include "hosts/cli/reading/log_finding.h"

#include "backends/site/site.h"
#include "core/registry_store.h"
#include "hosts/cli/naming/long_paths.h"
#include "hosts/cli/naming/matching_name.h"
#include "hosts/cli/naming/near_names.h"
#include "hosts/cli/terminal/message.h"
#include "hosts/common/places.h"
#include "hosts/machine/open_machine.h"
#include "platform/file_system.h"
#include "shell/snapin_names.h"
#include "system/file_facts.h"

#include <algorithm>

namespace cli {

namespace {

bool isBareName(const std::string& log)
{
    return log.find_first_of("/\\:") == std::string::npos;
}

bool isOnThisMachine(const std::string& log)
{
    return !log.empty() && factsOf(places::wholePath(log)).has_value();
}

/// Whether somebody who has no server means logs of this machine, though one may be missing.
bool areOfThisMachine(const std::vector<std::string>& logs)
{
    return std::any_of(logs.begin(), logs.end(), [](const std::string& log) {
        return log == "-" || log.find('/') != std::string::npos || isOnThisMachine(log);
    });
}

void tellMissing(FoundLogs& found, const std::string& log, const std::string& where = {})
{
    printMessage("the log \"" + shortened(log) + "\" can not be found" +
                 (isTooLong(log) ? ": its path is too long" : where));
    found.missing = true;
}

std::string logFolderOf(OpenTool& tool)
{
    return getRegistryText(tool.context(), logManagerKey, logFolderValue);
}

/// A bare name lies in the log folder, or else where a path leads from the current folder.
void findOnServer(FoundLogs& found, OpenTool& tool, const std::string& log)
{
    if (log == "-") {
        found.paths.push_back(log);
        return;
    }
    const auto& files = tool.context().platform.files;
    const std::string folder = logFolderOf(tool);
    std::vector<std::string> names;
    if (isBareName(log) && !log.empty()) {
        names = files.matching(folder + "\\*");
        if (const auto name = matchingName(log, names)) {
            found.paths.push_back(tool.machinePath(folder + "\\" + *name));
            return;
        }
    }
    const std::string path = tool.toolPath(log);
    // A pipe of this machine is nothing that a server has.
    const auto isHere = [&] {
        const auto facts = factsOf(tool.machinePath(path));
        return facts && facts->kind == FileKind::pipe;
    };
    if (!log.empty() && (files.fileExists(path) || files.folderExists(path) || isHere()))
        found.paths.push_back(tool.machinePath(path));
    else
        tellMissing(found, log,
                    (isBareName(log) && !folder.empty() ? ", neither here nor in " + folder : "") +
                        didYouMean(log, names));
}

} // namespace

FoundLogs findLogs(const GlobalOptions& options, const std::vector<std::string>& logs)
{
    FoundLogs found;
    const bool noServer = options.site ? !isSite(*options.site) : !machineIsAServer();
    if (noServer && areOfThisMachine(logs)) {
        for (const std::string& log : logs)
            if (log == "-" || isOnThisMachine(log))
                found.paths.push_back(log == "-" ? log : places::wholePath(log));
            else
                tellMissing(found, log);
        if (found.paths.empty()) throw CommandFailure("");
        return found;
    }
    found.tool = std::make_unique<OpenTool>(options, ToolUse::look, [&](OpenTool& tool) {
        if (logs.empty()) found.paths.push_back(tool.machinePath(logFolderOf(tool)));
        for (const std::string& log : logs) findOnServer(found, tool, log);
        if (found.paths.empty()) throw CommandFailure("");
    });
    return found;
}

} // namespace cli
