#pragma once

#include "sample/moment.h"
#include "sample/server_model.h"

#include <cstdint>
#include <string>

namespace sample {

/// One line on its way to a log or a data file.
struct LogLine {
    Moment moment = 0;
    Process process = Process::callServer;
    Component component = Component::logManager;
    int level = 0;
    int traceNumber = 0;
    int thread = 0;
    int port = 0; ///< 0 for none
    std::string callId;
    std::string trace;      ///< in Windows-1252
    bool malformed = false; ///< `trace` is all of the line, as something broke it
};

/// Appends the raw form that the server writes, without a line end. A process that puts the date in
/// its lines (see `writesDates`) has it in the time.
void appendRawLine(std::string& text, const LogLine& line, bool extended);

/// Appends the formatted form, as a formatted copy holds it: with a blank behind it, which is all
/// that is left of a malformed line. `extended` lines with a long call id have it at the head of
/// the trace.
void appendFormattedLine(std::string& text, const LogLine& line, bool extended);

/// Appends the form of a data file, with a universal time stamp.
void appendDataLine(std::string& text, const LogLine& line);

/// Whether the lines of a process carry the date besides the time of day.
bool writesDates(Process process);

} // namespace sample
