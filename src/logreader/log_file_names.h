#pragma once

#include "runtime/dates.h"

#include <string>

struct ToolContext;

/// The names of the server's log files: `diag_PROCESS_20051008_152307.txt`.
///
/// Nothing here raises: what fails is logged in the tool's own log and gives what each routine
/// gives for a name that does not fit.
namespace mdlDiagnostics {

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
