#pragma once

#include "runtime/dates.h"

#include <string>

class Label;
class ProgressBar;
class TraceRecordset;
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

/// Adds the lines of a server log that lie between two moments, bounds included, as rows to
/// "tblTraces", and their filter values to `g_dictUniqueFilters`. A message box tells of a log that
/// is not there.
///
/// A line has a time of day; its date is carried along from the file's creation. The log is read
/// from its start to the first line outside the frame behind one that is inside. A statement that
/// fails leaves its value from the line before; the eleventh error of a log ends it. What was
/// added stays.
void processOrvanLogFileToDB(ToolContext& tool, const std::string& fileName,
                             TraceRecordset& recordset, ProgressBar& progressCurrent, Label& label,
                             Date dateStart, Date dateEnd);

/// The same for a data file, whose stamps are universal time. No number of errors ends it.
void processOrvanDataFileToDB(ToolContext& tool, const std::string& fileName,
                              TraceRecordset& recordset, ProgressBar& progressCurrent, Label& label,
                              Date dateStart, Date dateEnd);

/// Adds a row to "tblUniqueFilters" for each entry of `g_dictUniqueFilters`, which stays as it is.
/// A comma in a value shifts the columns behind it. The eleventh error ends the writing.
void saveUniqueFilters(ToolContext& tool, TraceRecordset& recordset);

/// Writes a whole Windows event log, whatever the time frame, into a folder as NAME.csv. Hides the
/// progress bar: an export has no measure.
void processWindowsEventLogFile(ToolContext& tool, const std::string& logName,
                                const std::string& destination, ProgressBar& progressCurrent,
                                Label& label, Date dateStart, Date dateEnd);

} // namespace mdlLogs
