#pragma once

#include <cstdint>
#include <span>

struct ToolContext;

/// Tells the log manager that trace flags changed: a new time stamp in "Diagnostic Grid Time Set".
void signalDiagnosticGridChange(ToolContext& tool);

/// Tells the log manager to start new log files: a new time stamp in "Cycle Diag File Time Set".
void signalCycleDiagFiles(ToolContext& tool);

/// Hours to add to local time to reach universal time, halves to the even number; 0 in a zone
/// without a daylight rule. Fills `g_timeZone`.
int getTZBias(ToolContext& tool);

/// The present moment as the log manager reads it: an eight-byte double, lowest byte first, of days
/// since 30 December 1899 in universal time. In zones of ten hours and more only the whole days
/// are there: the seconds overflow, and the tool's log says so.
void getCurrentDateTimeInBinaryFormat(ToolContext& tool, std::span<std::uint8_t, 8> buffer);
