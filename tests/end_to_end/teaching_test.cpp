#include "end_to_end/program.h"
#include "support/places.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <sstream>

#include <unistd.h>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

using Words = std::vector<std::string>;

std::string contentOf(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file) << path;
    return {std::istreambuf_iterator<char>(file), {}};
}

/// The names of the commands that `--help` lists.
Words commands()
{
    Words names;
    std::istringstream help(orvandiag({"--help"}).out);
    bool listed = false;
    for (std::string line; std::getline(help, line);) {
        if (line == "Commands:") {
            listed = true;
        } else if (line.empty()) {
            listed = false;
        } else if (listed && line[2] != ' ') {
            names.push_back(line.substr(2, line.find(' ', 2) - 2));
        }
    }
    EXPECT_GT(names.size(), 10u);
    return names;
}

/// What bash offers for the last of the words on the line.
Words completed(const Words& line)
{
    std::string script =
        "source <(" + std::string(built::orvandiag) + " completion bash)\nCOMP_WORDS=(orvandiag";
    for (const auto& word : line) script += " '" + word + "'";
    script += ")\nCOMP_CWORD=" + std::to_string(line.size()) +
              "\n_orvandiag\nprintf '%s\\n' \"${COMPREPLY[@]}\"\n";
    const Outcome shell = runProgram({"bash", "--norc", "-c", script}, "/");
    EXPECT_EQ(0, shell.status);
    EXPECT_EQ("", shell.err);
    Words offered;
    std::istringstream lines(shell.out);
    for (std::string word; std::getline(lines, word);)
        if (!word.empty()) offered.push_back(word);
    return offered;
}

TEST(BashCompletion, OffersEveryCommand)
{
    const Words offered = completed({""});
    for (const auto& command : commands())
        EXPECT_THAT(offered, testing::Contains(command)) << command;
    EXPECT_THAT(offered, Not(testing::Contains("man")));
}

