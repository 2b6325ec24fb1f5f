#include "require.h"

#include "runtime/run_time_error.h"
#include "timeline/filter/time_text.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

/// A time that a person types to choose rows by: a moment in a year of four digits or a refusal,
/// and the end of what it names is not before its beginning.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace timeline;
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const Moment lastRow = dayOf(2025, 2, 20) + 1;
    try {
        const TimeText time(text);
        const Moment since = time.moment(FrameEnd::since, lastRow);
        const Moment until = time.moment(FrameEnd::until, lastRow);
        require(since >= dayOf(0, 1, 1) && until < dayOf(10'000, 1, 1) && since <= until);
        require(time.needsLastRow() || since == time.moment(FrameEnd::since, noMoment));
    } catch (const RunTimeError& error) {
        require(error.number() == runTimeErrors::invalidCall);
    }
    try {
        require(readSpan(text) >= 0);
    } catch (const RunTimeError& error) {
        require(error.number() == runTimeErrors::invalidCall);
    }
    return 0;
}
