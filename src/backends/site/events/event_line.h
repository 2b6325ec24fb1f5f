#pragma once

#include <cstdint>
#include <optional>
#include <string>

/// What tells an event of a site's event log from others.
struct EventLine {
    std::int32_t id = 0;
    std::string firstInsert; ///< empty where it has none
    std::string time = {};   ///< as it stands there, "2025-02-20 17:38:04"; empty for none
};

/// The event of a line of an event log; nothing for a line that is none.
std::optional<EventLine> parseEventLine(const std::string& line);
