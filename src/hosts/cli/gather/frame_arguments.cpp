#include "hosts/cli/gather/frame_arguments.h"

#include "hosts/cli/command.h"
#include "runtime/run_time_error.h"

#include <algorithm>
#include <string_view>

namespace cli {

namespace {

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

bool hasShape(std::string_view text, std::string_view shape)
{
    return std::equal(
        text.begin(), text.end(), shape.begin(), shape.end(),
        [](char typed, char wanted) { return wanted == '0' ? isDigit(typed) : typed == wanted; });
}

} // namespace

Date frameStart(const std::string& typed)
{
    try {
        if (hasShape(typed, "0000-00-00 00:00")) return parseDate(typed);
    } catch (const RunTimeError&) {
        // A day that the calendar lacks, such as 30 February.
    }
    throw UsageError("--from takes a moment such as \"2025-02-20 16:42\", not \"" + typed + "\"");
}

const std::string& frameDuration(const std::string& typed)
{
    constexpr std::size_t longest = 3;
    const bool digits = std::all_of(typed.begin(), typed.end(), isDigit);
    const bool zero = typed.find_first_not_of('0') == std::string::npos;
    if (!digits || zero || typed.size() > longest)
        throw UsageError("--hours takes a whole number from 1 to 999, not \"" + typed + "\"");
    return typed;
}

} // namespace cli
