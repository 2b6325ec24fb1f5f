#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// Which raw line form the server writes: extended ones carry thread, port and call id.
enum class LogFields { basic, extended };

/// What the formatter takes at most, in bytes.
constexpr std::size_t longestTraceLine = 510;

/// Appends the formatted form of a raw log line to `formatted`:
/// `<time> (<source>,<traceNumber>,<component>,<traceLevel>) <trace>`.
///
/// A time is `HH:MM:SS:mmm` or `YYYY-MM-DD HH:MM:SS`, trace number and level are whole numbers. A
/// line that is in the formatted form already is appended as it is. With extended fields a call id
/// of more than 31 bytes stands at the head of the trace, followed by ": ".
/// False for any other line, and for one of more than `longestTraceLine` bytes; `formatted` is then
/// as before.
bool appendFormattedTraceLine(std::string_view rawLine, LogFields fields, std::string& formatted);

/// The time of a raw line that is formatted without fail and whose trace number has at most nine
/// digits and its level at most four, both without blanks and signs; the empty text for any other.
std::string_view timeOfSoundTraceLine(std::string_view rawLine, LogFields fields);
