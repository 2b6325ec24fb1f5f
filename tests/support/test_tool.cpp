#include "support/test_tool.h"

#include <algorithm>

namespace {

constexpr std::size_t levelStart = 9;
constexpr std::size_t levelEnd = 16;
constexpr std::size_t procStart = 18;
constexpr std::size_t procEnd = 68;
constexpr std::size_t messageStart = 70;

std::string withoutLeadingBlanks(const std::string& text)
{
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string::npos ? "" : text.substr(first);
}

bool isLogLine(const std::string& line)
{
    return line.size() >= messageStart && line[2] == ':' && line[5] == ':' &&
           line.compare(levelEnd, 2, ":(") == 0 && line.compare(procEnd, 2, ") ") == 0;
}

LogLine parse(const std::string& line)
{
    LogLine parsed;
    parsed.time = line.substr(0, levelStart - 1);
    parsed.level = withoutLeadingBlanks(line.substr(levelStart, levelEnd - levelStart));
    parsed.procName = withoutLeadingBlanks(line.substr(procStart, procEnd - procStart));
    const std::string indented = line.substr(messageStart);
    parsed.message = withoutLeadingBlanks(indented);
    parsed.indent = static_cast<int>(indented.size() - parsed.message.size());
    return parsed;
}

std::vector<std::string> linesOf(const std::string& text)
{
    std::vector<std::string> lines;
    std::size_t start = 0;
    while (start < text.size()) {
        const std::size_t end = std::min(text.find("\r\n", start), text.size());
        lines.push_back(text.substr(start, end - start));
        start = end + 2;
    }
    return lines;
}

} // namespace

TestTool::TestTool()
    : platform{files,     registry,      clock,  timeZone,  eventReporter, eventLogExporter,
               processes, workstation,   module, languages, desktop,       database,
               xml,       traceDatabases},
      context(platform)
{
    files.withFolder(module.folderPath);
}

std::vector<LogLine> TestTool::logLines()
{
    std::vector<LogLine> lines;
    if (!context.g_log.exists()) return lines;
    for (const std::string& line : linesOf(files.content(context.g_log->strLogFile()))) {
        if (isLogLine(line))
            lines.push_back(parse(line));
        else if (!lines.empty())
            lines.back().message += "\r\n" + line;
    }
    return lines;
}

std::vector<std::string> TestTool::failures()
{
    std::vector<std::string> messages;
    for (const LogLine& line : logLines())
        if (line.level == "ERROR") messages.push_back(line.message);
    return messages;
}

std::vector<std::string> TestTool::failures(const std::string& procName)
{
    std::vector<std::string> messages;
    for (const LogLine& line : logLines())
        if (line.level == "ERROR" && line.procName == procName) messages.push_back(line.message);
    return messages;
}

bool TestTool::logged(const std::string& text)
{
    const auto lines = logLines();
    return std::any_of(lines.begin(), lines.end(), [&](const LogLine& line) {
        return line.message.find(text) != std::string::npos;
    });
}
