#include "hosts/cli/driving/trace_expectation.h"

#include "controls/tree_view.h"
#include "core/registry_store.h"
#include "core/tool_context.h"
#include "platform/tool_events.h"
#include "platform/xml.h"
#include "runtime/numbers.h"
#include "runtime/run_time_error.h"
#include "runtime/text.h"
#include "traces/trace_bits.h"

#include <optional>

namespace cli {

namespace {

using Words = std::map<std::string, std::int32_t>;

Words wordsOf(const std::vector<FlagWords>& present)
{
    Words words;
    for (const FlagWords& component : present) words[component.name] = component.flags;
    return words;
}

/// The closing step of every operation.
void addDefaults(Words& words, const std::vector<FlagWords>& present)
{
    for (const FlagWords& component : present) words[component.name] |= component.defaultFlags;
}

std::optional<std::int32_t> maskOf(const ToolContext& tool, int level)
{
    try {
        return mdlTraces::levelMask(tool, level);
    } catch (const RunTimeError&) {
        return {};
    }
}

/// The TRACE of two names, compared as they are: a path can't hold every name.
XmlElementPtr traceNamed(const ToolContext& tool, const std::string& group,
                         const std::string& trace)
{
    if (!tool.g_domMacroTraces) return nullptr;
    for (const auto& each : tool.g_domMacroTraces->selectNodes("HYBRIDTRACES/GA"))
        if (each->attribute("NAME") == group)
            for (const auto& element : each->selectNodes("TRACE"))
                if (element->attribute("NAME") == trace) return element;
    return nullptr;
}

/// Reads the number of a level. False for one past 16 bits, which leaves `level` as it was.
bool readLevel(const std::string& id, int& level)
{
    try {
        level = mdlTraces::leadingLevel(id);
        return true;
    } catch (const RunTimeError&) {
        return false;
    }
}

/// Puts the levels of a macro trace into the words. A part of a definition that has no name or
/// number counts as the one before it.
void combine(const ToolContext& tool, const XmlElementPtr& trace, bool on,
             TraceExpectation& expected)
{
    if (!trace) return;
    std::string name;
    int level = 0;
    for (const auto& component : trace->selectNodes("DIAG")) {
        name = component->attribute("GROUP").value_or(name);
        const auto word = expected.words.find(name);
        const bool known = word != expected.words.end();
        if (!known)
            expected.impossible.push_back(trim(name).empty() ? "a component without a name"
                                                             : "no component " + name);
        for (const auto& flag : component->selectNodes("FLAG")) {
            const auto id = flag->attribute("ID");
            const bool readable = !id || readLevel(*id, level);
            if (!known) continue;
            const auto mask = maskOf(tool, level);
            if (!mask || !readable)
                expected.impossible.push_back("no level " +
                                              (readable ? numberText(std::int64_t{level}) : *id) +
                                              " of " + name);
            if (mask) word->second = on ? word->second | *mask : word->second ^ *mask;
        }
    }
}

/// The text between the first parentheses of a component's node, which is how the operation knows
/// the component; nothing when there are none.
std::optional<std::string> nameInParentheses(const std::string& text)
{
    const auto opening = text.find('(');
    const auto closing = opening == std::string::npos ? opening : text.find(')', opening);
    if (closing == std::string::npos) return {};
    return text.substr(opening + 1, closing - opening - 1);
}

} // namespace

bool isRecordedAsOn(ToolContext& tool, const std::string& group, const std::string& trace)
{
    const std::string key = std::string(toolKey) + "\\" + group + "\\" + trace;
    return getRegistryNumber(tool, key, "Enabled") == 1;
}

TraceExpectation expectedOfMacroTraces(ToolContext& tool, const TreeView& tree,
                                       const std::vector<FlagWords>& present)
{
    TraceExpectation expected;
    expected.words = wordsOf(present);
    for (const bool on : {false, true}) {
        for (const TreeNode* group : tree.roots()) {
            for (const TreeNode* trace = group->child(); trace; trace = trace->next()) {
                if (trace->checked() != on) continue;
                if (!on && !isRecordedAsOn(tool, group->text(), trace->text())) continue;
                combine(tool, traceNamed(tool, group->text(), trace->text()), on, expected);
                expected.records[{group->text(), trace->text()}] = on;
                expected.events.push_back(
                    {on ? toolEvents::macroTraceOn : toolEvents::macroTraceOff,
                     group->text() + " - " + trace->text()});
            }
        }
    }
    addDefaults(expected.words, present);
    return expected;
}

TraceExpectation expectedOfMicroTraces(ToolContext& tool, const TreeView& tree,
                                       const std::vector<FlagWords>& present)
{
    TraceExpectation expected;
    Words ticked;
    for (const TreeNode* component : tree.roots()) {
        const auto name = nameInParentheses(component->text());
        if (name) ticked.emplace(*name, 0);
        for (const TreeNode* level = component->child(); level; level = level->next()) {
            if (!level->checked()) continue;
            const auto mask = maskOf(tool, mdlTraces::leadingLevel(level->text()));
            if (name && mask) ticked[*name] |= *mask;
            expected.events.push_back({toolEvents::microTraceOn, " (" + level->text() + ")"});
        }
    }
    expected.words = wordsOf(present);
    for (auto& [name, word] : expected.words)
        if (const auto wanted = ticked.find(name); wanted != ticked.end()) word = wanted->second;
    addDefaults(expected.words, present);
    return expected;
}

TraceExpectation expectedOfReset(ToolContext& tool, const std::vector<FlagWords>& present)
{
    TraceExpectation expected;
    for (const FlagWords& component : present) expected.words[component.name] = 0;
    addDefaults(expected.words, present);
    const auto subkeys = [&](const std::string& path) {
        return tool.platform.registry.subkeys(registryRoot::localMachine, path)
            .value_or(std::vector<std::string>{});
    };
    for (const std::string& group : subkeys(toolKey))
        for (const std::string& trace : subkeys(std::string(toolKey) + "\\" + group)) {
            expected.records[{group, trace}] = false;
            expected.events.push_back({toolEvents::macroTraceOff, group + " - " + trace});
        }
    return expected;
}

} // namespace cli
