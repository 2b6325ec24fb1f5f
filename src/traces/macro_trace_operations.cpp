#include "traces/macro_trace_operations.h"

#include "core/error_trap.h"
#include "core/signals.h"
#include "platform/tree_view.h"
#include "server/diagnostic_grid.h"
#include "traces/counted_walk.h"
#include "traces/macro_trace_record.h"
#include "traces/reset_traces.h"
#include "traces/trace_bits.h"

namespace {

constexpr std::string_view moduleName = "mdlTraces";
constexpr std::int16_t recordedAsOn = 1;

using Combine = std::int32_t (*)(std::int32_t mask, std::int32_t flags);

/// Changes the flags of each component of a TRACE, one write for each DIAG. A DIAG whose component
/// can't be read touches none.
void changeComponents(ToolContext& tool, ErrorTrap& step, const XmlElementPtr& traceNode,
                      Combine combine)
{
    std::vector<XmlElementPtr> components;
    step([&] { components = required(traceNode).selectNodes("DIAG"); });
    countedWalk(step, 0, static_cast<int>(components.size()) - 1, [&](int index) {
        const XmlElementPtr& component = components[static_cast<std::size_t>(index)];
        std::string name;
        std::vector<XmlElementPtr> levels;
        step([&] { name = requiredAttribute(component, "GROUP"); });
        std::int32_t flags = mdlOrvanDatabase::getFlags(tool, name, flagKind::current);
        step([&] { levels = component->selectNodes("FLAG"); });
        countedWalk(step, 0, static_cast<int>(levels.size()) - 1, [&](int place) {
            step([&] {
                const int level = mdlTraces::leadingLevel(
                    requiredAttribute(levels[static_cast<std::size_t>(place)], "ID"));
                flags = combine(mdlTraces::levelMask(tool, level), flags);
            });
        });
        mdlOrvanDatabase::SetFlags(tool, name, flags);
    });
}

/// The TRACE that a node of the tree names; null when the catalogue lacks it.
XmlElementPtr traceElement(ToolContext& tool, ErrorTrap& step, const std::string& groupName,
                           const std::string& traceName)
{
    XmlElementPtr element;
    step([&] {
        if (!tool.g_domMacroTraces) throw RunTimeError(runTimeErrors::objectVariableNotSet);
        element = tool.g_domMacroTraces->selectSingleNode("HYBRIDTRACES/GA[@NAME='" + groupName +
                                                          "']/TRACE[@NAME='" + traceName + "']");
    });
    return element;
}

/// Calls `visit` with each macro trace of the tree, after the name of its group.
template <typename Visit>
void forEachTrace(ErrorTrap& step, const TreeView& tree, Visit visit)
{
    std::string groupName;
    countedWalk(step, 1, tree.count(), [&](int number) {
        const TreeNode& node = tree.item(number);
        if (node.parent())
            visit(groupName, node);
        else
            groupName = node.text();
    });
}

} // namespace

void mdlTraces::configureMacroTrace(ToolContext& tool, const TreeView& tree)
{
    ErrorTrap step{tool, moduleName, "configureMacroTrace", countedTrap};
    step.body([&] {
        step.enterProc();
        forEachTrace(step, tree, [&](const std::string& groupName, const TreeNode& node) {
            if (node.checked() || isenabledMacroTrace(tool, groupName, node.text()) != recordedAsOn)
                return;
            disableMacroTrace(tool, traceElement(tool, step, groupName, node.text()));
            recordMacroTrace(tool, groupName, node.text(), false);
        });
        forEachTrace(step, tree, [&](const std::string& groupName, const TreeNode& node) {
            if (!node.checked()) return;
            enableMacroTrace(tool, traceElement(tool, step, groupName, node.text()));
            recordMacroTrace(tool, groupName, node.text(), true);
        });
        enableStandardTraces(tool);
        step([&] { signalDiagnosticGridChange(tool); });
        step.exitProc();
    });
}

void mdlTraces::enableMacroTrace(ToolContext& tool, const XmlElementPtr& traceNode)
{
    ErrorTrap step{tool, moduleName, "enableMacroTrace", countedTrap};
    step.body([&] {
        changeComponents(tool, step, traceNode,
                         [](std::int32_t mask, std::int32_t flags) { return mask | flags; });
    });
}

void mdlTraces::disableMacroTrace(ToolContext& tool, const XmlElementPtr& traceNode)
{
    ErrorTrap step{tool, moduleName, "disableMacroTrace", countedTrap};
    step.body([&] {
        changeComponents(tool, step, traceNode,
                         [](std::int32_t mask, std::int32_t flags) { return mask ^ flags; });
    });
}
