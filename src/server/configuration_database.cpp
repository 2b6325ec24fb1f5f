#include "server/configuration_database.h"

#include "core/error_trap.h"
#include "core/trapped_error_listener.h"
#include "server/open_recordset.h"
#include "server/workstation_info.h"

namespace {

constexpr std::string_view moduleName = "mdlOrvanDatabase";

constexpr const char* connectionStart =
    "Provider=SQLOLEDB.1;Integrated Security=SSPI;Persist Security Info=False;Initial "
    "Catalog=OrvanDirDb;Data Source=";
constexpr const char* connectionEnd = "\\kelmaorvan";

/// The row's value as its type code asks for it; Null for an unknown code.
Value configurationValue(const DatabaseRecordset& rows, std::int32_t typeCode)
{
    switch (typeCode) {
    case valueType::null:
        return std::string();
    case valueType::integer:
        return valueAsInteger32(rows.field("Value"));
    case valueType::boolean:
        return valueAsBoolean(rows.field("Value"));
    case valueType::floating:
    case valueType::date:
    case valueType::text:
    case valueType::guid:
        return rows.field("Value");
    default:
        return Null{};
    }
}

/// The parameter that takes a value of a type code; the empty text for a code without one.
std::string valueParameter(std::int32_t typeCode)
{
    switch (typeCode) {
    case valueType::integer:
        return "@ValueLong";
    case valueType::floating:
        return "@ValueFloat";
    case valueType::date:
        return "@ValueDate";
    case valueType::text:
        return "@ValueString";
    case valueType::boolean:
        return "@ValueBool";
    case valueType::guid:
        return "@ValueGuid";
    default:
        return {};
    }
}

} // namespace

std::string mdlOrvanDatabase::connectionStringOf(const std::string& serverName)
{
    return connectionStart + serverName + connectionEnd;
}

bool mdlOrvanDatabase::openOrvanDB(ToolContext& tool, DatabaseConnection& connection,
                                   const std::string& serverName)
{
    ErrorTrap step{tool, moduleName, "openOrvanDB", countedTrap};
    bool opened = false;
    std::string connectionString;

    step.specialCase([&](const RunTimeError& error) {
        step.log(errorText(error), logLevel::error);
        TrappedErrorListener::tell(tool, error, step.procName());
        step.log("Connection String Used = " + connectionString, logLevel::error);
        return Resume::logged;
    });
    step.body([&] {
        step.enterProc();
        const bool closed = step.value(false, [&] { return connection.state() == 0; });
        if (closed) {
            step([&] { connectionString = connectionStringOf(serverName); });
            step([&] { connection.open(connectionString, "", ""); });
            opened = step.value(false, [&] { return connection.errorCount() < 1; });
        }
        step.exitProc();
    });
    return opened;
}

Value mdlOrvanDatabase::GetConfigurationSetting(ToolContext& tool, const std::string& fullName)
{
    ErrorTrap step{tool, moduleName, "GetConfigurationSetting", countedTrap};
    Value result = Null{};

    step.specialCase([&](const RunTimeError& error) {
        if (error.number() != runTimeErrors::connectionClosed) return Resume::asUsual;
        openOrvanDB(tool, tool.g_connection, "(local)");
        return Resume::retry;
    });
    step.body([&] {
        const std::string query =
            "SELECT Value, Type From vw_ConfigurationValue WHERE FullName = '" + fullName + "'";
        const auto rows = step.value(nullptr, [&] {
            return tool.g_connection.openRecordset(query, CursorKind::forwardOnly,
                                                   LockKind::optimistic);
        });
        const bool found = step.value(false, [&] { return !opened(rows).atEnd(); });
        if (found) {
            const std::int32_t typeCode =
                step.value(0, [&] { return valueAsInteger32(rows->field("Type")); });
            step([&] { result = configurationValue(*rows, typeCode); });
        }
        step([&] { opened(rows).close(); });
    });
    return result;
}

Value mdlOrvanDatabase::SetConfigurationSetting(ToolContext& tool, const std::string& fullName,
                                                const Value& value, std::int32_t typeCode)
{
    ErrorTrap step{tool, moduleName, "SetConfigurationSetting", countedTrap};
    step.body([&] {
        const auto command = tool.g_connection.createCommand();
        step([&] { command->useActiveConnection(); });
        step([&] { command->setProcedure("csp_ConfigurationModify"); });
        step([&] { command->refreshParameters(); });
        setAuditParameters(tool, *command);
        step([&] { command->assign("@FullName", fullName); });
        const std::string parameter = valueParameter(typeCode);
        if (!parameter.empty()) step([&] { command->assign(parameter, value); });
        step([&] { command->execute(); });
    });
    return Empty{};
}

void mdlOrvanDatabase::setAuditParameters(ToolContext& tool, DatabaseCommand& command)
{
    ErrorTrap step{tool, moduleName, "setAuditParameters", countedTrap};
    step.body([&] {
        step([&] { command.assign("@AuditAlias", workstationInfo(tool).UserName()); });
        step([&] { command.assign("@AuditComponent", std::string("OrvanDiagnosticTool")); });
    });
}
