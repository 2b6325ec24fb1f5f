#pragma once

#include <string>

struct ToolContext;

namespace mdlLogs {

/// A folder of the present second in the temporary folder: `...\LogsFrom20061231_235959`. Makes
/// none. Raises nothing; what could not be had is missing from the path.
std::string getLogFileDestinationDirectory(ToolContext& tool);

} // namespace mdlLogs
