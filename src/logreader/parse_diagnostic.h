#pragma once

#include "logreader/diagnostic_line.h"

#include <string_view>

struct ToolContext;

/// The fields of a line of a diagnostic log.
///
/// Nothing here raises: what fails is logged in the tool's own log and leaves its field as told.
/// The routines are not traced.
namespace mdlDiagnostics {

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

} // namespace mdlDiagnostics
