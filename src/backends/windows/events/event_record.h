#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// A record of one of the system's event logs; texts are UTF-8.
struct EventRecord {
    std::uint32_t length = 0; ///< in bytes, as it lies in a log's stream
    std::int64_t seconds = 0; ///< since 1970, universal time
    int type = 0;
    std::uint32_t id = 0; ///< with severity and facility in its upper bits
    std::string source;
    std::string computer;
    std::vector<std::string> inserts;

    /// The number by which people know the event.
    std::uint32_t number() const { return id & 0xFFFF; }
};

/// The record that `bytes`, as the system's reading call gives them, begin with; nothing for bytes
/// that hold no whole one.
std::optional<EventRecord> parseEventRecord(std::string_view bytes);
