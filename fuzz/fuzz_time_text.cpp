#include "require.h"

#include "core/utility.h"
#include "runtime/run_time_error.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace {

/// What a call gives: a moment, or the number of the error that it raises.
struct Outcome {
    Date date;
    int error = 0;
    friend bool operator==(const Outcome&, const Outcome&) = default;
};

template <typename Call>
Outcome outcomeOf(Call call)
{
    try {
        return {call(), 0};
    } catch (const RunTimeError& error) {
        return {{}, error.number()};
    }
}

Date naiveTime(std::string_view stamp)
{
    const std::size_t blank = stamp.find(' ', 2);
    if (blank != std::string_view::npos) return parseDate(stamp.substr(blank + 1));
    const std::size_t colon = stamp.rfind(':');
    if (colon == std::string_view::npos) throw RunTimeError(runTimeErrors::invalidCall);
    return parseDate(stamp.substr(0, colon));
}

} // namespace

/// The time of a log's time stamp is found as told, or refused as told.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view stamp(reinterpret_cast<const char*>(data), size);
    const Outcome time = outcomeOf([&] { return parseTimeText(stamp); });
    require(time == outcomeOf([&] { return naiveTime(stamp); }));
    require(time.error == 0 || time.error == runTimeErrors::typeMismatch ||
            time.error == runTimeErrors::invalidCall);
    return 0;
}
