#include "require.h"

#include "runtime/dates.h"
#include "runtime/run_time_error.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace {

/// A whole second within the calendar: every text of it names it again.
void checkTexts(Date date)
{
    require(parseDate(dateText(date)) == date);
    require(parseDate(sortableDateTime(date)) == date);
    require(parseDate(shortDate(date) + " " + longTime(date)) == date);
    require(parseDate(longDate(date) + "  " + clockTime(date)) == date);
    require(parseDate(longDate(date)) == dayOf(date));
    require(parseDate(longTime(date)) == timeOf(date));
    require(parseDate(shortTime(date)) == parseDate(mediumTime(date)));
    require(addSeconds(date, 0) == date);
    const DateParts parts = partsOf(date);
    require(dateOf(parts.year, parts.month, parts.day, parts.hour, parts.minute, parts.second) ==
            date);
    const long long days = wholeSeconds(dayOf(date)) / 86400;
    require(parts.dayOfWeek == ((days + 6) % 7 + 7) % 7 + 1); // the zero day was a Saturday
}

void checkNumber(double days)
{
    try {
        const DateParts parts = partsOf(Date{days});
        checkTexts(
            dateOf(parts.year, parts.month, parts.day, parts.hour, parts.minute, parts.second));
    } catch (const RunTimeError& error) {
        require(error.number() == runTimeErrors::invalidCall);
        require(!(days >= -657434.0 && days < 2958465.9999));
    }
}

} // namespace

/// A text is a date or raises 13, and the same bytes as a number of days are one or raise 5; of a
/// date every text reads back as the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size >= sizeof(double)) {
        double days = 0;
        std::memcpy(&days, data, sizeof days);
        checkNumber(days);
        if (std::isfinite(days)) checkNumber(std::fmod(days, 3'000'000.0));
    }
    Date date;
    try {
        date = parseDate({reinterpret_cast<const char*>(data), size});
    } catch (const RunTimeError& error) {
        require(error.number() == runTimeErrors::typeMismatch);
        return 0;
    }
    checkTexts(date);
    return 0;
}
