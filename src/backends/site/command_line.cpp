#include "backends/site/command_line.h"

#include <algorithm>

namespace {

bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

std::string_view withoutLeadingBlanks(std::string_view text)
{
    while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
    return text;
}

/// Takes one argument off a text that begins with it.
std::string takeArgument(std::string_view& text)
{
    std::string argument;
    bool quoted = false;
    while (!text.empty() && (quoted || !isBlank(text.front()))) {
        const auto backslashes = std::min(text.find_first_not_of('\\'), text.size());
        const bool beforeMark = backslashes < text.size() && text[backslashes] == '"';
        argument.append(beforeMark ? backslashes / 2 : backslashes, '\\');
        text.remove_prefix(backslashes);
        if (text.empty()) break;
        if (!beforeMark) {
            if (!quoted && isBlank(text.front())) break;
            argument += text.front();
        } else if (backslashes % 2 != 0) {
            argument += '"';
        } else if (quoted && text.size() > 1 && text[1] == '"') {
            argument += '"';
            text.remove_prefix(1);
        } else {
            quoted = !quoted;
        }
        text.remove_prefix(1);
    }
    return argument;
}

} // namespace

std::vector<std::string> splitArguments(std::string_view text)
{
    std::vector<std::string> arguments;
    for (text = withoutLeadingBlanks(text); !text.empty(); text = withoutLeadingBlanks(text))
        arguments.push_back(takeArgument(text));
    return arguments;
}

CommandLine parseCommandLine(std::string_view text)
{
    CommandLine line;
    text = withoutLeadingBlanks(text);
    if (text.empty()) return line;
    if (text.front() == '"') {
        std::string program;
        std::size_t end = 1;
        for (; end < text.size(); ++end) {
            if (text[end] == '"' && text.substr(end, 2) != "\"\"") break;
            if (text[end] == '"') ++end;
            program += text[end];
        }
        const auto rest = text.substr(std::min(end + 1, text.size()));
        if (!program.empty()) line.readings.push_back({program, splitArguments(rest)});
        return line;
    }
    constexpr std::size_t mostReadings = 64;
    for (std::size_t end = 0; end < text.size() && line.readings.size() < mostReadings;) {
        end = std::min(text.find_first_of(" \t", end), text.size());
        line.readings.push_back(
            {std::string(text.substr(0, end)), splitArguments(text.substr(end))});
        while (end < text.size() && isBlank(text[end])) ++end;
    }
    return line;
}
