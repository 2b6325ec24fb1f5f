#include "end_to_end/program.h"

#include <gmock/gmock.h>

#include <sstream>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

using Words = std::vector<std::string>;

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

TEST(HiddenOptions, AreTakenAndToldNowhere)
{
    EXPECT_EQ(0, orvandiag({"--development-host", "man"}).status);
    for (const Words& teaching : {Words{"--help"}, {"man"}, {"man", "gather"}}) {
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

} // namespace
