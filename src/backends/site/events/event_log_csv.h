#pragma once

#include <string>
#include <string_view>

/// The first line of an exported event log.
constexpr std::string_view eventLogCsvHeader = "Time,Type,Source,Event ID,Computer,Message\r\n";

/// What stands in an exported event log for a line that is too long to hold.
constexpr std::string_view eventLogCsvGap =
    ",,,,,An event of more than 64 MiB was left out here.\r\n";

/// Who reads an exported event log.
enum class CsvReader {
    any,
    spreadsheet, ///< to which no cell may be a formula (`withoutFormulas`)
};

/// A line of an event log, a JSON object, as a line of comma-separated text (RFC 4180, UTF-8).
///
/// The message of the tool's own events is their sentence; that of others is their texts, joined by
/// ", ". What an object lacks stays empty. A line that is no object is kept whole as the message; a
/// blank one gives nothing.
std::string eventLogCsvLine(std::string_view line, CsvReader reader = CsvReader::any);
