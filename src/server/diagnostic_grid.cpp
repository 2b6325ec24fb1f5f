#include "server/diagnostic_grid.h"

#include "core/error_trap.h"
#include "server/configuration_database.h"
#include "server/diagnostic_grid_catalogue.h"
#include "server/open_recordset.h"

namespace {

constexpr std::string_view moduleName = "mdlOrvanDatabase";
constexpr std::size_t nameLength = 255;

/// Room for as many rows: an array that can't end below its first element. Raises 9.
void requireUpperBound(int upperBound)
{
    if (upperBound < 0) throw RunTimeError(runTimeErrors::subscriptOutOfRange);
}

} // namespace

std::int32_t mdlOrvanDatabase::getFlags(ToolContext& tool, const std::string& componentName,
                                        std::int32_t kind)
{
    ErrorTrap step{tool, moduleName, "getFlags", countedTrap};
    std::int32_t flags = 0;

    step.body([&] {
        const std::string column = kind == flagKind::current ? "Flags" : "DefaultFlags As Flags";
        const std::string query = "SELECT " + column +
                                  " FROM vw_LoggerDiagnosticGrid WHERE Name = '" + componentName +
                                  "'";
        const auto rows = step.value(nullptr, [&] {
            return tool.g_connection.openRecordset(query, CursorKind::forwardOnly,
                                                   LockKind::optimistic);
        });
        const bool found = step.value(false, [&] { return !opened(rows).atEnd(); });
        if (found) step([&] { flags = valueAsInteger32(opened(rows).field("Flags")); });
        step([&] { opened(rows).close(); });
    });
    return flags;
}

std::string mdlOrvanDatabase::getComponentsObjectId(ToolContext& tool,
                                                    const std::string& componentName)
{
    ErrorTrap step{tool, moduleName, "getComponentsObjectId", countedTrap};
    std::string objectId;

    step.body([&] {
        const std::string query =
            "SELECT ObjectId FROM vw_LoggerDiagnosticGrid WHERE Name = '" + componentName + "'";
        const auto rows = step.value(nullptr, [&] {
            return tool.g_connection.openRecordset(query, CursorKind::forwardOnly,
                                                   LockKind::optimistic);
        });
        const bool found = step.value(false, [&] { return !opened(rows).atEnd(); });
        if (found) step([&] { objectId = valueAsText(opened(rows).field("ObjectId")); });
        step([&] { opened(rows).close(); });
    });
    return objectId;
}

void mdlOrvanDatabase::SetFlags(ToolContext& tool, const std::string& componentName,
                                std::int32_t flags)
{
    ErrorTrap step{tool, moduleName, "SetFlags", countedTrap};
    step.body([&] {
        step.enterProc();
        const std::string objectId = getComponentsObjectId(tool, componentName);
        if (objectId.empty()) {
            step.log("Could not find the component: " + componentName +
                         " in vw_LoggerDiagnosticGrid.  Diagnostics will not be set for this "
                         "non-existent component.",
                     logLevel::error);
        } else {
            const auto command = tool.g_connection.createCommand();
            step([&] { command->useActiveConnection(); });
            step([&] { command->setProcedure("csp_LoggerDiagnosticGridModify"); });
            step([&] { command->refreshParameters(); });
            setAuditParameters(tool, *command);
            step([&] { command->assign("@Name", componentName); });
            step([&] { command->assign("@ObjectId", objectId); });
            step([&] { command->assign("@Flags", flags); });
            step([&] { command->execute(); });
        }
        step.exitProc();
    });
}

MemoryRecordset mdlOrvanDatabase::EnumComponents(ToolContext& tool)
{
    ErrorTrap step{tool, moduleName, "EnumComponents", countedTrap};
    MemoryRecordset components;
    std::unique_ptr<DatabaseRecordset> rows;
    std::string text;

    step.body([&] {
        const auto name = [&] { return valueAsText(rows->field("Name")); };
        step([&] { components.append("name", nameLength); });
        step([&] { components.append("fullName", nameLength); });
        step([&] { components.open(); });
        step([&] {
            rows = tool.g_connection.openRecordset(
                "SELECT Name FROM vw_LoggerDiagnosticGrid ORDER BY Name", CursorKind::keyset,
                LockKind::optimistic);
        });
        step([&] { requireUpperBound(opened(rows).rowCount() - 1); });
        for (;;) {
            const bool more = step.value(false, [&] { return !opened(rows).atEnd(); });
            if (!more) break;
            step([&] { components.addNew(); });
            step([&] { components.set("name", name()); });
            step([&] { text = mdlDiagnosticGrids::GetDiagnosticLevelText(tool, name()); });
            step([&] { components.set("fullName", text + " (" + name() + ")"); });
            step([&] { components.update(); });
            step([&] { rows->moveNext(); });
        }
        step([&] { components.sort("fullName"); });
    });
    return components;
}
