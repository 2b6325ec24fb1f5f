#include "hosts/cli/manual/command_tree.h"
#include "hosts/cli/program.h"
#include "structure/source_tree.h"

#include <gmock/gmock.h>

#include <CLI/CLI.hpp>

#include <algorithm>
#include <regex>
#include <sstream>

namespace {

using Words = std::vector<std::string>;

constexpr const char* guide = "docs/user-guide.md";
constexpr const char* helpPage = "data/help/command_line.html";

cli::DescribedCommand program()
{
    cli::GlobalOptions options;
    const auto commands = cli::allCommands();
    return cli::describeCommands(*cli::describeCommandLine(options, commands));
}

/// The paths of all commands below one, such as "gather" and "gather frame".
Words pathsBelow(const cli::DescribedCommand& command)
{
    Words paths;
    for (const auto& below : command.commands) {
        paths.push_back(below.path);
        const Words inner = pathsBelow(below);
        paths.insert(paths.end(), inner.begin(), inner.end());
    }
    return paths;
}

/// All that the first group of a pattern matches.
Words allOf(const std::string& text, const std::string& pattern)
{
    const std::regex wanted(pattern);
    Words found;
    for (std::sregex_iterator match(text.begin(), text.end(), wanted), end; match != end; ++match)
        found.push_back((*match)[1]);
    return found;
}

/// What stands as code in the guide, in a line or on lines of its own, and in the help.
Words codeOfGuide()
{
    Words code = allOf(textOf(guide), "`([^`\n]+)`");
    for (const auto& line : allOf(textOf(guide), "\n    ([^\n]+)")) code.push_back(line);
    return code;
}

Words codeOfHelp()
{
    return allOf(textOf(helpPage), "<code>([^<]+)</code>");
}

Words wordsOf(const std::string& line)
{
    std::istringstream stream(line);
    Words words;
    for (std::string word; stream >> word;) words.push_back(word);
    return words;
}

/// Whether a piece of code is a call of the command, with or without the program before it.
bool calls(const std::string& code, const std::string& path)
{
    const std::regex call("(source <\\()?(orvandiag )?" + path + "(?![-\\w])[^]*");
    return std::regex_match(code, call);
}

Words untold(const Words& code)
{
    Words missing;
    for (const auto& path : pathsBelow(program()))
        if (std::none_of(code.begin(), code.end(),
                         [&](const std::string& piece) { return calls(piece, path); }))
            missing.push_back(path);
    return missing;
}

bool takes(const cli::DescribedCommand& command, const std::string& option)
{
    return std::any_of(command.options.begin(), command.options.end(), [&](const auto& known) {
        return std::find(known.names.begin(), known.names.end(), option) != known.names.end();
    });
}

/// Why a line "orvandiag ..." can't be typed as it stands; empty when it can.
std::string mistakeOf(const std::string& line)
{
    const cli::DescribedCommand whole = program();
    const cli::DescribedCommand* command = &whole;
    const Words words = wordsOf(line);
    for (std::size_t at = 1; at < words.size(); ++at) {
        const std::string& word = words[at];
        if (word.rfind("--", 0) == 0) {
            if (!takes(*command, word) && !takes(whole, word)) return line + ": no " + word;
            continue;
        }
        if (command->commands.empty() || words[at - 1].rfind("--", 0) == 0) continue;
        const auto below =
            std::find_if(command->commands.begin(), command->commands.end(), [&](const auto& one) {
                return one.path == (command->path.empty() ? "" : command->path + " ") + word;
            });
        // In "orvandiag COMMAND --help" it stands for any.
        if (below == command->commands.end()) return word == "COMMAND" ? "" : line + ": no " + word;
        command = &*below;
    }
    return {};
}

Words mistakesIn(const Words& code)
{
    Words mistakes;
    int seen = 0;
    for (const auto& piece : code)
        for (const auto& line : allOf(piece, "(?:^|[( /])(orvandiag(?: [^)]*)?)(?=$|\\))")) {
            ++seen;
            if (const auto mistake = mistakeOf(line); !mistake.empty()) mistakes.push_back(mistake);
        }
    EXPECT_GT(seen, 0);
    return mistakes;
}

TEST(ToldCommands, EachStandsInTheUserGuide)
{
    EXPECT_THAT(untold(codeOfGuide()), testing::IsEmpty());
}

TEST(ToldCommands, EachStandsInTheHelp)
{
    EXPECT_THAT(untold(codeOfHelp()), testing::IsEmpty());
}

TEST(ToldCommands, EachLineOfTheGuideAndTheReadmeIsOneThatCanBeTyped)
{
    EXPECT_THAT(mistakesIn(codeOfGuide()), testing::IsEmpty());
    EXPECT_THAT(mistakesIn(allOf(textOf("README.md"), "\n    ([^\n]+)")), testing::IsEmpty());
}

TEST(ToldCommands, AMistakeIsSeen)
{
    EXPECT_EQ("", mistakeOf("orvandiag gather frame --hours 2 --site DIR"));
    EXPECT_EQ("", mistakeOf("orvandiag logs gather"));
    EXPECT_EQ("orvandiag gathers: no gathers", mistakeOf("orvandiag gathers"));
    EXPECT_EQ("orvandiag gather all: no all", mistakeOf("orvandiag gather all"));
    EXPECT_EQ("orvandiag logs --hours 2: no --hours", mistakeOf("orvandiag logs --hours 2"));
    EXPECT_FALSE(calls("orvandiag-console --site DIR", "status"));
    EXPECT_FALSE(calls("languages", "language"));
    EXPECT_TRUE(calls("macro set --on X", "macro set"));
}

} // namespace
