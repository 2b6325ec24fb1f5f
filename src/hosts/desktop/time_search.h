#pragma once

#include <optional>
#include <string>
#include <string_view>

class ListModel;

/// The time of day that a person types ("15:23", "3:23 PM", "15:23:07.5"), as "HH:MM:SS" with what
/// stands behind the seconds; nothing for a text that is no time.
std::optional<std::string> typedTime(std::string_view text);

/// The row of a log where a time of day is reached next, looking on from the row behind `from` and
/// then from the top: its time is `time` or later and that of the row before it is not. -1 when no
/// row reaches it. Rows without a time are passed over.
int rowAtTime(const ListModel& rows, int timeColumn, std::string_view time, int from);
