#pragma once

#include <string>

namespace cli {

class OpenTool;

/// Why the tool's lists of logs may lack some, as a clause: the server's log folder is not there,
/// or could not be listed so far. Empty when neither is so. The tool's own lists are then just
/// short.
std::string logFolderClause(OpenTool& tool);

} // namespace cli
