#include "traces/macro_trace_operations.h"

#include "controls/tree_view.h"
#include "core/error_trap.h"
#include "core/signals.h"
#include "runtime/required_object.h"
#include "server/diagnostic_grid.h"
#include "traces/counted_walk.h"
#include "traces/macro_trace_record.h"
#include "traces/reset_traces.h"
#include "traces/trace_bits.h"

namespace {

constexpr std::string_view moduleName = "mdlTraces";
constexpr std::int16_t recordedAsOn = 1;

using Combine = std::int32_t (*)(std::int32_t mask, std::int32_t flags);

/// Changes the flags of each component of a TRACE, one write for each DIAG. A DIAG or FLAG that
/// can't be read counts as the one before it.
void changeComponents(ToolContext& tool, ErrorTrap& step, const XmlElementPtr& traceNode,
                      Combine combine)
{
    std::string name;
    std::int32_t flags = 0;
    std::vector<XmlElementPtr> levels;
    int level = 0;
    const auto components = step.value({}, [&] { return required(traceNode).selectNodes("DIAG"); });
    countedWalk(step, 0, static_cast<int>(components.size()) - 1, [&](int index) {
        const XmlElementPtr& component = components[static_cast<std::size_t>(index)];
        step([&] { name = requiredAttribute(component, "GROUP"); });
        flags = mdlOrvanDatabase::getFlags(tool, name, flagKind::current);
        step([&] { levels = component->selectNodes("FLAG"); });
        countedWalk(step, 0, static_cast<int>(levels.size()) - 1, [&](int position) {
            step([&] {
                level = mdlTraces::leadingLevel(
                    requiredAttribute(levels[static_cast<std::size_t>(position)], "ID"));
            });
            step([&] { flags = combine(mdlTraces::levelMask(tool, level), flags); });
        });
        mdlOrvanDatabase::SetFlags(tool, name, flags);
    });
}

/// The TRACE that a node of the tree names; null when the catalogue lacks it. Raises 91 before a
/// catalogue was built, and what a name raises that can't be looked up.
XmlElementPtr traceElement(const ToolContext& tool, const std::string& groupName,
                           const std::string& traceName)
{
    return required(tool.g_domMacroTraces)
        .selectSingleNode("HYBRIDTRACES/GA[@NAME='" + groupName + "']/TRACE[@NAME='" + traceName +
                          "']");
}

/// Calls `visit` with each macro trace of the tree, after `groupName` was set to its group's.
template <typename Visit>
void forEachTrace(ErrorTrap& step, const TreeView& tree, std::string& groupName, Visit visit)
{
    countedWalk(step, 1, tree.count(), [&](int number) {
        const TreeNode& node = tree.item(number);
        if (node.parent())
            visit(node);
        else
            groupName = node.text();
    });
}

} // namespace

void mdlTraces::configureMacroTrace(ToolContext& tool, const TreeView& tree)
{
    ErrorTrap step{tool, moduleName, "configureMacroTrace", countedTrap};
    std::string groupName;
    XmlElementPtr element;

    step.body([&] {
        step.enterProc();
        forEachTrace(step, tree, groupName, [&](const TreeNode& node) {
            if (node.checked() || isenabledMacroTrace(tool, groupName, node.text()) != recordedAsOn)
                return;
            step([&] { element = traceElement(tool, groupName, node.text()); });
            disableMacroTrace(tool, element);
            recordMacroTrace(tool, groupName, node.text(), false);
        });
        forEachTrace(step, tree, groupName, [&](const TreeNode& node) {
            if (!node.checked()) return;
            step([&] { element = traceElement(tool, groupName, node.text()); });
            enableMacroTrace(tool, element);
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
