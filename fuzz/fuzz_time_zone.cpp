#include "require.h"

#include "backends/site/time/posix_time_zone.h"
#include "runtime/run_time_error.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>
#include <time.h>

namespace {

/// Takes the zone of the C library, which looks for no file of that name. The text stands in one
/// place of memory, so that a long run uses no more of it.
void setMachineZone(std::string_view text)
{
    static std::array<char, 256> variable{"TZ="};
    static const bool isSet =
        setenv("TZDIR", "/nonexistent", 1) == 0 && putenv(variable.data()) == 0;
    require(isSet);
    variable[3 + text.copy(variable.data() + 3, variable.size() - 4)] = '\0';
    tzset();
}

/// A rule that all readers of TZ texts agree on: far from the turn of the year.
bool isPlain(const TimeZoneChange& change)
{
    return change.kind == TimeZoneChange::Day::weekOfMonth && change.month > 1 &&
           change.month < 12 && change.seconds >= 0 && change.seconds <= 86400;
}

void checkAgainstMachine(const PosixTimeZone& zone, std::string_view text)
{
    if (text.size() > 200) return;
    if (zone.hasDaylight && (!isPlain(zone.daylightStart) || !isPlain(zone.daylightEnd) ||
                             zone.daylightStart.month == zone.daylightEnd.month))
        return;
    setMachineZone(text);
    for (time_t moment = 1'000'000'000; moment < 1'200'000'000; moment += 1'000'003 * 3) {
        tm local{};
        require(localtime_r(&moment, &local) != nullptr);
        require(offsetAt(zone, moment) == local.tm_gmtoff);
        require(isDaylightTime(zone, moment) == (local.tm_isdst > 0));
    }
}

} // namespace

/// A zone is refused with 5, or is as the C library reads it and tells the local time of any
/// moment.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    PosixTimeZone zone;
    try {
        zone = parsePosixTimeZone(text);
    } catch (const RunTimeError& error) {
        require(error.number() == runTimeErrors::invalidCall);
        return 0;
    }
    for (std::int64_t moment = -60'000'000'000; moment < 260'000'000'000; moment += 9'876'543'211) {
        const int offset = offsetAt(zone, moment);
        require(offset == zone.standardOffset ||
                (zone.hasDaylight && offset == zone.daylightOffset));
        partsOf(localDate(zone, moment));
    }
    checkAgainstMachine(zone, text);
    return 0;
}
