#pragma once

#include "backends/common/event_csv.h"

#include <string>
#include <string_view>

/// What stands in an exported event log for a line that is too long to hold.
constexpr std::string_view eventLogCsvGap =
    ",,,,,An event of more than 64 MiB was left out here.\r\n";

/// A line of an event log, a JSON object, as a line of comma-separated text (RFC 4180, UTF-8).
///
/// The message of the tool's own events is their sentence; that of others is their texts, joined by
/// ", ". What an object lacks stays empty. A line that is no object is kept whole as the message; a
/// blank one gives nothing.
std::string eventLogCsvLine(std::string_view line, CsvReader reader = CsvReader::any);
