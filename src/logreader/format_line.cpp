#include "logreader/format_line.h"

#include "core/error_trap.h"
#include "platform/event_reporter.h"

namespace {
constexpr std::size_t shortestLogLine = 20;
}

std::string mdlDiagnostics::formatLineSafe(ToolContext& tool, std::string_view rawLine)
{
    std::string formatted;
    formatLineSafe(tool, rawLine, formatted);
    return formatted;
}

bool mdlDiagnostics::formatLineSafe(ToolContext& tool, std::string_view rawLine,
                                    std::string& formatted)
{
    ErrorTrap step{tool, "mdlDiagnostics", "formatLineSafe"};
    formatted.clear();
    bool known = false;
    if (rawLine.size() < shortestLogLine) return known;

    const std::string_view head = rawLine.substr(0, EventReporter::traceLineLimit);
    const std::string_view tail = rawLine.substr(head.size());
    step([&] {
        tool.platform.eventReporter.formatTraceLine(head, formatted);
        known = true;
    });
    formatted += ' ';
    formatted += tail;
    return known;
}
