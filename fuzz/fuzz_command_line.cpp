#include "require.h"

#include "backends/site/command_line.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace {

std::vector<std::string> partsOf(std::string_view text)
{
    std::vector<std::string> parts(1);
    for (const char c : text) {
        if (c == '\n')
            parts.emplace_back();
        else
            parts.back() += c;
    }
    return parts;
}

/// An argument in quotation marks: a mark gets a backslash, and so does each backslash before one.
std::string quoted(const std::string& argument)
{
    std::string text = "\"";
    std::size_t backslashes = 0;
    for (const char c : argument) {
        if (c == '"') text.append(backslashes + 1, '\\');
        backslashes = c == '\\' ? backslashes + 1 : 0;
        text += c;
    }
    text.append(backslashes, '\\');
    return text + '"';
}

std::string quotedProgram(const std::string& program)
{
    std::string text = "\"";
    for (const char c : program) text += c == '"' ? "\"\"" : std::string(1, c);
    return text + '"';
}

void checkAnyText(std::string_view text)
{
    const CommandLine line = parseCommandLine(text);
    const bool named = text.find_first_not_of(" \t") != std::string_view::npos;
    require(named || line.readings.empty());
    std::size_t before = 0;
    for (const auto& reading : line.readings) {
        require(reading.program.size() > before); // each is longer than the one before it
        before = reading.program.size();
        require(text.front() == '"' || text.find(reading.program) != std::string_view::npos ||
                text.find('"') != std::string_view::npos);
    }
    for (const auto& argument : splitArguments(text)) require(argument.size() <= text.size());
}

} // namespace

/// Any text is taken apart; and what was put together by the rules of quoting, a line of input for
/// each part, comes apart into just that.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    checkAnyText(text);

    const std::vector<std::string> arguments = partsOf(text);
    std::string joined;
    for (const auto& argument : arguments) joined += " " + quoted(argument);
    require(splitArguments(joined) == arguments);

    const std::string& program = arguments.front();
    const CommandLine line = parseCommandLine(quotedProgram(program) + joined);
    if (program.empty()) return 0;
    require(line.readings.size() == 1);
    require(line.readings[0].program == program && line.readings[0].arguments == arguments);
    return 0;
}
