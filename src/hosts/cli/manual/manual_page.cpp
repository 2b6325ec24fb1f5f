#include "hosts/cli/manual/manual_page.h"

#include "hosts/cli/program.h"
#include "runtime/text.h"

#include <algorithm>

namespace cli {

namespace {

/// A text as troff shows it letter by letter.
std::string escaped(const std::string& text)
{
    std::string safe;
    for (const char letter : text) {
        switch (letter) {
        case '\\':
            safe += "\\e";
            break;
        case '-':
            safe += "\\-";
            break;
        case '\'':
            safe += "\\(aq";
            break;
        case '~':
            safe += "\\(ti";
            break;
        default:
            safe += letter;
        }
    }
    return safe;
}

/// A line of text, which is no request even when it begins with a point.
std::string line(const std::string& text)
{
    return (beginsWith(text, ".") ? "\\&" : "") + escaped(text) + "\n";
}

std::string bold(const std::string& text)
{
    return "\\fB" + escaped(text) + "\\fR";
}

std::string italic(const std::string& text)
{
    return "\\fI" + escaped(text) + "\\fR";
}

/// Paragraphs as they stand; lines that begin with two blanks are an example.
std::string paragraphs(const std::string& text)
{
    std::string page;
    bool example = false;
    for (const std::string& row : split(text, '\n')) {
        const bool indented = beginsWith(row, "  ");
        if (indented != example) page += indented ? ".PP\n.RS 4\n.nf\n" : ".fi\n.RE\n";
        example = indented;
        if (indented)
            page += line(row.substr(2));
        else
            page += row.empty() ? ".PP\n" : line(row);
    }
    if (example) page += ".fi\n.RE\n";
    return replaceAll(page, ".PP\n.PP\n", ".PP\n");
}

std::string optionEntry(const DescribedOption& option)
{
    std::string head;
    for (const auto& name : option.names) head += (head.empty() ? "" : ", ") + bold(name);
    if (!option.choices.empty()) {
        std::string words;
        for (const auto& word : option.choices) words += (words.empty() ? "" : "|") + bold(word);
        head += " " + words;
    } else if (!option.argument.empty()) {
        head += (head.empty() ? "" : " ") + italic(option.argument);
    }
    std::string text = option.description;
    if (!option.defaultValue.empty()) text += " (default: " + option.defaultValue + ")";
    return ".TP\n" + head + "\n" + line(text);
}

bool isHelp(const DescribedOption& option)
{
    return !option.names.empty() && option.names.back() == "--help";
}

/// "gather frame [OPTIONS] DIR".
std::string heading(const DescribedCommand& command)
{
    std::string text = command.path;
    if (std::any_of(command.options.begin(), command.options.end(),
                    [](const auto& option) { return !option.isArgument() && !isHelp(option); }))
        text += " [OPTIONS]";
    for (const auto& option : command.options)
        if (option.isArgument())
            text += option.required ? " " + option.argument : " [" + option.argument + "]";
    return text;
}

std::string commandSection(const DescribedCommand& command)
{
    std::string page = ".SS \"" + replaceAll(escaped(heading(command)), "\"", "\\(dq") + "\"\n";
    page += line(command.summary + ".");
    for (const auto& option : command.options)
        if (!isHelp(option)) page += optionEntry(option);
    if (!command.explanation.empty()) page += ".PP\n" + paragraphs(command.explanation);
    for (const auto& below : command.commands) page += commandSection(below);
    return page;
}

std::string exitStatusTable()
{
    std::string table = ".TS\nl l.\n";
    for (const auto& status : exitStatuses)
        table += std::to_string(status.status) + "\t" + escaped(status.meaning) + "\n";
    return table + ".TE\n";
}

} // namespace

std::string manualPage(const DescribedCommand& program)
{
    std::string page = "'\\\" t\n";
    page += ".TH ORVANDIAG 1 \"\" \"" + escaped(versionText()) + "\" \"User Commands\"\n";
    page += ".SH NAME\norvandiag \\- " + escaped(purpose) + "\n";
    page += ".SH SYNOPSIS\n" + bold("orvandiag") + " [" + italic("OPTIONS") + "] " +
            italic("COMMAND") + "\n";
    page += ".SH DESCRIPTION\n" + paragraphs(program.summary);
    page += ".SH OPTIONS\n";
    for (const auto& option : program.options) page += optionEntry(option);
    page += ".SH COMMANDS\n";
    for (const auto& command : program.commands) page += commandSection(command);
    page += ".SH \"EXIT STATUS\"\n" + exitStatusTable();
    page += ".SH NOTES\n" + paragraphs(outputNote);
    return page;
}

} // namespace cli
