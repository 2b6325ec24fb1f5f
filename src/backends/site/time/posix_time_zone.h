#pragma once

#include "runtime/dates.h"

#include <cstdint>
#include <string>
#include <string_view>

/// The day and time of a change, as a TZ text gives it.
struct TimeZoneChange {
    enum class Day {
        weekOfMonth, ///< `Mm.w.d`
        withoutLeap, ///< `Jn`: 1 to 365, 29 February never counts
        zeroBased,   ///< `n`: 0 to 365, 29 February counts
    };
    Day kind = Day::weekOfMonth;
    int month = 0;
    int week = 0;       ///< 1 to 5, 5 for the last
    int day = 0;        ///< 0 for Sunday to 6, or the number of the day
    int seconds = 7200; ///< behind midnight, local time before the change; may be below 0

    friend bool operator==(const TimeZoneChange&, const TimeZoneChange&) = default;
};

/// A time zone by its rules, which hold for every year. Offsets are seconds to add to universal
/// time. The C library knows one zone at a time, for the whole process, and does not tell its
/// rules, which the record of a zone is made of; so they are read and reckoned with here.
struct PosixTimeZone {
    std::string standardName = "UTC";
    int standardOffset = 0;
    bool hasDaylight = false;
    std::string daylightName;
    int daylightOffset = 0;
    TimeZoneChange daylightStart;
    TimeZoneChange daylightEnd;

    friend bool operator==(const PosixTimeZone&, const PosixTimeZone&) = default;
};

/// Reads a TZ text, such as `PST8PDT,M3.2.0,M11.1.0` or `<+0530>-5:30`. A daylight name without
/// rules takes those of the United States, a rule without a time 2:00. Raises 5.
PosixTimeZone parsePosixTimeZone(std::string_view text);

/// The day of a change in a year, in days since 1970; the time of day not yet counted.
std::int64_t dayOfChange(const TimeZoneChange& change, int year);

/// Whether daylight time is in force at a moment, in seconds since 1970, universal time.
bool isDaylightTime(const PosixTimeZone& zone, std::int64_t universal);

/// What to add to universal time at a moment.
int offsetAt(const PosixTimeZone& zone, std::int64_t universal);

/// A moment in local time; the nearest one where a date can't hold it.
Date localDate(const PosixTimeZone& zone, std::int64_t universal);

/// The machine's own zone: on Windows the one it is set to, elsewhere `TZ`, else what
/// /etc/localtime tells, else universal time.
PosixTimeZone machineTimeZone();
