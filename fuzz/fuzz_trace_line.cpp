#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "platform/event_reporter.h"
#include "tracelines/trace_line_format.h"

namespace {

/// A line is formatted whole or not at all, and a formatted line comes back as it is.
void check(std::string_view line, LogFields fields)
{
    std::string formatted = "before";
    if (!appendFormattedTraceLine(line, fields, formatted)) {
        if (formatted != "before") std::abort();
        return;
    }
    if (formatted.compare(0, 6, "before") != 0) std::abort();
    formatted.erase(0, 6);
    if (formatted.size() > EventReporter::traceLineLimit) return; // longer by its brackets
    std::string again;
    if (!appendFormattedTraceLine(formatted, fields, again) || again != formatted) std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view line(reinterpret_cast<const char*>(data), size);
    check(line, LogFields::basic);
    check(line, LogFields::extended);
    return 0;
}
