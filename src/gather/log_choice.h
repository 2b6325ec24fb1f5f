#pragma once

#include "gather/string_array.h"

#include <string>
#include <vector>

struct ToolContext;

/// The logs that there are to choose from, before a gather. Nothing here raises: what fails is
/// logged and gives an empty list.
namespace mdlLogs {

/// The log files of a process, formatted copies too, from index 1 on, sorted; the upper bound is 0
/// when there are none.
StringArray getAllLogsForProcess(ToolContext& tool, const std::string& process);

/// The standard logs as the registry names them, untrimmed; written there when it names none.
std::vector<std::string> defineStandardLogs(ToolContext& tool);

} // namespace mdlLogs
