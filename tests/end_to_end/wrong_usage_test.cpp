#include "end_to_end/sample_site.h"
#include "end_to_end/wrong_usage_table.h"
#include "hosts/cli/manual/command_tree.h"
#include "hosts/cli/program.h"

#include <gmock/gmock.h>

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <map>
#include <sstream>

namespace {

using Words = std::vector<std::string>;

cli::DescribedCommand program()
{
    cli::GlobalOptions options;
    const auto commands = cli::allCommands();
    return cli::describeCommands(*cli::describeCommandLine(options, commands));
}

/// Every command by its path; the program itself has the empty one.
std::map<std::string, cli::DescribedCommand> allCommands()
{
    std::map<std::string, cli::DescribedCommand> all;
    std::vector<cli::DescribedCommand> open = {program()};
    while (!open.empty()) {
        const cli::DescribedCommand command = open.back();
        open.pop_back();
        open.insert(open.end(), command.commands.begin(), command.commands.end());
        all[command.path] = command;
    }
    EXPECT_GT(all.size(), 20u);
    return all;
}

std::string callOf(const std::string& path)
{
    return path.empty() ? "orvandiag" : "orvandiag " + path;
}

/// The command whose help a refusal names, by its path; nothing where it names none.
std::string helpNamedBy(const WrongCall& call)
{
    const std::string before = "(see ";
    const std::string behind = " --help)";
    const auto start = call.message.rfind(before);
    const auto end = call.message.find(behind, start == std::string::npos ? 0 : start);
    if (start == std::string::npos || end == std::string::npos) return {};
    return call.message.substr(start + before.size(), end - start - before.size());
}

/// The messages that the table has for a command.
Words messagesOf(const std::string& path)
{
    Words messages;
    for (const WrongCall& call : wrongCalls()) {
        const std::string named = helpNamedBy(call);
        if (named == callOf(path)) messages.push_back(call.message);
    }
    return messages;
}

/// What is told where an option is used in the one way in which each can be used wrongly: a flag
/// with a value, any other without one.
std::string refusalOf(const cli::DescribedOption& option)
{
    const auto longName =
        std::find_if(option.names.begin(), option.names.end(),
                     [](const std::string& name) { return name.rfind("--", 0) == 0; });
    const std::string name = longName == option.names.end() ? option.names.front() : *longName;
    return name +
           (option.argument.empty() ? " takes no value" : " needs a value: " + option.argument);
}

/// Those that show something and end the program, whatever value is put behind them.
bool endsTheProgram(const cli::DescribedOption& option)
{
    const auto has = [&](const char* name) {
        return std::find(option.names.begin(), option.names.end(), name) != option.names.end();
    };
    return has("--help") || has("--version");
}

struct WrongUsageTable : SampleSite {
    WrongUsageTable() { ::setenv("ORVAN_SITE", site.c_str(), 1); }
    ~WrongUsageTable() override { ::unsetenv("ORVAN_SITE"); }
};

TEST_F(WrongUsageTable, EachCallIsToldWhatStandsThereAndNothingChanges)
{
    const std::string before = fingerprint();
    const auto calls = wrongCalls();
    EXPECT_GT(calls.size(), 200u);
    for (const WrongCall& call : calls) {
        SCOPED_TRACE(call.line);
        const Outcome refused = orvandiag(call.words, folder.string());
        EXPECT_EQ(call.status, refused.status);
        EXPECT_EQ("", refused.out);
        EXPECT_EQ("orvandiag: " + call.message + "\n", refused.err);
    }
    EXPECT_EQ(before, fingerprint());
    EXPECT_EQ(1, std::distance(std::filesystem::directory_iterator(folder), {}))
        << "nothing was made beside the site";
}

TEST(WrongUsage, NamesTheHelpThatTellsMoreAndNothingElseDoes)
{
    for (const WrongCall& call : wrongCalls()) {
        SCOPED_TRACE(call.line);
        EXPECT_TRUE(call.status == 1 || call.status == 2);
        EXPECT_EQ(call.status == 2, !helpNamedBy(call).empty());
    }
}

TEST(WrongUsage, OfEveryCommandStandsInTheTable)
{
    for (const auto& [path, command] : allCommands())
        EXPECT_THAT(messagesOf(path),
                    testing::Contains(testing::AnyOf(testing::HasSubstr("unexpected word"),
                                                     testing::HasSubstr("no command"),
                                                     testing::HasSubstr("no option"))))
            << "a word too many for " << callOf(path);
}

TEST(WrongUsage, OfEveryOptionStandsInTheTable)
{
    for (const auto& [path, command] : allCommands()) {
        const Words messages = messagesOf(path);
        // Those of the program are options of each command, and taken there by one.
        const Words& wherever = path.empty() ? messagesOf("status") : messages;
        for (const cli::DescribedOption& option : command.options) {
            if (option.isArgument() || endsTheProgram(option)) continue;
            EXPECT_THAT(wherever, testing::Contains(testing::StartsWith(refusalOf(option) + " (")))
                << callOf(path);
        }
    }
}

TEST(WrongUsage, OfEveryRequiredArgumentAndEveryChoiceStandsInTheTable)
{
    for (const auto& [path, command] : allCommands()) {
        for (const cli::DescribedOption& option : command.options) {
            if (option.isArgument() && option.required) {
                EXPECT_THAT(messagesOf(path), testing::Contains(testing::StartsWith(
                                                  option.argument + " is required")));
            } else if (!option.choices.empty()) {
                EXPECT_THAT(messagesOf(path),
                            testing::Contains(testing::StartsWith(option.names.front() + " takes " +
                                                                  option.choices.front())));
            }
        }
    }
}

TEST(WrongUsage, AnUnknownOptionIsToldByEveryCommand)
{
    for (const auto& [path, command] : allCommands()) {
        std::istringstream stream(path);
        Words words{std::istream_iterator<std::string>(stream), {}};
        words.emplace_back("--qqqqq");
        const Outcome refused = orvandiag(words);
        EXPECT_EQ(2, refused.status);
        EXPECT_EQ("", refused.out);
        EXPECT_EQ("orvandiag: no option \"--qqqqq\" (see " + callOf(path) + " --help)\n",
                  refused.err);
    }
}

} // namespace
