#include "backends/common/event_csv.h"

#include "platform/tool_events.h"
#include "runtime/spreadsheet_cell.h"

#include <utility>

namespace {

std::string quoted(const std::string& text)
{
    if (text.find_first_of(",\"\r\n") == std::string::npos) return text;
    std::string result = "\"";
    for (const char c : text) {
        if (c == '"') result += '"';
        result += c;
    }
    return result + '"';
}

} // namespace

std::string eventCsvLine(const EventCells& event, CsvReader reader)
{
    std::string line;
    for (const auto* cell :
         {&event.time, &event.type, &event.source, &event.id, &event.computer, &event.message}) {
        if (cell != &event.time) line += ',';
        line += quoted(reader == CsvReader::spreadsheet ? withoutFormulas(*cell) : *cell);
    }
    return line + "\r\n";
}

std::string_view eventTypeWord(std::int64_t type)
{
    switch (type) {
    case 0:
    case 4:
        return "Information";
    case 1:
        return "Error";
    case 2:
        return "Warning";
    case 8:
        return "Success Audit";
    case 16:
        return "Failure Audit";
    default:
        return {};
    }
}

std::string_view toolEventSentence(std::string_view source, std::int64_t id)
{
    if (source != toolEvents::source) return {};
    switch (id) {
    case toolEvents::reporterReady:
        return "The diagnostic tool has set up its event reporter.";
    case toolEvents::loaded:
        return "The diagnostic tool was loaded.";
    case toolEvents::unloaded:
        return "The diagnostic tool was unloaded.";
    case toolEvents::macroTraceOn:
        return "The macro trace was turned on: ";
    case toolEvents::macroTraceOff:
        return "The macro trace was turned off: ";
    case toolEvents::microTraceOn:
        return "The micro trace was configured: ";
    default:
        return {};
    }
}

std::string eventMessage(std::string_view sentence, const std::vector<std::string>& inserts)
{
    std::string message(sentence);
    if (message.ends_with('.')) return message;
    bool first = true;
    for (const auto& insert : inserts) {
        if (!std::exchange(first, false)) message += ", ";
        message += insert;
    }
    return message;
}
