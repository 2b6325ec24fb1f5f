#include "backends/site/events/event_log_csv.h"

#include "text/utf8.h"

#include <cstdint>
#include <nlohmann/json.hpp>
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
    const std::string_view word = eventTypeWord(found->get<std::int64_t>());
    return word.empty() ? cellText(*found) : std::string(word);
}

std::vector<std::string> insertsOf(const Json& event)
{
    const auto inserts = event.find("inserts");
    if (inserts == event.end()) return {};
    if (!inserts->is_array()) return {cellText(*inserts)};
    std::vector<std::string> texts;
    for (const auto& insert : *inserts) texts.push_back(cellText(insert));
    return texts;
}

std::string messageOf(const Json& event)
{
    const auto id = event.find("id");
    const bool hasNumber = id != event.end() && id->is_number_integer();
    return eventMessage(
        hasNumber ? toolEventSentence(member(event, "source"), id->get<std::int64_t>()) : "",
        insertsOf(event));
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
    if (!event.is_object()) return eventCsvLine({.message = validUtf8(line)}, reader);
    return eventCsvLine({member(event, "time"), typeText(event), member(event, "source"),
                         member(event, "id"), member(event, "computer"), messageOf(event)},
                        reader);
}
