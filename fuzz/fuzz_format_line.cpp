#include "logreader/format_line.h"
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

} // namespace

/// The first byte switches extended fields; the rest is the raw line.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0) return 0;
    const std::string_view raw(reinterpret_cast<const char*>(data) + 1, size - 1);
    TestTool tool;
    tool.eventReporter.extended((data[0] & 1) != 0);
    tool.context.g_bExtendedLogFields = (data[0] & 1) != 0;

    const std::string formatted = mdlDiagnostics::formatLineSafe(tool.context, raw);
    require(formatted.empty() == (raw.size() < 20));
    if (formatted.empty()) return 0;

    const std::size_t limit = EventReporter::traceLineLimit;
    const std::string tail = " " + std::string(raw.size() > limit ? raw.substr(limit) : "");
    require(formatted.size() >= tail.size());
    require(formatted.compare(formatted.size() - tail.size(), tail.size(), tail) == 0);
    require(tool.failures().size() <= 1);

    mdlDiagnostics::parseDiagnostic(tool.context, formatted, raw, true);
    return 0;
}
