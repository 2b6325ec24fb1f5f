#pragma once

#include "platform/log_name_parts.h"
#include "runtime/dates.h"

#include <string>
#include <string_view>

struct ToolContext;

namespace logFileNames {

/// Patterns for `FileSystem::matching`, without a folder: all logs, all data files, and the logs of
/// one process; formatted copies match too.
constexpr const char* diagnosticLogs = "diag_*.txt";
constexpr const char* dataFiles = "data_*.txt";
std::string logsOfProcess(const std::string& process);

/// Whether a name is taken for that of a formatted copy: whether it has "fmtd" in it, in whatever
/// letters and wherever.
bool isFormattedCopy(std::string_view name);

} // namespace logFileNames

/// What the names of log files tell.
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
