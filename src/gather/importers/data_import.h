#pragma once

#include "runtime/dates.h"

#include <string>

class Label;
class ProgressBar;
class TraceRecordset;
struct ToolContext;

namespace mdlLogs {

/// Does with a data file what `processOrvanLogFileToDB` does with a server log. The file's stamps
/// are universal time, the bounds local time. No number of errors ends it.
void processOrvanDataFileToDB(ToolContext& tool, const std::string& fileName,
                              TraceRecordset& recordset, ProgressBar& progressCurrent, Label& label,
                              Date dateStart, Date dateEnd);

} // namespace mdlLogs
