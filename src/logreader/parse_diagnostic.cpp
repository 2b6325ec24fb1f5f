#include "logreader/parse_diagnostic.h"

#include "core/error_trap.h"
#include "runtime/integer16.h"
#include "runtime/numbers.h"
#include "runtime/text.h"

namespace {

constexpr std::size_t timeStampWidth = 12;
constexpr std::size_t longestShownCallId = 31;

constexpr std::size_t threadElement = 3;
constexpr std::size_t portElement = 4;
constexpr std::size_t callIdElement = 5;

/// A line and the 16-bit positions that walk it; a position that does not fit raises 6 and keeps
/// its last value.
struct Scan {
    std::string_view line;
    Integer16 start = 1;
    Integer16 end = 0;
    Integer16 length = 0;

    void startBehindEnd(int distance) { start = Integer16(end + distance); }

    void findEnd(std::string_view delimiter, std::size_t from)
    {
        const std::size_t found = positionOf(line, delimiter, from);
        end = Integer16(static_cast<int>(found));
    }

    /// The bytes from start to end. A delimiter that was not found, or that lies before the start,
    /// makes the length negative: then it is 0 and the piece is empty, which is no error.
    std::string_view piece()
    {
        length = Integer16(end - start);
        if (length < 0) length = 0;
        return mid(line, start, length);
    }
};

/// Element `wanted`, counted from 0, of a comma-separated line. Raises 9 when there are fewer.
std::string_view element(std::string_view line, std::size_t wanted)
{
    std::size_t begin = 0;
    for (std::size_t passed = 0; passed < wanted; ++passed) {
        const std::size_t comma = line.find(',', begin);
        if (comma == std::string_view::npos) throw RunTimeError(runTimeErrors::subscriptOutOfRange);
        begin = comma + 1;
    }
    if (line.empty()) throw RunTimeError(runTimeErrors::subscriptOutOfRange);
    return line.substr(begin, line.find(',', begin) - begin);
}

void cutCallId(std::string& trace, const std::string& callId)
{
    const std::size_t position = positionOf(trace, callId);
    trace.erase(0, position + callId.size() + 1);
}

} // namespace

DiagnosticLine mdlDiagnostics::parseDiagnostic(ToolContext& tool, std::string_view formattedLine,
                                               std::string_view rawLine, bool keepTracePrefix)
{
    DiagnosticLine record;
    parseDiagnostic(tool, formattedLine, rawLine, keepTracePrefix, record);
    return record;
}

void mdlDiagnostics::parseDiagnostic(ToolContext& tool, std::string_view formattedLine,
                                     std::string_view rawLine, bool keepTracePrefix,
                                     DiagnosticLine& record)
{
    ErrorTrap step{tool, "mdlDiagnostics", "parseDiagnostic", countedTrapWithLine};
    record.clear();
    Scan scan{formattedLine};

    step.body([&] {
        step([&] { scan.findEnd(" ", timeStampWidth); });
        step([&] { record.timeStamp = scan.piece(); });

        step([&] { scan.startBehindEnd(2); });
        step([&] { scan.findEnd(",", scan.start); });
        step([&] { record.source = scan.piece(); });

        step([&] { scan.startBehindEnd(1); });
        step([&] { scan.findEnd(",", scan.start); });
        step([&] { record.traceNumber = toInteger32(leadingNumber(scan.piece())); });

        step([&] { scan.startBehindEnd(1); });
        step([&] { scan.findEnd(",", scan.start); });
        step([&] { record.component = scan.piece(); });

        step([&] { scan.startBehindEnd(1); });
        step([&] { scan.findEnd(")", scan.start); });
        step([&] { record.traceLevel = toInteger16(leadingNumber(scan.piece())); });

        step([&] { scan.startBehindEnd(2); });
        step([&] { record.trace = mid(formattedLine, scan.start); });

        if (!tool.g_bExtendedLogFields) return;
        step([&] { record.thread = element(rawLine, threadElement); });
        step([&] { record.port = element(rawLine, portElement); });
        step([&] { record.callId = element(rawLine, callIdElement); });
        if (keepTracePrefix || record.callId.size() <= longestShownCallId) return;
        step([&] { cutCallId(record.trace, record.callId); });
    });
}