TEST(BashCompletion, FollowsTheCommandLine)
{
    struct Case {
        const char* because;
        Words line;
        Words offered;
    };
    const Case cases[] = {
        {"a command by its beginning", {"ga"}, {"gather"}},
        {"its own commands", {"gather", "st"}, {"standard"}},
        {"options of a command below", {"gather", "standard", "--t"}, {"--to", "--tool-folder"}},
        {"options before the command are passed over", {"--site", "reset", "gath"}, {"gather"}},
        {"global options stand behind a command too", {"status", "--js"}, {"--json"}},
        {"a value of a few words", {"sample", "x", "--fields", "ex"}, {"extended"}},
        {"a value that nobody knows", {"gather", "frame", "--hours", ""}, {}},
        {"a folder", {"--site", "/us"}, {"/usr"}},
        {"a folder as an argument", {"sample", "/us"}, {"/usr"}},
        {"nothing begins so", {"xyz"}, {}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_EQ(c.offered, completed(c.line));
    }
}

TEST(ManualPage, HasAPageOfTheTextsOfTheHelp)
{
    const Outcome page = orvandiag({"man"});
    EXPECT_EQ(0, page.status);
    EXPECT_THAT(page.out, StartsWith("'\\\" t\n.TH ORVANDIAG 1 "));
    Words sections;
    std::istringstream lines(page.out);
    for (std::string line; std::getline(lines, line);)
        if (line.rfind(".SH ", 0) == 0) sections.push_back(line.substr(4));
    EXPECT_THAT(sections, ElementsAre("NAME", "SYNOPSIS", "DESCRIPTION", "OPTIONS", "COMMANDS",
                                      "\"EXIT STATUS\"", "NOTES"));
    EXPECT_THAT(page.out, HasSubstr("orvandiag \\- diagnose an Orvan voice\\-messaging server\n"));
    EXPECT_THAT(page.out, HasSubstr(".TS\nl l.\n0\tdone\n1\tthe command could not do it\n"
                                    "2\twrong usage\n.TE\n"));
    EXPECT_THAT(page.out, HasSubstr("\\(aqD:\\eOrvanLogs\\(aq")) << "a backslash is a letter";
}

TEST(ManualPage, HasEveryCommandAndNoHiddenOne)
{
    const std::string page = orvandiag({"man"}).out;
    for (const auto& command : commands()) {
        std::string escaped = command;
        if (const auto dash = escaped.find('-'); dash != std::string::npos)
            escaped.insert(dash, "\\");
        EXPECT_THAT(page, HasSubstr(".SS \"" + escaped)) << command;
    }
    EXPECT_THAT(page, Not(HasSubstr(".SS \"man")));
    EXPECT_THAT(orvandiag({"--help"}).out, Not(HasSubstr("manual page")));
}

TEST(HiddenOptions, AreTakenAndToldNowhere)
{
    EXPECT_EQ(0, orvandiag({"--development-host", "man"}).status);
    for (const Words& teaching : {Words{"--help"}, {"man"}, {"completion", "bash"}}) {
        const std::string told = orvandiag(teaching).out;
        EXPECT_THAT(told, testing::ContainsRegex("json")) << "what all of them tell";
        EXPECT_THAT(told, Not(testing::ContainsRegex("development"))) << teaching.back();
    }
}

TEST(WrongUsage, NamesTheUnknownCommandAndTheHelpThatTellsMore)
{
    const struct {
        Words words;
        const char* told;
    } cases[] = {
        {{"statsu"}, "no command \"statsu\"; did you mean status? (see orvandiag --help)"},
        {{"gather", "frames"},
         "no command \"frames\"; did you mean frame? (see orvandiag gather --help)"},
        {{"--jsn"}, "no option \"--jsn\"; did you mean --json? (see orvandiag --help)"},
        {{"gather"},
         "name a command, such as standard, logs or frame (see orvandiag gather --help)"},
        {{"logs"}, "logs needs a PROCESS, or --all (see orvandiag logs --help)"},
        {{"logs", "--all", "KoCSMgr"},
         "logs takes a PROCESS or --all, not both (see orvandiag logs --help)"},
        {{"diff", "a"}, "SITE_B is required (see orvandiag diff --help)"},
        {{"gather", "frame", "--from", "today"},
         "--from needs an end: add --to-time, such as --to-time now, or --hours (see orvandiag "
         "gather frame --help)"},
        {{"gather", "frame", "--hours", "3"},
         "--hours needs a --from; for the hours until now there is --last 3h (see orvandiag gather "
         "frame --help)"},
        {{"macro", "set"}, "macro set needs an --on or an --off (see orvandiag macro set --help)"},
    };
    for (const auto& c : cases) {
        const Outcome refused = orvandiag(c.words);
        EXPECT_EQ(2, refused.status);
        EXPECT_EQ("orvandiag: " + std::string(c.told) + "\n", refused.err);
    }
}

TEST(WrongUsage, WithoutACommandTellsTheCommandsThatOneStartsWith)
{
    const Outcome refused = orvandiag({});
    EXPECT_EQ(2, refused.status);
    EXPECT_EQ("", refused.out);
    EXPECT_THAT(refused.err, StartsWith("orvandiag: name a command (see orvandiag --help)\n\n"
                                        "Usage: orvandiag [OPTIONS] COMMAND [ARGUMENTS]\n\n"));
    Words named;
    std::istringstream lines(refused.err);
    for (std::string line; std::getline(lines, line);)
        if (line.rfind("  ", 0) == 0) named.push_back(line.substr(2, line.find(' ', 2) - 2));
    EXPECT_THAT(named, ElementsAre("sample", "status", "read", "macro", "gather"));
    EXPECT_EQ(refused.err, orvandiag({"--json"}).err);
}

TEST(WrongUsage, HelpAndVersionOfWhatIsNoCommandAreRefused)
{
    for (const char* option : {"--help", "-h", "--version"}) {
        const Outcome refused = orvandiag({"statsu", option});
        EXPECT_EQ(2, refused.status);
        EXPECT_EQ("", refused.out);
        EXPECT_EQ("orvandiag: no command \"statsu\"; did you mean status? (see orvandiag --help)\n",
                  refused.err);
    }
}

TEST(HelpCommand, ShowsTheHelpThatTheOptionShows)
{
    EXPECT_EQ(orvandiag({"--help"}).out, orvandiag({"help"}).out);
    Words all = commands();
    all.insert(all.end(), {"gather frame", "macro set", "man"});
    for (const std::string& command : all) {
        SCOPED_TRACE(command);
        Words words = {"help"};
        std::istringstream parts(command);
        for (std::string part; parts >> part;) words.push_back(part);
        const Outcome told = orvandiag(words);
        words.erase(words.begin());
        words.emplace_back("--help");
        EXPECT_EQ(0, told.status);
        EXPECT_EQ(orvandiag(words).out, told.out);
        EXPECT_NE("", told.out);
    }
}

TEST(HelpCommand, IsAJsonValueWhereOneIsAskedFor)
{
    EXPECT_EQ(orvandiag({"gather", "frame", "--help"}).out,
              orvandiag({"--json", "help", "gather", "frame"}).json()["help"]);
}

TEST(HelpCommand, RefusesWhatIsNoCommand)
{
    const struct {
        Words words;
        const char* told;
    } cases[] = {
        {{"help", "statsu"}, "no command \"statsu\"; did you mean status? (see orvandiag --help)"},
        {{"help", "gather", "frames"},
         "no command \"frames\"; did you mean frame? (see orvandiag gather --help)"},
        {{"help", "status", "x"}, "unexpected word \"x\" (see orvandiag status --help)"},
    };
    for (const auto& c : cases) {
        const Outcome refused = orvandiag(c.words);
        EXPECT_EQ(2, refused.status);
        EXPECT_EQ("", refused.out);
        EXPECT_EQ("orvandiag: " + std::string(c.told) + "\n", refused.err);
    }
}

TEST(Help, SetsWhatAProgramIsForOffFromItsUsage)
{
    EXPECT_THAT(orvandiag({"--help"}).out, HasSubstr("\n  orvandiag status\n\nUsage: orvandiag "));
    EXPECT_THAT(orvandiag({"read", "--help"}).out,
                HasSubstr("Show the rows of logs, or count them\n\nUsage: orvandiag read "));
}

TEST(Help, ExamplesNameWhatTheSampleHas)
{
    const auto folder = std::filesystem::temp_directory_path() /
                        ("orvandiag-examples-" + std::to_string(::getpid()));
    const std::string site = folder.string();
    ASSERT_EQ(0, orvandiag({"sample", site}).status);
    const std::string logs = orvandiag({"--site", site, "tree"}).out;
    const std::string traces = orvandiag({"--site", site, "macro"}).out;
    std::filesystem::remove_all(folder);
    const struct {
        Words command;
        std::regex example;
        const std::string& there;
    } cases[] = {
        {{"read", "--help"}, std::regex("read (diag_[^ ]*)"), logs},
        {{"gather", "--help"}, std::regex("--log (diag_[^ ]*)"), logs},
        {{"macro", "--help"}, std::regex("--on \"([^\"]*)\""), traces},
    };
    for (const auto& c : cases) {
        const std::string help = orvandiag(c.command).out;
        std::smatch found;
        ASSERT_TRUE(std::regex_search(help, found, c.example)) << help;
        EXPECT_THAT(c.there, HasSubstr(found.str(1)));
    }
}

TEST(ManualPage, NoLineOfTextIsTakenForARequest)
{
    std::istringstream lines(orvandiag({"man"}).out);
    const Words requests = {".TH", ".SH", ".SS", ".TP", ".PP", ".RS",
                            ".RE", ".nf", ".fi", ".TS", ".TE"};
    std::string line;
    std::getline(lines, line);
    while (std::getline(lines, line)) {
        EXPECT_NE('\'', line.empty() ? ' ' : line[0]) << line;
        if (line.empty() || line[0] != '.') continue;
        EXPECT_THAT(requests, testing::Contains(line.substr(0, 3))) << line;
    }
}

TEST(ManualPage, StandsWithTheCompletionWhereTheyAreInstalledFrom)
{
    const std::filesystem::path share = std::filesystem::path(built::folder) / "share";
    EXPECT_EQ(orvandiag({"man"}).out, contentOf(share / "man/man1/orvandiag.1"));
    EXPECT_EQ(orvandiag({"completion", "bash"}).out,
              contentOf(share / "bash-completion/completions/orvandiag"));
}

} // namespace
