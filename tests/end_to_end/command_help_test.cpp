#include "end_to_end/program.h"
#include "support/places.h"

#include "hosts/cli/manual/command_tree.h"
#include "hosts/cli/program.h"

#include <gmock/gmock.h>

#include <CLI/CLI.hpp>

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

namespace {

using testing::HasSubstr;
using testing::Not;

using Words = std::vector<std::string>;

Words linesOf(const std::string& text)
{
    Words lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) lines.push_back(line);
    return lines;
}

void collect(const cli::DescribedCommand& command, std::vector<cli::DescribedCommand>& all)
{
    all.push_back(command);
    for (const auto& below : command.commands) collect(below, all);
}

/// The program itself, and each command at whatever depth.
std::vector<cli::DescribedCommand> everyCommand()
{
    cli::GlobalOptions options;
    const auto commands = cli::allCommands();
    std::vector<cli::DescribedCommand> all;
    collect(cli::describeCommands(*cli::describeCommandLine(options, commands)), all);
    return all;
}

std::string helpOf(const std::string& path)
{
    Words words;
    std::istringstream stream(path);
    for (std::string word; stream >> word;) words.push_back(word);
    words.emplace_back("--help");
    const Outcome shown = orvandiag(words);
    EXPECT_EQ(0, shown.status) << path;
    EXPECT_EQ("", shown.err) << path;
    return shown.out;
}

/// What the help shows on a terminal of so many columns, which `script` is.
std::string helpOnATerminal(int columns, const std::string& words)
{
    const std::string run =
        "stty cols " + std::to_string(columns) + "; exec " + built::orvandiag + " " + words;
    Outcome shown = runProgram({"script", "-qec", run, "/dev/null"}, "/");
    EXPECT_EQ(0, shown.status);
    std::erase(shown.out, '\r');
    return shown.out;
}

std::size_t widestOf(const std::string& text)
{
    std::size_t widest = 0;
    for (const auto& line : linesOf(text))
        if (line.find("  orvandiag ") == std::string::npos) widest = std::max(widest, line.size());
    return widest;
}

TEST(Help, HasNoLineThatIsWiderThanATerminalUsuallyIs)
{
    for (const auto& command : everyCommand())
        for (const auto& line : linesOf(helpOf(command.path)))
            EXPECT_LE(line.size(), 80u) << command.path << ": " << line;
}

TEST(Help, FollowsTheWidthOfTheTerminal)
{
    const std::size_t narrow = widestOf(helpOnATerminal(60, "gather --help"));
    EXPECT_LE(narrow, 60u);
    EXPECT_GT(narrow, 50u);
    const std::size_t wide = widestOf(helpOnATerminal(120, "gather --help"));
    EXPECT_LE(wide, 120u);
    EXPECT_GT(wide, 100u);
}

TEST(Help, SetsItsUsageOffByBlankLines)
{
    for (const auto& command : everyCommand()) {
        const std::string usage = "\n\nUsage: orvandiag" +
                                  (command.path.empty() ? "" : " " + command.path) +
                                  command.usage() + "\n\n";
        EXPECT_THAT(helpOf(command.path), HasSubstr(usage));
    }
}

TEST(Help, TellsTheOptionsOfEveryCommandWithEach)
{
    for (const auto& command : everyCommand())
        for (const char* option : {"\n  --site DIR ", "\n  --tool-folder DIR ", "\n  --json "})
            EXPECT_THAT(helpOf(command.path), HasSubstr(option)) << command.path;
}

TEST(Help, SaysInWordsWhatAValueMayBe)
{
    const std::string sample = helpOf("sample");
    EXPECT_THAT(sample, HasSubstr("the folder to make (required)\n"));
    EXPECT_THAT(sample, HasSubstr("default 60000)\n"));
    EXPECT_THAT(sample, HasSubstr("(100 to"));
    EXPECT_THAT(helpOf("read"), HasSubstr("auto, always or never"));
    EXPECT_THAT(helpOf("micro set"), HasSubstr("(may be repeated)\n"));
}

TEST(Help, SpeaksTheWordsOfTheProgramAlone)
{
    for (const auto& command : everyCommand()) {
        const std::string help = helpOf(command.path);
        for (const char* word : {"SUBCOMMAND", "Subcommand", "Positionals", "REQUIRED", "UINT",
                                 "TEXT", "and exit", " in [", ":{"})
            EXPECT_THAT(help, Not(HasSubstr(word))) << command.path;
    }
}

} // namespace
