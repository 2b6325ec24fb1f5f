#pragma once

#include <string>
#include <string_view>

/// The names that an exported event log begins with, in its first line.
constexpr std::string_view eventLogCsvHeader = "Time,Type,Source,Event ID,Computer,Message\r\n";

/// Writes whole event logs to files.
class EventLogExporter {
public:
    virtual ~EventLogExporter() = default;

    /// Writes a row of names and all records of an event log, by name without regard to case, as
    /// comma-separated text, over an existing file.
    /// Raises 53 for an event log that does not exist, 76, 61, 70 for the target.
    virtual void exportEventLog(const std::string& logName, const std::string& target,
                                int flags) = 0;
};
