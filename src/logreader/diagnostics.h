#pragma once

#include "logreader/diagnostic_line.h"
#include "runtime/dates.h"

#include <string>
#include <string_view>

struct ToolContext;

/// The lines of the server's logs and the names of its log files.
///
/// Nothing here raises: what fails is logged in the tool's own log and leaves its field, or the
/// result, as each routine tells. The routines for one line are not traced.
namespace mdlDiagnostics {

/// What marks a record as a line of a data file.
constexpr std::int16_t dataFileTraceLevel = -99;
constexpr std::string_view dataFileComponent = "Data File";

/// The readable form of a raw line: what the server's formatter makes of its first 510 bytes, a
/// blank, and the bytes behind them. The empty text for a line of fewer than 20 bytes; a blank and
/// the tail when the formatter fails.
std::string formatLineSafe(ToolContext& tool, std::string_view rawLine);

/// The same into a text whose room is used again. `rawLine` must not lie in `formatted`. False for
/// a line that has none of the forms that the formatter knows, so that its fields will be empty.
bool formatLineSafe(ToolContext& tool, std::string_view rawLine, std::string& formatted);

/// Splits `<time> (<source>,<traceNumber>,<component>,<traceLevel>) <trace>`.
///
/// Of `rawLine` come thread, port and call id, with extended log fields alone. A call id of more
/// than 31 bytes is cut from the head of the trace unless `keepTracePrefix`. A line that lacks a
/// delimiter gives empty fields, and 0 for numbers, without an error; a number or a position that
/// is too large is logged. The eleventh error of a line leaves the record as it is by then.
DiagnosticLine parseDiagnostic(ToolContext& tool, std::string_view formattedLine,
                               std::string_view rawLine, bool keepTracePrefix);

/// The same into a record, cleared first, whose room is used again.
void parseDiagnostic(ToolContext& tool, std::string_view formattedLine, std::string_view rawLine,
                     bool keepTracePrefix, DiagnosticLine& record);

/// Splits `<time>,<source>,<traceNumber>,<trace>`, a line of a data file. A missing part, or a
/// trace number that is none, is logged and stays empty or 0; level and component are always those
/// of a data file.
DiagnosticLine parseData(ToolContext& tool, std::string_view line);

/// The same into a record, cleared first, whose room is used again.
void parseData(ToolContext& tool, std::string_view line, DiagnosticLine& record);

/// The bare name of the log that a process writes now; the empty text when the log manager names
/// none or the file is not there.
std::string getCurrentDiagnosticFile(ToolContext& tool, const std::string& process);

/// When a log of `process` was opened, by the digits in its name; the zero date for a name that
/// does not fit.
Date parseDateFromFileName(ToolContext& tool, const std::string& process,
                           const std::string& fileName);

/// The name of a log's formatted copy: "_fmtd" before the first "."; the empty text for a name
/// without one.
std::string appendFormattedTagToFile(ToolContext& tool, const std::string& fileName);

} // namespace mdlDiagnostics
