#pragma once

#include <string>

struct ToolContext;

/// The trace database of a time frame gather, and the cabinet in which it is sent. Nothing here
/// raises.
namespace mdlLogs {

/// Copies the blank trace database from the tool's folder into a folder, over an existing one, and
/// gives the copy's full path, also when there is no template: `COMPUTER_WPN_20061231_235959.mdb`.
std::string createNewDB(ToolContext& tool, const std::string& destination);

/// Packs a database, and the captured event logs Application and System, into a cabinet in their
/// folder: writes a directive file, runs the cabinet maker there, waits for its end, and removes
/// what both leave besides the cabinet. The folder becomes the current one. No cabinet maker, no
/// cabinet: the tool's own log alone tells.
void compressResults(ToolContext& tool, const std::string& destination,
                     const std::string& databasePath);

} // namespace mdlLogs
