#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace timeline {

/// How the lines of a source are written.
enum class LineForm : std::uint8_t {
    basic,     ///< `<time>,<source>,<traceNumber>,<component>,<level>,<trace>`
    extended,  ///< the same with thread, port and call id behind the trace number
    formatted, ///< `<time> (<source>,<traceNumber>,<component>,<level>) <trace>`
    data,      ///< `<time>,<source>,<traceNumber>,<trace>`, in universal time
};

/// A line of a log cut into its fields. Texts are bytes of the line and live as long as it.
struct LineFields {
    std::string_view timeStamp;
    std::string_view source;
    std::int32_t traceNumber = 0; ///< 0 as well for one that is too large
    std::string_view component;
    std::int16_t level = 0; ///< 0 as well for one that is too large
    std::string_view thread;
    std::string_view port;
    std::string_view callId;
    std::string_view trace; ///< all that stands behind the head of the line
};

/// Cuts a line without its end. False, with fields of any value, for a line that has not this form.
/// A log of raw lines may hold formatted ones; those have no thread, port and call id.
///
/// A line has its form if the server's formatter would take its first 510 bytes, so that texts and
/// numbers are those that the tool's own parser finds.
bool cutLine(std::string_view line, LineForm form, LineFields& fields);

/// The trace of a cut line as the tool's own view has it: with a blank behind the first 510 bytes
/// of the line, or at its end.
void appendToolTrace(std::string& text, std::string_view line, const LineFields& fields);

} // namespace timeline
