#include "hosts/cli/manual/manual_page.h"

#include "hosts/cli/manual/help_page.h"
#include "hosts/cli/manual/surroundings.h"
#include "hosts/cli/program.h"
#include "runtime/text.h"

#include <algorithm>
#include <cctype>

namespace cli {

namespace {

/// Of a line of the source, which what is escaped makes longer.
constexpr std::size_t sourceWidth = 60;

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

/// A paragraph in short lines.
std::string lines(const std::string& text)
{
    std::string page;
    for (const std::string& row : split(inLines(text, sourceWidth), '\n'))
        if (!row.empty()) page += line(row);
    return page;
}

std::string bold(const std::string& text)
{
    return "\\fB" + escaped(text) + "\\fR";
}

std::string italic(const std::string& text)
{
    return "\\fI" + escaped(text) + "\\fR";
}

std::string section(const std::string& name)
{
    return ".SH \"" + name + "\"\n";
}

std::string inCapitals(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char letter) { return static_cast<char>(std::toupper(letter)); });
    return text;
}

/// An explanation in parts: paragraphs, each a line, and blocks of lines that begin with two
/// blanks.
std::vector<std::string> partsOf(const std::string& explanation)
{
    std::vector<std::string> parts;
    bool begins = true;
    for (const std::string& row : split(explanation, '\n')) {
        const bool indented = beginsWith(row, "  ");
        if (!begins && !row.empty() && indented == beginsWith(parts.back(), "  "))
            parts.back() += (indented ? "\n" : " ") + row;
        else if (!row.empty())
            parts.push_back(row);
        begins = row.empty();
    }
    return parts;
}

/// Whether a part is one of calls of the program, and not, say, of lines of a file.
bool isExample(const std::string& part)
{
    return beginsWith(part, "  ") && part.find("orvandiag ") != std::string::npos &&
           part.find(" = ") == std::string::npos;
}

std::string asTyped(const std::string& part)
{
    std::string page = ".nf\n";
    for (const std::string& row : split(part, '\n')) page += line(row.substr(2));
    return page + ".fi\n";
}

/// An explanation without its examples.
std::string prose(const std::string& explanation)
{
    std::string page;
    for (const std::string& part : partsOf(explanation)) {
        if (isExample(part)) continue;
        page += page.empty() ? "" : ".PP\n";
        page += beginsWith(part, "  ") ? asTyped(part) : lines(part);
    }
    return page;
}

std::string examples(const std::string& explanation)
{
    std::string page;
    for (const std::string& part : partsOf(explanation))
        if (isExample(part)) page += (page.empty() ? "" : ".PP\n") + asTyped(part);
    return page.empty() ? "" : section("EXAMPLES") + page;
}

std::string entry(const std::string& head, const std::string& text)
{
    return ".TP\n" + head + "\n" + lines(text);
}

std::string optionEntry(const DescribedOption& option)
{
    std::string head;
    for (const auto& name : option.names) head += (head.empty() ? "" : ", ") + bold(name);
    if (option.takesValue())
        head += (head.empty() ? "" : " ") + italic(option.argument) +
                (option.isArgument() && option.repeated ? "..." : "");
    return entry(head, option.told());
}

std::string optionEntries(const DescribedCommand& command)
{
    std::string page;
    for (const auto& option : command.options)
        if (option.isArgument()) page += optionEntry(option);
    for (const auto& option : command.options)
        if (!option.isArgument()) page += optionEntry(option);
    return page;
}

std::string title(const std::string& name)
{
    return ".TH " + escaped(inCapitals(name)) + " 1 " ORVAN_MANUAL_DATE " \"" +
           escaped(versionText()) + "\" \"User Commands\"\n";
}

/// "orvandiag gather frame [OPTIONS]", in its type.
std::string synopsis(const DescribedCommand& command)
{
    return bold("orvandiag" + (command.path.empty() ? "" : " " + command.path)) +
           escaped(command.usage()) + "\n";
}

