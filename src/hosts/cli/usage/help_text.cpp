#include "hosts/cli/usage/help_text.h"

#include "hosts/cli/command.h"
#include "hosts/cli/usage/unknown_words.h"

#include <CLI/CLI.hpp>

namespace cli {

namespace {

/// In the order in which a new user needs them: something to look at, a look at it, and the three
/// things that the program is for.
constexpr const char* firstCommands[] = {"sample", "status", "read", "macro", "gather"};

const CLI::App* commandBelow(const CLI::App& command, const std::string& name)
{
    const auto found =
        command.get_subcommands([&name](const CLI::App* below) { return below->check_name(name); });
    return found.empty() ? nullptr : found.front();
}

/// Raises UsageError for a word that is no command below the command of that path.
[[noreturn]] void refuse(const CLI::App& program, const std::string& path, const std::string& word)
{
    const DescribedCommand described = describeCommands(program);
    const auto blank = path.find(' ');
    const UnknownWords unknown(described, blank == std::string::npos ? "" : path.substr(blank + 1));
    throw UsageError(
        unknown.mayBeCommand() ? unknown.refuseCommand(word) : unknown.refuseWords({word}), path);
}

} // namespace

std::string helpOf(const CLI::App& program, const std::vector<std::string>& command)
{
    const CLI::App* found = &program;
    std::string path = program.get_name();
    for (const std::string& word : command) {
        const CLI::App* below = commandBelow(*found, word);
        if (below == nullptr) refuse(program, path, word);
        path += " " + below->get_name();
        found = below;
    }
    return found->get_formatter()->make_help(found, path, CLI::AppFormatMode::Normal);
}

std::string shortUsage(const CLI::App& program)
{
    std::string text = "Usage: orvandiag [OPTIONS] COMMAND [ARGUMENTS]\n\nOne starts with:\n";
    for (const char* name : firstCommands) {
        std::string shown = name;
        shown.resize(8, ' ');
        text += "  " + shown + program.get_subcommand(name)->get_description() + "\n";
    }
    return text + "\norvandiag help lists all commands, orvandiag help COMMAND tells of one.\n";
}

} // namespace cli
