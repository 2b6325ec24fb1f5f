#include "require.h"

#include "runtime/run_time_error.h"
#include "timeline/filter/time_text.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace {

using namespace timeline;

constexpr Moment anHour = 3'600'000;

/// A clock that is put forward in March 2025 and back in November.
Moment localTime(Moment universal)
{
    const bool daylight =
        universal >= dayOf(2025, 3, 9) + 10 * anHour && universal < dayOf(2025, 11, 2) + 9 * anHour;
    return universal - (daylight ? 7 : 8) * anHour;
}

void checkTime(std::string_view text, Moment reference)
{
    ServerClock clock(localTime);
    const TimeText time(text);
    const Moment since = time.moment(FrameEnd::since, reference, clock);
    const Moment until = time.moment(FrameEnd::until, reference, clock);
    // A day's worth for the zones of years that have four digits.
    require(since >= dayOf(0, 1, 1) - millisecondsPerDay &&
            until < dayOf(10'000, 1, 1) + millisecondsPerDay && since <= until);
    require(time.needsReference() || since == time.moment(FrameEnd::since, noMoment, clock));
    require(time.universal(FrameEnd::since, reference, clock) <=
            time.universal(FrameEnd::until, reference, clock));
    if (!time.needsReference() && time.isInstant())
        require(clock.local(time.universal(FrameEnd::since, reference, clock)) == since);
}

} // namespace

/// A time that a person types to choose rows by, or a frame: a moment in a year of four digits or a
/// refusal, and the end of what it names is not before its beginning, whatever the clock did then.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    try {
        for (const Moment reference : {dayOf(2025, 2, 20) + 1, dayOf(2025, 3, 9) + 4 * anHour,
                                       dayOf(2025, 11, 2) + anHour * 3 / 2})
            checkTime(text, reference);
    } catch (const RunTimeError& error) {
        require(error.number() == runTimeErrors::invalidCall);
    }
    try {
        require(readSpan(text) >= 0);
    } catch (const RunTimeError& error) {
        require(error.number() == runTimeErrors::invalidCall);
    }
    const auto offset = readOffset(text);
    require(!offset || (*offset >= -14 * anHour && *offset <= 14 * anHour));
    return 0;
}
