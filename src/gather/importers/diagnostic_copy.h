#pragma once

#include <string>

class Label;
class ProgressBar;
struct ToolContext;

namespace mdlLogs {

/// Writes a formatted copy of a server log, by its bare name, into a folder; in the development
/// host the lines stay as they are. A message box tells of a log that is not there. Raises nothing.
///
/// A line that fails to be read or formatted leaves the one before it in its place.
void processOrvanLogFile(ToolContext& tool, const std::string& fileName,
                         const std::string& destination, ProgressBar& progressCurrent,
                         Label& label);

} // namespace mdlLogs
