#include "end_to_end/program.h"
#include "support/places.h"
#include "support/temporary_folder.h"

#include "hosts/cli/manual/command_tree.h"
#include "hosts/cli/program.h"

#include <gmock/gmock.h>

#include <CLI/CLI.hpp>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

namespace {

namespace fs = std::filesystem;

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsSupersetOf;
using testing::Not;

using Words = std::vector<std::string>;

std::string contentOf(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file) << path;
    return {std::istreambuf_iterator<char>(file), {}};
}

Words sectionsOf(const std::string& page)
{
    Words sections;
    std::istringstream lines(page);
    for (std::string line; std::getline(lines, line);)
        if (line.rfind(".SH ", 0) == 0) sections.push_back(line.substr(5, line.size() - 6));
    return sections;
}

cli::DescribedCommand program()
{
    cli::GlobalOptions options;
    const auto commands = cli::allCommands();
    return cli::describeCommands(*cli::describeCommandLine(options, commands));
}

/// The build's pages, by their files' names.
std::vector<fs::path> pages()
{
    std::vector<fs::path> found;
    for (const auto& entry : fs::directory_iterator(fs::path(built::folder) / "share/man/man1"))
        found.push_back(entry.path());
    return found;
}

TEST(ManualPages, TellOfTheProgramAndItsSurroundings)
{
    const std::string page = orvandiag({"man"}).out;
    EXPECT_THAT(sectionsOf(page),
                ElementsAre("NAME", "SYNOPSIS", "DESCRIPTION", "COMMANDS", "OPTIONS", "ENVIRONMENT",
                            "FILES", "EXIT STATUS", "EXAMPLES", "SEE ALSO"));
    for (const char* told : {"\norvandiag \\- diagnose an Orvan voice\\-messaging server\n",
                             "\\fBORVAN_SITE\\fR", "\\fBNO_COLOR\\fR", "\\fBsite.ini\\fR",
                             "\n.BR orvandiag\\-gather (1),\n", "\n.BR orvandiag\\-viewer (1)\n"})
        EXPECT_THAT(page, HasSubstr(told));
}

TEST(ManualPages, AreOneForEachCommandAndNoneForAHiddenOne)
{
    Words names = {"orvandiag.1"};
    const auto described = program();
    for (const auto& command : described.commands)
        names.push_back("orvandiag-" + command.path + ".1");
    Words built;
    for (const auto& page : pages()) built.push_back(page.filename());
    EXPECT_THAT(built, testing::UnorderedElementsAreArray(names));
}

TEST(ManualPages, HaveEveryOptionAndExampleOfTheHelp)
{
    const std::string page = orvandiag({"man", "gather"}).out;
    EXPECT_THAT(sectionsOf(page),
                ElementsAre("NAME", "SYNOPSIS", "DESCRIPTION", "OPTIONS", "COMMANDS",
                            "OPTIONS OF EVERY COMMAND", "EXIT STATUS", "EXAMPLES", "SEE ALSO"));
    for (const char* told : {"\\fB\\-\\-event\\-log\\fR \\fINAME\\fR", "\\fB\\-\\-site\\fR",
                             "\norvandiag gather standard \\-\\-to case\\-4711\n"})
        EXPECT_THAT(page, HasSubstr(told));
    EXPECT_THAT(orvandiag({"man", "settings"}).out, HasSubstr("\\(aqD:\\eOrvanLogs\\(aq"));
}

TEST(ManualPages, AreWhatTheProgramTellsInThisBuild)
{
    for (const auto& page : pages()) {
        Words words = {"man"};
        if (page.stem() != "orvandiag")
            words.push_back(page.stem().string().substr(std::string("orvandiag-").size()));
        EXPECT_EQ(orvandiag(words).out, contentOf(page)) << page;
    }
}

TEST(ManualPages, HaveNothingThatAReaderOfThemWarnsOf)
{
    std::vector<fs::path> all = pages();
    for (const char* name : {"orvandiag-console.1", "orvandiag-viewer.1"})
        all.push_back(fs::path(checkout::folder) / "packaging" / name);
    ASSERT_GT(all.size(), 10u);
    for (const auto& page : all) {
        const Outcome lint = runProgram({"mandoc", "-T", "lint", page.string()});
        EXPECT_EQ(0, lint.status) << page;
        EXPECT_EQ("", lint.out + lint.err) << page;
    }
}

TEST(ManualPages, FaultsAreSeen)
{
    const TemporaryFolder folder;
    std::ofstream(fs::path(folder.path()) / "bad.1") << ".TH BAD 1\n.SH NAME\nbad \\- x\n.XY\n";
    const Outcome lint =
        runProgram({"mandoc", "-T", "lint", (fs::path(folder.path()) / "bad.1").string()});
    EXPECT_NE("", lint.out + lint.err);
}

TEST(ManualPages, ShowTheirExamplesAsTheyAreTyped)
{
    const fs::path page = fs::path(built::folder) / "share/man/man1/orvandiag-settings.1";
    const Outcome shown = runProgram({"mandoc", "-T", "ascii", page.string()});
    EXPECT_THAT(shown.out, HasSubstr("orvandiag settings --log-folder 'D:\\OrvanLogs'\n"));
}

TEST(ManualPages, AreRefusedForWhatIsNoCommand)
{
    const Outcome refused = orvandiag({"man", "gathers"});
    EXPECT_EQ(2, refused.status);
    EXPECT_EQ("", refused.out);
}

TEST(CompletionScripts, StandWhereTheyAreInstalledFrom)
{
    const fs::path share = fs::path(built::folder) / "share";
    EXPECT_EQ(orvandiag({"completion", "bash"}).out,
              contentOf(share / "bash-completion/completions/orvandiag"));
    EXPECT_EQ(orvandiag({"completion", "zsh"}).out,
              contentOf(share / "zsh/site-functions/_orvandiag"));
    EXPECT_EQ(orvandiag({"completion", "fish"}).out,
              contentOf(share / "fish/vendor_completions.d/orvandiag.fish"));
}

} // namespace
