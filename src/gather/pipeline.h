#pragma once

#include "runtime/dates.h"

#include <string>
#include <string_view>

class Label;
class ProgressBar;
class TreeView;
struct ToolContext;

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
/// `destination`. Raises nothing: what fails is logged, and the next statement runs.
std::string processLogs(ToolContext& tool, TreeView& treeview, Label& label,
                        ProgressBar& progressCurrent, ProgressBar& progressOverall,
                        std::string destination, Date dateStart, Date dateEnd);

} // namespace mdlLogs