/// A summary stands in a list behind a dash, where it begins small unless it begins with a name.
std::string asPurpose(std::string summary)
{
    if (summary.size() > 1 && std::islower(static_cast<unsigned char>(summary[1])) != 0)
        summary[0] = static_cast<char>(std::tolower(static_cast<unsigned char>(summary[0])));
    return summary;
}

std::string exitStatusSection()
{
    std::string page = section("EXIT STATUS");
    for (const auto& status : exitStatuses)
        page += entry(std::to_string(status.status), status.meaning);
    return page;
}

template <std::size_t count>
std::string surroundings(const char* name, const Surrounding (&known)[count])
{
    std::string page = section(name);
    for (const auto& one : known) page += entry(bold(one.name), one.meaning);
    return page;
}

std::string globalOptions(const DescribedCommand& program)
{
    std::string page;
    for (const auto& option : program.options)
        if (!isHelpOption(option) && option.names.back() != "--version")
            page += optionEntry(option);
    return page;
}

/// A list of pages such as "orvandiag(1), orvandiag-gather(1)", in the order of their names.
std::string seeAlso(std::vector<std::string> pages)
{
    std::sort(pages.begin(), pages.end());
    std::string list = section("SEE ALSO");
    for (std::size_t at = 0; at < pages.size(); ++at)
        list += ".BR " + escaped(pages[at]) + " (1)" + (at + 1 < pages.size() ? " ," : "") + "\n";
    return replaceAll(list, " (1) ,", " (1),");
}

std::string commandsBelow(const DescribedCommand& command)
{
    std::string page;
    for (const auto& below : command.commands) {
        page += ".SS \"" + replaceAll(escaped(below.path + below.usage()), "\"", "\\(dq") + "\"\n";
        page += lines(below.summary + ".") + optionEntries(below);
        if (!below.explanation.empty()) page += ".PP\n" + prose(below.explanation);
        page += commandsBelow(below);
    }
    return page;
}

} // namespace

std::string pageName(const DescribedCommand& command)
{
    return command.path.empty() ? "orvandiag" : "orvandiag-" + replaceAll(command.path, " ", "-");
}

std::string manualPage(const DescribedCommand& program)
{
    std::string page = title("orvandiag");
    page += section("NAME") + lines(std::string("orvandiag - ") + purpose);
    page += section("SYNOPSIS") + synopsis(program);
    page += section("DESCRIPTION") + prose(program.summary) + ".PP\n" + prose(outputNote);
    page += section("COMMANDS");
    for (const auto& command : program.commands)
        page += ".TP\n.BR " + escaped(pageName(command)) + " (1)\n" + lines(command.summary + ".");
    page += section("OPTIONS") + optionEntries(program);
    page += surroundings("ENVIRONMENT", variables);
    page += surroundings("FILES", usedFiles);
    page += exitStatusSection();
    page += examples(programExamples);
    std::vector<std::string> others = {"orvandiag-console", "orvandiag-viewer"};
    for (const auto& command : program.commands) others.push_back(pageName(command));
    return page + seeAlso(others);
}

std::string manualPage(const DescribedCommand& program, const DescribedCommand& command)
{
    std::string page = title(pageName(command));
    page += section("NAME") + lines(pageName(command) + " - " + asPurpose(command.summary));
    page += section("SYNOPSIS") + synopsis(command);
    for (const auto& below : command.commands) page += ".br\n" + synopsis(below);
    const std::string text = prose(command.explanation);
    page += section("DESCRIPTION") + (text.empty() ? lines(command.summary + ".") : text);
    page += section("OPTIONS") + optionEntries(command);
    if (!command.commands.empty()) page += section("COMMANDS") + commandsBelow(command);
    page += section("OPTIONS OF EVERY COMMAND") + globalOptions(program);
    page += exitStatusSection();
    page += examples(command.explanation);
    return page + seeAlso({"orvandiag"});
}

} // namespace cli
