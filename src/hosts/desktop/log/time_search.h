#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace desktop {

class ListModel;

/// The time of day that a person types ("15:23", "3:23 PM", "15:23:07.5"), as "HH:MM:SS" with what
/// stands behind the seconds; nothing for a text that is no time.
std::optional<std::string> typedTime(std::string_view text);

/// The row of a log where a time of day is reached next, looking on from the line behind that of
/// row `from` and then from the first one: its time is `time` or later and that of the line before
/// it is not. Lines come in the log's own order, whatever the rows are sorted by. -1 when no line
/// on show reaches the time. Lines without a time are passed over.
int rowAtTime(const ListModel& rows, int timeColumn, std::string_view time, int from);

} // namespace desktop
