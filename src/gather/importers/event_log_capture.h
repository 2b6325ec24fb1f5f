#pragma once

#include "runtime/dates.h"

#include <string>

class Label;
class ProgressBar;
struct ToolContext;

namespace mdlLogs {

/// Writes a whole Windows event log, whatever the time frame, into a folder as NAME.csv. Hides the
/// progress bar: an export has no measure. Raises nothing.
void processWindowsEventLogFile(ToolContext& tool, const std::string& logName,
                                const std::string& destination, ProgressBar& progressCurrent,
                                Label& label, Date dateStart, Date dateEnd);

} // namespace mdlLogs
