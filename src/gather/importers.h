#pragma once

#include "runtime/dates.h"

#include <string>

class Label;
class ProgressBar;
struct ToolContext;

/// What the pipeline makes of one log. Nothing here raises.
namespace mdlLogs {

/// Writes a formatted copy of a server log, by its bare name, into a folder; in the development
/// host the lines stay as they are. A message box tells of a log that is not there.
///
/// A line that fails to be read or formatted leaves the one before it in its place.
void processOrvanLogFile(ToolContext& tool, const std::string& fileName,
                         const std::string& destination, ProgressBar& progressCurrent,
                         Label& label);

/// Writes a whole Windows event log, whatever the time frame, into a folder as NAME.csv. Hides the
/// progress bar: an export has no measure.
void processWindowsEventLogFile(ToolContext& tool, const std::string& logName,
                                const std::string& destination, ProgressBar& progressCurrent,
                                Label& label, Date dateStart, Date dateEnd);

} // namespace mdlLogs
