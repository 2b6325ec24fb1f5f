#pragma once

#include "gather/string_array.h"
#include "runtime/dates.h"

#include <string>
#include <string_view>
#include <vector>

class Label;
class ProgressBar;
class TreeView;
struct ToolContext;

/// The gather pipeline, and what the pages of the gather wizard ask before it runs.
///
/// Nothing here raises: what fails is logged in the tool's own log, and the next statement runs.
namespace mdlLogs {

/// The text of the steps tree's first root: by it the pipeline knows the server logs.
constexpr std::string_view orvanLogsBranch = "Orvan Logs";

/// Gathers each leaf of a tree of steps into a folder, which is made when it is missing.
///
/// Leaves below the root "Orvan Logs" name server logs, the others Windows event logs; an empty
/// text names none. Equal dates ask for formatted copies. Others are a time frame: its lines go
/// into a trace database, whose path is then in `g_strTraceDatabase`, and the database into a
/// cabinet. The current leaf stands in bold; the label tells what is being done. A cancel ends the
/// walk after the leaf, and is then forgotten; what was read until then is stored and packed.
/// The controls outlive the call, even if their page is closed in the meantime. Gives
/// `destination`.
std::string processLogs(ToolContext& tool, TreeView& treeview, Label& label,
                        ProgressBar& progressCurrent, ProgressBar& progressOverall,
                        std::string destination, Date dateStart, Date dateEnd);

/// A folder of the present second in the temporary folder: `...\LogsFrom20061231_235959`.
std::string getLogFileDestinationDirectory(ToolContext& tool);

/// The log files of a process, formatted copies too, from index 1 on, sorted; the upper bound is 0
/// when there are none.
StringArray getAllLogsForProcess(ToolContext& tool, const std::string& process);

/// The standard logs as the registry names them, untrimmed; written there when it names none.
std::vector<std::string> defineStandardLogs(ToolContext& tool);

/// Whether a cancel was asked for.
bool cancelCurrentProcess(ToolContext& tool);

/// Asks for a cancel, or takes it back.
void cancelCurrentProcess(ToolContext& tool, bool cancel);

} // namespace mdlLogs
