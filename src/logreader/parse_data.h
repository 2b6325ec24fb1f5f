#pragma once

#include "logreader/diagnostic_line.h"

#include <cstdint>
#include <string_view>

struct ToolContext;

/// The fields of a line of a data file.
///
/// Nothing here raises: what fails is logged in the tool's own log and leaves its field as told.
/// The routines are not traced.
namespace mdlDiagnostics {

/// What marks a record as a line of a data file.
constexpr std::int16_t dataFileTraceLevel = -99;
constexpr std::string_view dataFileComponent = "Data File";

/// Splits `<time>,<source>,<traceNumber>,<trace>`. The trace keeps its commas. A missing part, or a
/// trace number that is none, is logged and stays empty or 0; level and component are always those
/// of a data file.
DiagnosticLine parseData(ToolContext& tool, std::string_view line);

/// The same into a record, cleared first, whose room is used again.
void parseData(ToolContext& tool, std::string_view line, DiagnosticLine& record);

} // namespace mdlDiagnostics
