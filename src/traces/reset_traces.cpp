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

/// Writes a row's flags with its default flags added. A word that can't be read adds nothing.
void restoreDefaults(ToolContext& tool, ErrorTrap& step, const DatabaseRecordset& row,
                     DatabaseCommand& command)
{
    std::int32_t flags = 0;
    std::int32_t defaultFlags = 0;

    step([&] { command.useActiveConnection(); });
    step([&] { command.setProcedure("csp_LoggerDiagnosticGridModify"); });
    step([&] { command.refreshParameters(); });
    mdlOrvanDatabase::setAuditParameters(tool, command);
    step([&] { flags = flagWord(row, "Flags"); });
    step([&] { defaultFlags = flagWord(row, "DefaultFlags"); });
    step([&] { command.assign("@ObjectId", valueAsText(row.field("ObjectId"))); });
    step([&] { command.assign("@Flags", flags | defaultFlags); });
    step([&] { command.execute(); });
}

void turnAllComponentsOff(ToolContext& tool, ErrorTrap& step)
{
    MemoryRecordset components = mdlOrvanDatabase::EnumComponents(tool);
    step([&] { components.moveFirst(); });
    while (!components.atEnd()) {
        std::string name;
        step([&] { name = trimEnd(components.field("name")); });
        mdlOrvanDatabase::SetFlags(tool, name, 0);
        step([&] { components.moveNext(); });
    }
}

/// Calls `visit` with the name and path of each key below one. A name that leads nowhere, such as
/// the blanks of a key without subkeys, is passed over.
void forEachSubkey(ToolContext& tool, ErrorTrap& step, const std::string& path,
                   const std::function<void(const std::string&, const std::string&)>& visit)
{
    KeyNames names;
    int first = 0;
    int last = -1;
    step([&] { names = enumRegistryKeys(tool, HKEY_LOCAL_MACHINE, path); });
    step([&] { first = names.lowerBound(); });
    step([&] { last = names.upperBound(); });
    for (int index = first; index <= last; ++index) {
        const std::string& name = names.at(index);
        const std::string subkey = path + "\\" + name;
        bool exists = false;
        step([&] { exists = registryKeyExists(tool, HKEY_LOCAL_MACHINE, subkey); });
        if (exists) visit(name, subkey);
    }
}

void recordAllAsOff(ToolContext& tool, ErrorTrap& step)
{
    bool everRecorded = false;
    step([&] { everRecorded = registryKeyExists(tool, HKEY_LOCAL_MACHINE, toolKey); });
    if (!everRecorded) return;
    forEachSubkey(tool, step, toolKey, [&](const std::string& group, const std::string& path) {
        forEachSubkey(tool, step, path, [&](const std::string& trace, const std::string&) {
            mdlTraces::recordMacroTrace(tool, group, trace, false);
        });
    });
}

} // namespace

void mdlTraces::enableStandardTraces(ToolContext& tool)
{
    ErrorTrap step{tool, moduleName, "enableStandardTraces", countedTrap};
    std::unique_ptr<DatabaseRecordset> rows;
    const auto command = tool.g_connection.createCommand();

    step.body([&] {
        step.enterProc();
        step([&] {
            rows = tool.g_connection.openRecordset(
                "SELECT Name, ObjectId, DefaultFlags, Flags FROM vw_LoggerDiagnosticGrid ORDER BY "
                "Name",
                CursorKind::keyset, LockKind::optimistic);
        });
        for (;;) {
            bool more = false;
            step([&] { more = !required(rows).atEnd(); });
            if (!more) break;
            restoreDefaults(tool, step, *rows, *command);
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
