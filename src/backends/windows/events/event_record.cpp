#include "backends/windows/events/event_record.h"

#include "text/utf8.h"

namespace {

// Where the fields of a record begin.
constexpr std::size_t timeGenerated = 12;
constexpr std::size_t eventId = 20;
constexpr std::size_t eventType = 24;
constexpr std::size_t insertCount = 26;
constexpr std::size_t insertOffset = 36;
constexpr std::size_t names = 56; ///< the source and the computer, each with a zero

std::uint32_t numberAt(std::string_view bytes, std::size_t at, std::size_t size)
{
    std::uint32_t number = 0;
    for (std::size_t index = 0; index < size; ++index)
        number |= std::uint32_t{static_cast<unsigned char>(bytes[at + index])} << (8 * index);
    return number;
}

/// The text at `at`, up to its zero or the end of the record, and steps behind it.
std::string takeText(std::string_view record, std::size_t& at)
{
    std::size_t end = at;
    while (end + 2 <= record.size() && (record[end] != '\0' || record[end + 1] != '\0')) end += 2;
    std::string text = utf8OfUtf16(record.substr(at, end - at));
    at = end + 2;
    return text;
}

} // namespace

std::optional<EventRecord> parseEventRecord(std::string_view bytes)
{
    if (bytes.size() < names) return {};
    EventRecord event;
    event.length = numberAt(bytes, 0, 4);
    if (event.length < names || event.length > bytes.size()) return {};
    const std::string_view record = bytes.substr(0, event.length);
    event.seconds = numberAt(record, timeGenerated, 4);
    event.id = numberAt(record, eventId, 4);
    event.type = static_cast<int>(numberAt(record, eventType, 2));
    std::size_t at = names;
    event.source = takeText(record, at);
    if (at < record.size()) event.computer = takeText(record, at);
    at = numberAt(record, insertOffset, 4);
    for (auto left = numberAt(record, insertCount, 2); left > 0 && at + 2 <= record.size(); --left)
        event.inserts.push_back(takeText(record, at));
    return event;
}
