#pragma once

#include <cstdint>
#include <string>

namespace sample {

/// A moment of the sample server's local time, in milliseconds since 1 January 1970.
using Moment = std::int64_t;

constexpr Moment second = 1000;
constexpr Moment minute = 60 * second;
constexpr Moment hour = 60 * minute;
constexpr Moment day = 24 * hour;

/// What the sample's logs cover: three days up to Thursday, 20 February 2025, 17:42. They lie in
/// the past on any machine, so that a time frame can be asked for, and in one part of the year, so
/// that the zone's offset is the same throughout.
constexpr Moment coverageEnd = 1740073320 * second;
constexpr Moment coverageStart = coverageEnd - 3 * day;

/// When the server was set up: the modified time of what has not changed since.
constexpr Moment installed = 1727784000 * second; // 1 October 2024, 12:00

/// The server's zone, and what turns its standard time into universal time.
constexpr const char* timeZoneText = "PST8PDT,M3.2.0,M11.1.0";
constexpr Moment toUniversal = 8 * hour;

/// Seconds since 1970 in universal time, as file systems keep them.
std::int64_t unixSeconds(Moment moment);

std::string fileStamp(Moment moment); ///< "20250218_074205"

/// Append "07:42:05:123" and "2025-02-18 07:42:05".
void appendClock(std::string& text, Moment moment);
void appendDateTime(std::string& text, Moment moment);

/// Appends a number in decimal, with zeros in front up to `width` digits.
void appendNumber(std::string& text, std::int64_t number, int width = 1);

} // namespace sample
