#include "system/windows/zone_text.h"

namespace {

constexpr int minutesOfHour = 60;

std::string twoDigits(int number)
{
    return (number < 10 ? "0" : "") + std::to_string(number);
}

/// Minutes to add to local time to reach universal time.
std::string offsetText(LONG minutes)
{
    const LONG distance = minutes < 0 ? -minutes : minutes;
    return (minutes < 0 ? "-" : "") + std::to_string(distance / minutesOfHour) + ":" +
           twoDigits(static_cast<int>(distance % minutesOfHour));
}

/// The number of a day in a year without a leap day.
int dayOfYear(int month, int day)
{
    constexpr int before[] = {0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334};
    return before[month - 1] + day;
}

/// The system counts weeks from 1 to 5, for the last, as such a text does.
std::string changeText(const SYSTEMTIME& change)
{
    const std::string day = change.wYear != 0
                                ? "J" + std::to_string(dayOfYear(change.wMonth, change.wDay))
                                : "M" + std::to_string(change.wMonth) + "." +
                                      std::to_string(change.wDay) + "." +
                                      std::to_string(change.wDayOfWeek);
    return "," + day + "/" + std::to_string(change.wHour) + ":" + twoDigits(change.wMinute) + ":" +
           twoDigits(change.wSecond);
}

bool isMonth(WORD month)
{
    return month >= 1 && month <= 12;
}

} // namespace

std::string zoneTextOf(const TIME_ZONE_INFORMATION& zone)
{
    if (!isMonth(zone.StandardDate.wMonth) || !isMonth(zone.DaylightDate.wMonth))
        return "STD" + offsetText(zone.Bias);
    return "STD" + offsetText(zone.Bias + zone.StandardBias) + "DST" +
           offsetText(zone.Bias + zone.DaylightBias) + changeText(zone.DaylightDate) +
           changeText(zone.StandardDate);
}
