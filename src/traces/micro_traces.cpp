#include "traces/micro_traces.h"

#include "controls/tree_view.h"
#include "core/error_trap.h"
#include "core/signals.h"
#include "core/utility.h"
#include "platform/tool_events.h"
#include "runtime/dictionary.h"
#include "runtime/text.h"
#include "server/diagnostic_grid.h"
#include "traces/counted_walk.h"
#include "traces/reset_traces.h"
#include "traces/trace_bits.h"

namespace {

constexpr std::string_view moduleName = "mdlTraces";

/// The text between the first "(" and the first ")" behind it. Raises 5 when there is no such pair.
std::string componentNameOf(std::string_view text)
{
    const auto opening = static_cast<int>(positionOf(text, "("));
    if (opening == 0) throw RunTimeError(runTimeErrors::invalidCall);
    const auto closing =
        static_cast<int>(positionOf(text, ")", static_cast<std::size_t>(opening) + 1));
    return std::string(mid(text, opening + 1, closing - opening - 1));
}

} // namespace

bool mdlTraces::isTraceLevelSet(ToolContext& tool, int level, const std::string& componentName)
{
    ErrorTrap step{tool, moduleName, "isTraceLevelSet"};
    const std::int32_t flags = mdlOrvanDatabase::getFlags(tool, componentName, flagKind::current);
    return step.value(false, [&] { return (levelMask(tool, level) & flags) > 0; });
}

void mdlTraces::configureMicroTrace(ToolContext& tool, const TreeView& tree)
{
    ErrorTrap step{tool, moduleName, "configureMicroTrace"};
    Dictionary<std::int32_t> words;
    std::string component;
    std::int32_t word = 0;
    int level = 0;

    step.enterProc();
    countedWalk(step, 1, tree.count(), [&](int number) {
        const TreeNode& node = tree.item(number);
        if (!node.parent()) {
            step([&] { component = componentNameOf(node.text()); });
            step([&] { words.add(component, 0); });
            return;
        }
        step([&] { word = words.item(component); });
        if (!node.checked()) return;
        step([&] { level = leadingLevel(node.text()); });
        step([&] { word = levelMask(tool, level) | word; });
        step([&] { words.item(component) = word; });
        step([&] {
            reportServerEvent(tool, toolEvents::traceChange, toolEvents::microTraceOn,
                              {" (" + node.text() + ")"});
        });
    });
    for (const auto& name : words.keys()) {
        const std::int32_t ticked = words.item(name);
        if (mdlOrvanDatabase::getFlags(tool, name, flagKind::current) != ticked)
            mdlOrvanDatabase::SetFlags(tool, name, ticked);
    }
    enableStandardTraces(tool);
    step([&] { signalDiagnosticGridChange(tool); });
    step.exitProc();
}
