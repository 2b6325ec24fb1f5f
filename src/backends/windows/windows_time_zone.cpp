#include "backends/windows/windows_time_zone.h"

#include "runtime/run_time_error.h"
#include "system/windows/windows_calls.h"

#include <algorithm>
#include <chrono>
#include <iterator>
#include <string_view>
#include <utility>

namespace {

/// What a part of a moment becomes that the system's record has no room for; it is no date then.
constexpr int noPart = 0xFFFF;

WORD wordOf(int value)
{
    return static_cast<WORD>(value >= 0 && value < noPart ? value : noPart);
}

SYSTEMTIME systemsMoment(const SystemTime& time)
{
    return {wordOf(time.year),   wordOf(time.month),       wordOf(time.dayOfWeek),
            wordOf(time.day),    wordOf(time.hour),        wordOf(time.minute),
            wordOf(time.second), wordOf(time.milliseconds)};
}

SystemTime toolsMoment(const SYSTEMTIME& time)
{
    return {time.wYear, time.wMonth,  time.wDayOfWeek, time.wDay,
            time.wHour, time.wMinute, time.wSecond,    time.wMilliseconds};
}

/// The system converts some parts that are no date as if they were one.
bool isDate(const SystemTime& time)
{
    constexpr int firstYear = 1601;
    constexpr int lastYear = 9999;
    const std::chrono::year_month_day date{std::chrono::year(time.year),
                                           std::chrono::month(static_cast<unsigned>(time.month)),
                                           std::chrono::day(static_cast<unsigned>(time.day))};
    return time.year >= firstYear && time.year <= lastYear && time.month >= 1 && time.month <= 12 &&
           time.day >= 1 && time.day <= 31 && date.ok() && time.hour >= 0 && time.hour < 24 &&
           time.minute >= 0 && time.minute < 60 && time.second >= 0 && time.second < 60 &&
           time.milliseconds >= 0 && time.milliseconds < 1000;
}

template <std::size_t Size>
std::string textOf(const WCHAR (&name)[Size])
{
    return utf8Of(std::wstring_view(name, std::find(name, name + Size, L'\0') - name));
}

template <std::size_t Size>
void putText(WCHAR (&name)[Size], const std::string& text)
{
    const std::wstring wide = wideOf(text);
    std::copy_n(wide.begin(), std::min(wide.size(), Size - 1), name);
}

TIME_ZONE_INFORMATION systemsRecord(const TimeZoneInformation& zone)
{
    TIME_ZONE_INFORMATION record{};
    record.Bias = zone.bias;
    putText(record.StandardName, zone.standardName);
    record.StandardDate = systemsMoment(zone.standardDate);
    record.StandardBias = zone.standardBias;
    putText(record.DaylightName, zone.daylightName);
    record.DaylightDate = systemsMoment(zone.daylightDate);
    record.DaylightBias = zone.daylightBias;
    return record;
}

} // namespace

WindowsTimeZone::WindowsTimeZone()
    : WindowsTimeZone([](TIME_ZONE_INFORMATION& zone) { return ::GetTimeZoneInformation(&zone); })
{}

WindowsTimeZone::WindowsTimeZone(ZoneReading read) : read_(std::move(read)) {}

TimeZoneState WindowsTimeZone::read(TimeZoneInformation& zone) const
{
    TIME_ZONE_INFORMATION record{};
    const DWORD state = read_(record);
    zone = {};
    zone.bias = record.Bias;
    zone.standardName = textOf(record.StandardName);
    zone.standardDate = toolsMoment(record.StandardDate);
    zone.standardBias = record.StandardBias;
    zone.daylightName = textOf(record.DaylightName);
    zone.daylightDate = toolsMoment(record.DaylightDate);
    zone.daylightBias = record.DaylightBias;
    if (state == TIME_ZONE_ID_STANDARD) return TimeZoneState::standardTime;
    if (state == TIME_ZONE_ID_DAYLIGHT) return TimeZoneState::daylightTime;
    return TimeZoneState::unknown;
}

SystemTime WindowsTimeZone::toLocal(const TimeZoneInformation& zone,
                                    const SystemTime& universal) const
{
    const TIME_ZONE_INFORMATION record = systemsRecord(zone);
    const SYSTEMTIME moment = systemsMoment(universal);
    SYSTEMTIME local{};
    if (!isDate(universal) || !::SystemTimeToTzSpecificLocalTime(&record, &moment, &local))
        throw RunTimeError(runTimeErrors::invalidCall);
    return toolsMoment(local);
}
