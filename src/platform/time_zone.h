#pragma once

#include <string>

/// A calendar moment in parts, as time zone rules and conversions use it.
///
/// In a rule, year 0 means every year, `day` is the number of the week (1 to 5, 5 for the last) and
/// `dayOfWeek` the day in it.
struct SystemTime {
    int year = 0;
    int month = 0;
    int dayOfWeek = 0; ///< 0 for Sunday to 6
    int day = 0;
    int hour = 0;
    int minute = 0;
    int second = 0;
    int milliseconds = 0;

    friend bool operator==(const SystemTime&, const SystemTime&) = default;
};

/// The record TIME_ZONE_INFORMATION: universal time is local time plus the bias, in minutes.
struct TimeZoneInformation {
    int bias = 0;
    std::string standardName;
    SystemTime standardDate; ///< month 0: the zone has no daylight rule
    int standardBias = 0;
    std::string daylightName;
    SystemTime daylightDate;
    int daylightBias = 0;

    friend bool operator==(const TimeZoneInformation&, const TimeZoneInformation&) = default;
};

/// Which part of the year is in force; the numbers are the platform's own.
enum class TimeZoneState { unknown = 0, standardTime = 1, daylightTime = 2 };

class TimeZoneService {
public:
    virtual ~TimeZoneService() = default;

    /// Fills the record and tells what is in force now; `unknown` for a zone without a daylight
    /// rule.
    virtual TimeZoneState read(TimeZoneInformation& zone) const = 0;

    /// Universal time to the local time of `zone`, by its rules.
    /// Raises 5 for parts that are no date.
    virtual SystemTime toLocal(const TimeZoneInformation& zone,
                               const SystemTime& universal) const = 0;
};
