#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// Who reads an exported event log.
enum class CsvReader {
    any,
    spreadsheet, ///< to which no cell may be a formula (`withoutFormulas`)
};

/// An event as it stands in an exported log, in UTF-8.
struct EventCells {
    std::string time = {}; ///< "2005-10-08 15:23:07"
    std::string type = {};
    std::string source = {};
    std::string id = {};
    std::string computer = {};
    std::string message = {};
};

/// The event as a line of comma-separated text (RFC 4180).
std::string eventCsvLine(const EventCells& event, CsvReader reader);

/// The classic word for the platform's number of an event type; the empty text for a number that
/// has none.
std::string_view eventTypeWord(std::int64_t type);

/// The sentence of one of the tool's own events, which its texts follow unless it ends in a point;
/// the empty text for any other event.
std::string_view toolEventSentence(std::string_view source, std::int64_t id);

/// What an event says: the sentence, and its texts, joined by ", ", where they belong to it.
std::string eventMessage(std::string_view sentence, const std::vector<std::string>& inserts);
