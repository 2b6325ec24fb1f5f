#pragma once

#include "runtime/value.h"

#include <cstdint>
#include <string>

class DatabaseCommand;
class DatabaseConnection;
struct ToolContext;

namespace mdlOrvanDatabase {

/// Opens `connection` on a server if it is closed. True only when this call opened it without
/// errors; an open connection stays as it is and gives false.
bool openOrvanDB(ToolContext& tool, DatabaseConnection& connection, const std::string& serverName);

/// What `openOrvanDB` opens a connection with.
std::string connectionStringOf(const std::string& serverName);

/// A configuration value in the form that its type code asks for: a 32-bit number (3), a boolean
/// (11), the empty text (1), as stored (4, 7, 8, 88). Null when no row has the name, when its type
/// code is another, or when it can't be read. A closed connection is opened again on the way.
Value GetConfigurationSetting(ToolContext& tool, const std::string& fullName);

/// Writes a configuration value; only the tool's log tells of a failure. The result is always
/// Empty.
Value SetConfigurationSetting(ToolContext& tool, const std::string& fullName, const Value& value,
                              std::int32_t typeCode);

/// Stamps a refreshed parameter list with who changes the database: the user and this tool.
void setAuditParameters(ToolContext& tool, DatabaseCommand& command);

} // namespace mdlOrvanDatabase
