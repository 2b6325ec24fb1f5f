#include "hosts/cli/manual/live_values.h"

#include "core/localisation.h"
#include "core/registry_store.h"
#include "hosts/cli/driving/known_names.h"
#include "hosts/cli/open_tool.h"
#include "hosts/cli/settled_options.h"
#include "logreader/log_file_names.h"
#include "platform/file_system.h"
#include "platform/registry.h"
#include "runtime/text.h"
#include "settings/event_log_language.h"

#include <exception>

namespace cli {

namespace {

constexpr const char* keyOfEventLogs = "System\\CurrentControlSet\\Services\\Eventlog";

using Names = std::vector<std::string>;

/// The server with a context of the tool, which is never loaded: its start would connect to the
/// database.
class UnloadedTool final : private AroundTool, public ToolOnServer {
public:
    explicit UnloadedTool(const GlobalOptions& options)
        : AroundTool{{}, serverToExamine(options), {}, {}},
          ToolOnServer(*access_, ServerUse::look, desktop_)
    {}
};

Names subkeysOf(ToolContext& context, const std::string& path)
{
    return context.platform.registry.subkeys(registryRoot::localMachine, path).value_or(Names{});
}

Names logsOf(ToolContext& context)
{
    const std::string folder = getRegistryText(context, logManagerKey, logFolderValue);
    Names logs;
    for (const std::string& process : subkeysOf(context, logProcessesKey))
        for (std::string& log :
             context.platform.files.matching(folder + "\\" + logFileNames::logsOfProcess(process)))
            logs.push_back(std::move(log));
    return logs;
}

/// The levels of the component that is typed, or else the beginnings that components are.
Names levelsOf(ToolContext& context, const std::string& typed)
{
    const auto colon = typed.find(':');
    Names names;
    for (const auto& shown : knownNames::shownLevels(context)) {
        if (colon == std::string::npos)
            names.push_back(shown.component + ":");
        else if (equalIgnoringCase(shown.component, typed.substr(0, colon)))
            for (const int level : shown.levels)
                names.push_back(shown.component + ":" + std::to_string(level));
    }
    return names;
}

Names componentsOf(ToolContext& context)
{
    Names names;
    for (const auto& shown : knownNames::shownLevels(context)) names.push_back(shown.component);
    return names;
}

Names valuesOf(ToolContext& context, Values kind, const std::string& typed)
{
    switch (kind) {
    case Values::processes:
        return subkeysOf(context, logProcessesKey);
    case Values::logs:
    case Values::logsAndFiles:
        return logsOf(context);
    case Values::eventLogs:
        return subkeysOf(context, keyOfEventLogs);
    case Values::components:
        return componentsOf(context);
    case Values::componentsAndLevels:
        return levelsOf(context, typed);
    case Values::macroTraces:
        return knownNames::macroTraces(context).shown;
    case Values::languages:
        return libraryCodes(context);
    case Values::eventLanguages:
        return mdlLanguage::installedLanguages(context);
    default:
        return {};
    }
}

} // namespace

std::vector<std::string> liveValues(GlobalOptions options, Values kind, const std::string& typed)
{
    try {
        settleOptionsQuietly(options);
        UnloadedTool tool(options);
        return valuesOf(tool.context(), kind, typed);
    } catch (const std::exception&) {
        return {};
    }
}

} // namespace cli
