#include "backends/site/events/event_line.h"

#include <nlohmann/json.hpp>

std::optional<EventLine> parseEventLine(const std::string& line)
{
    const auto event = nlohmann::json::parse(line, nullptr, false);
    if (!event.is_object()) return std::nullopt;
    const auto id = event.find("id");
    if (id == event.end() || !id->is_number_integer()) return std::nullopt;
    EventLine found{id->get<std::int32_t>(), "", ""};
    const auto time = event.find("time");
    if (time != event.end() && time->is_string()) found.time = time->get<std::string>();
    const auto inserts = event.find("inserts");
    if (inserts != event.end() && inserts->is_array() && !inserts->empty() &&
        inserts->front().is_string())
        found.firstInsert = inserts->front().get<std::string>();
    return found;
}
