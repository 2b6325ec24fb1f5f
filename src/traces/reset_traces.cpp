#include "traces/reset_traces.h"

#include "core/error_trap.h"
#include "core/registry_store.h"
#include "core/signals.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "server/configuration_database.h"
#include "server/diagnostic_grid.h"
#include "server/open_recordset.h"
#include "traces/macro_trace_record.h"

#include <functional>

namespace {

constexpr std::string_view moduleName = "mdlTraces";

/// A flag word by way of its text. Raises 94 for Null, 13, 6.
std::int32_t flagWord(const DatabaseRecordset& rows, const std::string& column)
{
    return toInteger32(valueAsText(rows.field(column)));
}

/// The flag words of the row at hand.
struct FlagWords {
    std::int32_t flags = 0;
    std::int32_t defaultFlags = 0;
    std::int32_t both = 0;
};

/// Writes a row's flags with its default flags added. A word that can't be read is still that of
/// the row before.
void restoreDefaults(ToolContext& tool, ErrorTrap& step, const DatabaseRecordset& row,
                     DatabaseCommand& command, FlagWords& words)
{
    step([&] { command.useActiveConnection(); });
    step([&] { command.setProcedure("csp_LoggerDiagnosticGridModify"); });
    step([&] { command.refreshParameters(); });
    mdlOrvanDatabase::setAuditParameters(tool, command);
    step([&] { words.flags = flagWord(row, "Flags"); });
    step([&] { words.defaultFlags = flagWord(row, "DefaultFlags"); });
    words.both = words.flags | words.defaultFlags;
    step([&] { command.assign("@ObjectId", valueAsText(row.field("ObjectId"))); });
    step([&] { command.assign("@Flags", words.both); });
    step([&] { command.execute(); });
}

void turnAllComponentsOff(ToolContext& tool, ErrorTrap& step)
{
    MemoryRecordset components = mdlOrvanDatabase::EnumComponents(tool);
    std::string name;
    step([&] { components.moveFirst(); });
    while (!components.atEnd()) {
        step([&] { name = trimEnd(components.field("name")); });
        mdlOrvanDatabase::SetFlags(tool, name, 0);
        step([&] { components.moveNext(); });
    }
}

/// Calls `visit` with the name and path of each key below one; `names` keeps the list, or the one
/// before it when this can't be had. A name that leads nowhere, such as the blanks of a key without
/// subkeys, is passed over.
void forEachSubkey(ToolContext& tool, ErrorTrap& step, const std::string& path, KeyNames& names,
                   const std::function<void(const std::string&, const std::string&)>& visit)
{
    int first = 0;
    int last = -1;
    step([&] { names = enumRegistryKeys(tool, registryRoot::localMachine, path); });
    step([&] {
        first = names.lowerBound();
        last = names.upperBound();
    });
    for (int index = first; index <= last; ++index) {
        const std::string& name = names.at(index);
        const std::string subkey = path + "\\" + name;
        const bool exists = step.value(
            false, [&] { return registryKeyExists(tool, registryRoot::localMachine, subkey); });
        if (exists) visit(name, subkey);
    }
}

void recordAllAsOff(ToolContext& tool, ErrorTrap& step)
{
    const bool everRecorded = step.value(
        false, [&] { return registryKeyExists(tool, registryRoot::localMachine, toolKey); });
    if (!everRecorded) return;
    KeyNames groups;
    KeyNames traces;
    forEachSubkey(
        tool, step, toolKey, groups, [&](const std::string& group, const std::string& path) {
            forEachSubkey(tool, step, path, traces, [&](const std::string& trace, const auto&) {
                mdlTraces::recordMacroTrace(tool, group, trace, false);
            });
        });
}

} // namespace

void mdlTraces::enableStandardTraces(ToolContext& tool)
{
    ErrorTrap step{tool, moduleName, "enableStandardTraces", countedTrap};
    const auto command = tool.g_connection.createCommand();
    FlagWords words;

    step.body([&] {
        step.enterProc();
        const auto rows = step.value(nullptr, [&] {
            return tool.g_connection.openRecordset(
                "SELECT Name, ObjectId, DefaultFlags, Flags FROM vw_LoggerDiagnosticGrid ORDER BY "
                "Name",
                CursorKind::keyset, LockKind::optimistic);
        });
        for (;;) {
            const bool more = step.value(false, [&] { return !opened(rows).atEnd(); });
            if (!more) break;
            restoreDefaults(tool, step, *rows, *command, words);
            step([&] { rows->moveNext(); });
        }
        step.exitProc();
    });
}

void mdlTraces::disableAllTraces(ToolContext& tool)
{
    ErrorTrap step{tool, moduleName, "disableAllTraces", countedTrap};
    step.body([&] {
        step.enterProc();
        turnAllComponentsOff(tool, step);
        recordAllAsOff(tool, step);
        enableStandardTraces(tool);
        step([&] { signalDiagnosticGridChange(tool); });
        step.exitProc();
    });
}
