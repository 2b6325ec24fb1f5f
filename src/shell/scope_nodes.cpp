#include "shell/scope_nodes.h"

#include "console/scope_tree.h"
#include "core/error_trap.h"
#include "core/registry_store.h"
#include "logreader/log_file_names.h"
#include "platform/clock.h"
#include "platform/file_system.h"
#include "runtime/integer16.h"
#include "runtime/required_object.h"
#include "runtime/text.h"
#include "shell/snapin_names.h"

#include <cstddef>
#include <string>
#include <vector>

namespace {

constexpr int logManagerDelay = 500; ///< milliseconds
constexpr std::size_t firstRoom = 50;
constexpr std::size_t furtherRoom = 25;

/// Takes out the nodes whose key begins with the process's log name, last node first.
void removeLogNodes(ErrorTrap& step, ScopeTree& scopeItems, const std::string& process)
{
    for (const std::string& key :
         scopeItems.keysBeginningWith(std::string(logFileNames::diagnosticPrefix) + process))
        if (scopeItems.find(key)) step([&] { scopeItems.remove(key); });
}

void addLogNode(ErrorTrap& step, ToolContext& tool, ScopeTree& scopeItems, ScopeItem& processNode,
                const std::string& fileName, const std::string& displayName,
                const char* image = snapinImage::log)
{
    ScopeItem* const node = step.value(
        nullptr, [&] { return &scopeItems.addChild(snapinNode::log, fileName, processNode); });
    if (node) node->image(image);
    step([&] { required(node).name(fileName); });
    step([&] { required(node).displayName(displayName); });
    step([&] { required(node).kind(mdlSnapIn::kindLogFile); });
    step([&] {
        ScopeItem& added = required(node);
        tool.g_dictLogItems.item(added.key()) = added.weak_from_this();
    });
}

/// Names from index 1 on, as the folder search gives them, without formatted copies and the log in
/// use. The position is a 16-bit one: past its range the last name is written again and again.
struct LogNames {
    std::vector<std::string> names = std::vector<std::string>(firstRoom + 1);
    Integer16 position = 1; ///< of the next name
};

void collectOtherLogs(ErrorTrap& step, ToolContext& tool, const std::string& process,
                      const std::string& pattern, LogNames& logs)
{
    const auto found = step.value({}, [&] { return tool.platform.files.matching(pattern); });
    for (const auto& name : found) {
        const bool current = step.value(
            false, [&] { return name == mdlDiagnostics::getCurrentDiagnosticFile(tool, process); });
        if (current || logFileNames::isFormattedCopy(name)) continue;
        step([&] { logs.names.at(static_cast<std::size_t>(logs.position.value())) = name; });
        step([&] { ++logs.position; });
        if (static_cast<std::size_t>(logs.position.value()) + 1 == logs.names.size()) {
            step([&] { logs.names.resize(logs.names.size() + furtherRoom); });
        }
    }
}

} // namespace

void mdlSnapIn::populateScopeProcesses(ToolContext& tool, ScopeTree& scopeItems,
                                       ScopeItem& parentNode)
{
    ErrorTrap step{tool, "mdlSnapIn", "populateScopeProcesses"};
    KeyNames names;
    int first = 0;
    int last = -1;
    ScopeItem* node = nullptr;

    step.enterProc();
    step([&] { names = enumRegistryKeys(tool, registryRoot::localMachine, logProcessesKey); });
    step([&] {
        first = names.lowerBound();
        last = names.upperBound();
    });
    for (int index = first; index <= last; ++index) {
        step(
            [&] { node = &scopeItems.addChild(snapinNode::process, names.at(index), parentNode); });
        step([&] { required(node).name(names.at(index)); });
        step([&] { required(node).displayName(names.at(index)); });
        step([&] { required(node).kind(kindLogProcess); });
    }
    step.exitProc();
}

void mdlSnapIn::populateScopeAllLogs(ToolContext& tool, ScopeTree& scopeItems,
                                     ScopeItem& processNode)
{
    ErrorTrap step{tool, "mdlSnapIn", "populateScopeAllLogs"};
    LogNames logs;

    step.enterProc();
    const std::string process = processNode.displayName();
    const std::string pattern = tool.g_strLogFolder + "\\" + logFileNames::logsOfProcess(process);
    removeLogNodes(step, scopeItems, process);
    step([&] { tool.platform.clock.sleep(logManagerDelay); });
    const std::string current =
        step.value("", [&] { return mdlDiagnostics::getCurrentDiagnosticFile(tool, process); });
    if (!current.empty()) {
        addLogNode(step, tool, scopeItems, processNode, current, "Current- " + current,
                   snapinImage::logInUse);
    }
    collectOtherLogs(step, tool, process, pattern, logs);
    for (auto index = static_cast<std::size_t>(logs.position.value()) - 1; index >= 1; --index) {
        const std::string& name = logs.names[index];
        addLogNode(step, tool, scopeItems, processNode, name, name);
    }
    step.exitProc();
}
