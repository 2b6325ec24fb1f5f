#include "hosts/cli/manual/help_page.h"

#include "hosts/cli/manual/command_tree.h"
#include "hosts/common/shown_width.h"
#include "runtime/text.h"
#include "system/terminal.h"

#include <algorithm>
#include <vector>

namespace cli {

namespace {

constexpr std::size_t widthWithoutTerminal = 80;
constexpr std::size_t narrowest = 40;   ///< below it a column of descriptions is no help
constexpr std::size_t indentation = 26; ///< of descriptions, behind what they describe

std::size_t widthOfHelp()
{
    const auto width = widthOfOutputTerminal();
    if (!width) return widthWithoutTerminal;
    return std::max(narrowest, static_cast<std::size_t>(*width));
}

/// Breaks a text between its words into lines of at most `width` columns; all but the first begin
/// with `indent` blanks, and the first has `used` columns before it.
std::string broken(const std::string& text, std::size_t width, std::size_t indent, std::size_t used)
{
    std::string lines;
    std::size_t column = used;
    bool first = true;
    for (const std::string& word : split(text, ' ')) {
        if (word.empty()) continue;
        const std::size_t size = shownWidth(word);
        if (!first && column + 1 + size > width) {
            lines += "\n" + std::string(indent, ' ');
            column = indent;
        } else if (!first) {
            lines += " ";
            ++column;
        }
        lines += word;
        column += size;
        first = false;
    }
    return lines;
}

/// A row of a list: what is described, and its description beside it, or below where it is long.
std::string entry(const std::string& described, const std::string& description, std::size_t width)
{
    std::string row = "  " + described;
    const std::size_t size = shownWidth(row);
    if (size + 2 > indentation)
        row += "\n" + std::string(indentation, ' ');
    else
        row += std::string(indentation - size, ' ');
    return row + broken(description, width, indentation, indentation) + "\n";
}

/// "-h, --help", "--to DIR", "LOG...".
std::string headOf(const DescribedOption& option)
{
    std::string head;
    for (const auto& name : option.names) head += (head.empty() ? "" : ", ") + name;
    if (option.isArgument()) return option.argument + (option.repeated ? "..." : "");
    return option.takesValue() ? head + " " + option.argument : head;
}

template <typename Wanted>
std::string optionList(const char* title, const std::vector<DescribedOption>& options,
                       std::size_t width, Wanted&& wanted)
{
    std::string rows;
    for (const auto& option : options)
        if (wanted(option)) rows += entry(headOf(option), option.told(), width);
    return rows.empty() ? "" : "\n" + std::string(title) + "\n" + rows;
}

std::string commandList(const DescribedCommand& command, std::size_t width)
{
    std::string rows;
    for (const auto& below : command.commands) rows += entry(below.name(), below.summary, width);
    return rows.empty() ? "" : "\nCommands:\n" + rows;
}

const CLI::App& outermost(const CLI::App& command)
{
    const CLI::App* app = &command;
    while (app->get_parent() != nullptr) app = app->get_parent();
    return *app;
}

} // namespace

std::string inLines(const std::string& paragraphs, std::size_t width)
{
    std::string text;
    std::string paragraph;
    const auto finish = [&] {
        if (!paragraph.empty()) text += broken(paragraph, width, 0, 0) + "\n";
        paragraph.clear();
    };
    for (const std::string& line : split(paragraphs, '\n')) {
        if (!line.empty() && !beginsWith(line, "  ")) {
            paragraph += (paragraph.empty() ? "" : " ") + line;
            continue;
        }
        finish();
        text += line + "\n";
    }
    finish();
    return text;
}

std::string HelpPage::make_help(const CLI::App* command, std::string path, CLI::AppFormatMode) const
{
    const std::size_t width = widthOfHelp();
    const DescribedCommand described = describeCommands(*command);
    const CLI::App& program = outermost(*command);
    const bool isProgram = &program == command;
    std::string text = inLines(described.summary, width);
    text += "\n" + broken("Usage: " + path + described.usage(), width, 2, 0) + "\n";
    text += optionList("Arguments:", described.options, width,
                       [](const auto& option) { return option.isArgument(); });
    if (isProgram) text += commandList(described, width);
    text += optionList("Options:", described.options, width,
                       [](const auto& option) { return !option.isArgument(); });
    if (!isProgram) {
        text += commandList(described, width);
        text += optionList("Options of every command:", describeCommands(program).options, width,
                           [](const auto& option) {
                               return !isHelpOption(option) && option.names.back() != "--version";
                           });
    }
    if (!command->get_footer().empty()) text += "\n" + inLines(command->get_footer(), width);
    return text;
}

} // namespace cli
