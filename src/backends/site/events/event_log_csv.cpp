#include "backends/site/events/event_log_csv.h"

#include "platform/tool_events.h"
#include "runtime/spreadsheet_cell.h"
#include "text/utf8.h"

#include <cstdint>
#include <nlohmann/json.hpp>
#include <utility>
#include <vector>

namespace {

using Json = nlohmann::json;

/// Deeper nesting than any event has; the parser's own memory is what it guards.
constexpr int deepestNesting = 64;

bool isBlank(std::string_view line)
{
    return line.find_first_not_of(" \t\r") == std::string_view::npos;
}

/// A value as it stands in a cell.
std::string cellText(const Json& value)
{
    if (value.is_string()) return value.get<std::string>();
    if (value.is_null()) return {};
    return value.dump(-1, ' ', false, Json::error_handler_t::replace);
}

std::string member(const Json& event, const char* name)
{
    const auto found = event.find(name);
    return found == event.end() ? std::string() : cellText(*found);
}

/// The classic words for the platform's numbers of event types.
std::string typeText(const Json& event)
{
    const auto found = event.find("type");
    if (found == event.end() || !found->is_number_integer()) return member(event, "type");
    switch (found->get<std::int64_t>()) {
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
        return cellText(*found);
    }
}

std::string joinedInserts(const Json& event)
{
    const auto inserts = event.find("inserts");
    if (inserts == event.end()) return {};
    if (!inserts->is_array()) return cellText(*inserts);
    std::string joined;
    bool first = true;
    for (const auto& insert : *inserts) {
        if (!std::exchange(first, false)) joined += ", ";
        joined += cellText(insert);
    }
    return joined;
}

/// The sentence of one of the tool's own events, which its texts follow; empty for any other.
std::string_view sentenceOf(const Json& event)
{
    const auto id = event.find("id");
    if (member(event, "source") != toolEvents::source || id == event.end() ||
        !id->is_number_integer())
        return {};
    switch (id->get<std::int64_t>()) {
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

std::string messageOf(const Json& event)
{
    std::string sentence(sentenceOf(event));
    if (!sentence.empty() && sentence.back() == '.') return sentence;
    return sentence + joinedInserts(event);
}

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

std::string csvLine(const std::vector<std::string>& cells, CsvReader reader)
{
    std::string line;
    for (const auto& cell : cells) {
        if (!line.empty() || &cell != &cells.front()) line += ',';
        line += quoted(reader == CsvReader::spreadsheet ? withoutFormulas(cell) : cell);
    }
    return line + "\r\n";
}

Json parsed(std::string_view line)
{
    bool tooDeep = false;
    const auto guard = [&](int depth, Json::parse_event_t, Json&) {
        tooDeep = tooDeep || depth > deepestNesting;
        return !tooDeep;
    };
    auto event = Json::parse(line, guard, false);
    return tooDeep ? Json() : event;
}

} // namespace

std::string eventLogCsvLine(std::string_view line, CsvReader reader)
{
    if (isBlank(line)) return {};
    const auto event = parsed(line);
    if (!event.is_object()) return csvLine({"", "", "", "", "", validUtf8(line)}, reader);
    return csvLine({member(event, "time"), typeText(event), member(event, "source"),
                    member(event, "id"), member(event, "computer"), messageOf(event)},
                   reader);
}
