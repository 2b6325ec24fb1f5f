#include "end_to_end/program.h"
#include "support/places.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <vector>

namespace {

/// A command as a page of the guide tells it, and the lines that it is told to show.
struct ToldCommand {
    std::string words;
    std::vector<std::string> shown;
};

std::string withoutLastBlanks(std::string line)
{
    line.erase(line.find_last_not_of(' ') + 1);
    return line;
}

/// The commands of the guide's page of that title, in their order.
std::vector<ToldCommand> commandsOfPage(const std::string& title)
{
    std::ifstream guide(std::string(checkout::folder) + "/docs/user-guide.md");
    EXPECT_TRUE(guide);
    const std::string codeIndent = "    ";
    std::vector<ToldCommand> commands;
    bool onPage = false;
    for (std::string line; std::getline(guide, line);) {
        if (line.starts_with("## ")) onPage = line == "## " + title;
        if (!onPage || !line.starts_with(codeIndent)) continue;
        const std::string code = line.substr(codeIndent.size());
        if (code.starts_with("orvandiag ") || code.starts_with("export ")) {
            commands.push_back({code, {}});
        } else if (!commands.empty()) {
            commands.back().shown.push_back(code);
        } else {
            ADD_FAILURE() << "shown by no command: " << code;
        }
    }
    return commands;
}

/// Whether lines occur in a text one behind the other; blanks at their ends don't matter.
testing::AssertionResult has(const std::string& text, const std::vector<std::string>& lines)
{
    std::istringstream stream(text);
    auto wanted = lines.begin();
    for (std::string line; wanted != lines.end() && std::getline(stream, line);)
        if (withoutLastBlanks(line) == *wanted) ++wanted;
    if (wanted == lines.end()) return testing::AssertionSuccess();
    return testing::AssertionFailure() << "\"" << *wanted << "\" is not in its place in\n" << text;
}

TEST(Guide, LeadsFromAComplaintToItsCauseAsItTells)
{
    const TemporaryFolder folder;
    const std::string programs = std::filesystem::path(built::orvandiag).parent_path().string();
    const auto commands = commandsOfPage("From a complaint to its cause");
    ASSERT_GE(commands.size(), 9u);
    std::string session = "set -e; PATH='" + programs + "':$PATH; ";
    std::size_t lines = 0;
    for (const auto& command : commands) {
        if (command.words.starts_with("export ")) {
            session += command.words + "; ";
            continue;
        }
        const Outcome run =
            runProgram({"bash", "--norc", "-c", session + command.words}, folder.path());
        EXPECT_EQ(0, run.status) << command.words << "\n" << run.err;
        EXPECT_TRUE(has(run.out, command.shown)) << command.words;
        EXPECT_NE("", run.out) << command.words;
        lines += command.shown.size();
    }
    EXPECT_GT(lines, 12u) << "what the guide shows was compared";
}

} // namespace
