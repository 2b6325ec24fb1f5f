#pragma once

#include "runtime/dates.h"

#include <string>

class Label;
class ProgressBar;
class TraceRecordset;
struct ToolContext;

namespace mdlLogs {

/// Adds the lines of a server log that lie between two moments, bounds included, as rows to
/// "tblTraces", and their filter values to `g_dictUniqueFilters`. A message box tells of a log that
/// is not there. Raises nothing.
///
/// A line has a time of day; its date is carried along from the file's creation. The log is read
/// from its start to the first line outside the frame behind one that is inside. A statement that
/// fails leaves its value from the line before; the eleventh error of a log ends it. What was
/// added stays.
void processOrvanLogFileToDB(ToolContext& tool, const std::string& fileName,
                             TraceRecordset& recordset, ProgressBar& progressCurrent, Label& label,
                             Date dateStart, Date dateEnd);

} // namespace mdlLogs
