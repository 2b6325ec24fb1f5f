#pragma once

#include "tracelines/trace_line_format.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// The server's event reporter: reports events and formats raw log lines.
class EventReporter {
public:
    /// What a formatter takes at most, in bytes.
    static constexpr std::size_t traceLineLimit = longestTraceLine;

    virtual ~EventReporter() = default;

    /// The two start-up calls, in this order. Raise 429 where the server installs no reporter.
    virtual void startUp() = 0;
    virtual void completeStartUp() = 0;

    /// A handle for this tool's reports. Raises 429.
    virtual std::int32_t registerTool(const std::string& moduleName) = 0;

    /// Raises 429, or what stands in the way of writing the event.
    virtual void report(const std::string& source, std::int32_t handle, int type, std::int32_t id,
                        const std::vector<std::string>& inserts) = 0;

    /// Appends the formatted form of a raw line to `formatted`:
    /// `<time> (<source>,<traceNumber>,<component>,<traceLevel>) <trace>`.
    /// Raises 5 for a line that is none, or of more than `traceLineLimit` bytes, 429; then
    /// `formatted` is as before.
    virtual void formatTraceLine(std::string_view rawLine, std::string& formatted) = 0;

    /// The time of a raw line that is surely sound, at a part of the cost of formatting it:
    /// `formatTraceLine` succeeds and puts that time, of 12 characters or more, before " (", and
    /// trace number and level are plain digits of a 32-bit and a 16-bit number. The empty text
    /// when only formatting tells.
    virtual std::string_view timeOfSoundLine(std::string_view rawLine) const
    {
        return rawLine.substr(0, 0);
    }
};
