#include "logreader/parse_data.h"
#include "logreader/parse_diagnostic.h"

#include "support/test_tool.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace {

void require(bool holds)
{
    if (!holds) std::abort();
}

bool within(std::string_view piece, std::string_view line)
{
    return line.find(piece) != std::string_view::npos;
}

} // namespace

/// The first byte switches extended fields, the trace's prefix and the development host; the first
/// line is the formatted one, the rest the raw one.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0) return 0;
    const std::string_view text(reinterpret_cast<const char*>(data) + 1, size - 1);
    const std::size_t lineEnd = text.find('\n');
    const std::string_view formatted = text.substr(0, lineEnd);
    const std::string_view raw =
        lineEnd == std::string_view::npos ? std::string_view() : text.substr(lineEnd + 1);

    TestTool tool;
    tool.context.g_bExtendedLogFields = (data[0] & 1) != 0;
    const bool keepTracePrefix = (data[0] & 2) != 0;
    tool.module.developmentHost = (data[0] & 4) != 0;

    const DiagnosticLine record =
        mdlDiagnostics::parseDiagnostic(tool.context, formatted, raw, keepTracePrefix);
    for (const auto* piece : {&record.timeStamp, &record.source, &record.component, &record.trace})
        require(within(*piece, formatted));
    for (const auto* piece : {&record.thread, &record.port, &record.callId})
        require(within(*piece, raw));
    require(tool.failures().size() <= 12);

    DiagnosticLine used = record;
    mdlDiagnostics::parseDiagnostic(tool.context, formatted, raw, keepTracePrefix, used);
    require(used == record);

    tool.module.developmentHost = false; // there, a bad line of a data file is tried for ever
    const DiagnosticLine fromData = mdlDiagnostics::parseData(tool.context, formatted);
    require(fromData.traceLevel == mdlDiagnostics::dataFileTraceLevel);
    require(fromData.component == mdlDiagnostics::dataFileComponent);
    require(within(fromData.trace, formatted));
    return 0;
}
