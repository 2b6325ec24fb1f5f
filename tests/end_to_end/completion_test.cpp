#include "end_to_end/program.h"
#include "end_to_end/sample_site.h"
#include "support/places.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

using Words = std::vector<std::string>;

Words rowsOf(const std::string& text)
{
    Words lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) lines.push_back(line);
    return lines;
}

/// A text as every one of the shells takes it for one word.
std::string quoted(const std::string& text)
{
    std::string word = "'";
    for (const char letter : text)
        word += letter == '\'' ? std::string("'\\''") : std::string(1, letter);
    return word + "'";
}

/// Completion on a sample server, in the shells themselves.
class Completion : public SampleSite {
protected:
    /// What the program answers to a shell: the way, and the candidates behind it.
    Words answer(const std::string& line) const
    {
        const Outcome told = run({"complete", "zsh", "--", line});
        EXPECT_EQ(0, told.status) << line;
        EXPECT_EQ("", told.err) << line;
        return rowsOf(told.out);
    }

    Words candidates(const std::string& line) const
    {
        Words words = answer(line);
        if (!words.empty()) words.erase(words.begin());
        return words;
    }

    /// Runs a script of a shell, whose programs are ours and whose site is the sample.
    Outcome inShell(const Words& shell, const std::string& script) const
    {
        const std::string programs = fs::path(built::orvandiag).parent_path();
        Words words = {"env", "ORVAN_SITE=" + site.string(), "HOME=" + folder.string(),
                       "PATH=" + programs + ":/usr/bin:/bin"};
        words.insert(words.end(), shell.begin(), shell.end());
        words.push_back(script);
        return runProgram(words, folder);
    }

    /// What bash is given for a line, of which it replaces the end.
    Words inBash(const std::string& line, const std::string& replaced) const
    {
        const Outcome shell =
            inShell({"bash", "--norc", "-c"},
                    "source <(orvandiag completion bash); COMP_LINE=" + quoted(line) +
                        "; COMP_POINT=${#COMP_LINE}; _orvandiag orvandiag " + quoted(replaced) +
                        "; printf '%s\\n' \"${COMPREPLY[@]}\"");
        EXPECT_EQ("", shell.err);
        return rowsOf(shell.out);
    }

    Words inFish(const std::string& line) const
    {
        const Outcome shell =
            inShell({"fish", "--no-config", "-c"},
                    "orvandiag completion fish | source; complete -C " + quoted(line));
        EXPECT_EQ("", shell.err);
        return rowsOf(shell.out);
    }

    /// The command line as a shell on a terminal runs it after these keys, with which it is typed;
    /// the shell's trace of it.
    std::string typed(const std::string& shell, const std::string& start,
                      const std::string& keys) const
    {
        const std::string all = start + "\nset -x\n" + keys + " --help\nexit\n";
        const Outcome run = inShell({"bash", "--norc", "-c"}, "printf '%s' " + quoted(all) +
                                                                  " | timeout 60 script -qec '" +
                                                                  shell + "' /dev/null");
        for (const auto& line : rowsOf(run.out)) {
            const auto trace = line.find("orvandiag ");
            const auto plus = line.find("+");
            if (plus != std::string::npos && plus < trace &&
                line.find(" --help\r") != std::string::npos &&
                line.find("\x1b[K") == std::string::npos)
                return line.substr(trace, line.find(" --help\r") - trace);
        }
        return "not run:\n" + run.out;
    }

    std::string typedInBash(const std::string& keys) const
    {
        return typed("bash --norc --noprofile -i", "source <(orvandiag completion bash)", keys);
    }

    std::string typedInZsh(const std::string& keys) const
    {
        return typed("zsh -f -i",
                     "autoload -Uz compinit; compinit -u -D; source <(orvandiag completion zsh)",
                     keys);
    }

    void addLog(const std::string& name) const { write(drive("KelmaOrvan/Logs/" + name), ""); }
};

TEST_F(Completion, OffersEveryCommandThatIsTold)
{
    const Words offered = candidates("orvandiag ");
    EXPECT_THAT(offered, testing::IsSupersetOf({"sample", "status", "read", "gather", "help"}));
    EXPECT_THAT(offered, Not(Contains("man")));
    EXPECT_THAT(offered, Not(Contains("complete")));
}

TEST_F(Completion, FollowsTheCommandLine)
{
    const struct {
        const char* because;
        const char* line;
        Words answered;
    } cases[] = {
        {"a command by its beginning", "orvandiag ga", {"words", "gather"}},
        {"in other letters", "orvandiag GA", {"words", "gather"}},
        {"its own commands", "orvandiag gather st", {"words", "standard"}},
        {"options of all commands, too",
         "orvandiag gather standard --t",
         {"words", "--to", "--tool-folder"}},
        {"options before the command are passed over",
         "orvandiag --site reset gath",
         {"words", "gather"}},
        {"an option that was given is not offered again",
         "orvandiag status --json --js",
         {"words"}},
        {"a value of a few words", "orvandiag sample x --fields ex", {"words", "extended"}},
        {"behind a sign", "orvandiag sample x --fields=ex", {"words", "--fields=extended"}},
        {"a value that nobody knows", "orvandiag gather frame --hours ", {"words"}},
        {"a folder", "orvandiag --site /us", {"folders"}},
        {"a folder as an argument", "orvandiag sample /us", {"folders"}},
        {"the last of several columns",
         "orvandiag read --columns moment,le",
         {"parts", "moment,level"}},
        {"a column to count by", "orvandiag read --count-by ca", {"words", "callId"}},
        {"nothing begins so", "orvandiag xyz", {"words"}},
        {"behind the end of options", "orvandiag logs -- --js", {"words"}},
        {"the last command of a line",
         "ls; A=b orvandiag reset && orvandiag ga",
         {"words", "gather"}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_EQ(c.answered, answer(c.line));
    }
}

TEST_F(Completion, OffersWhatTheServerHasNow)
{
    EXPECT_THAT(candidates("orvandiag logs KoC"), ElementsAre("KoCSMgr"));
    EXPECT_THAT(candidates("orvandiag read --process KoC"), ElementsAre("KoCSMgr"));
    EXPECT_THAT(candidates("orvandiag gather logs --log "), Contains(currentLog()));
    EXPECT_THAT(candidates("orvandiag read diag_"), Contains(currentLog()));
    EXPECT_THAT(candidates("orvandiag gather logs --event-log S"),
                ElementsAre("Security", "System"));
    EXPECT_THAT(candidates("orvandiag micro CallF"), ElementsAre("CallFlow"));
    EXPECT_THAT(candidates("orvandiag macro set --off 'Call Flow - Tr"),
                ElementsAre("Call Flow - Transfers"));
    EXPECT_THAT(candidates("orvandiag language F"), ElementsAre("FRA"));
    EXPECT_THAT(candidates("orvandiag event-language F"), ElementsAre("FRA"));
    addLog("diag_KoCSMgr_20250221_101010.txt");
    EXPECT_THAT(candidates("orvandiag read diag_KoCSMgr_20250221"),
                ElementsAre("diag_KoCSMgr_20250221_101010.txt"));
}

TEST_F(Completion, OffersAComponentAndThenItsLevels)
{
    EXPECT_EQ((Words{"parts", "CallFlow:"}), answer("orvandiag micro set --on CallF"));
    EXPECT_THAT(answer("orvandiag micro set --on CallFlow:"),
                testing::IsSupersetOf({"words", "CallFlow:7"}));
    EXPECT_EQ((Words{"words", "CallFlow:7"}), answer("orvandiag micro set --on A:1 CallFlow:7"));
}

TEST_F(Completion, LooksAtTheSiteThatTheLineNames)
{
    const Words elsewhere =
        rowsOf(runProgram({"env", "HOME=" + folder.string(), "ORVAN_SITE=/nowhere",
                           built::orvandiag, "complete", "zsh", "--",
                           "orvandiag --site ~/" + site.filename().string() + " logs KoC"})
                   .out);
    EXPECT_EQ((Words{"words", "KoCSMgr"}), elsewhere);
}

TEST_F(Completion, SaysNothingOfAServerThatCannotBeRead)
{
    write(site / "registry.reg", "damaged");
    EXPECT_EQ((Words{"words"}), answer("orvandiag logs "));
    fs::remove_all(site);
    EXPECT_EQ((Words{"words"}), answer("orvandiag logs "));
    EXPECT_EQ((Words{"words"}), answer("orvandiag macro set --on "));
}

TEST_F(Completion, SaysNothingOfSettingsThatAreWrong)
{
    fs::create_directory(folder / "orvandiag");
    write(folder / "orvandiag/config.toml", "nonsense\n");
    const Outcome told =
        runProgram({"env", "XDG_CONFIG_HOME=" + folder.string(), "ORVAN_SITE=" + site.string(),
                    built::orvandiag, "complete", "zsh", "--", "orvandiag logs "});
    EXPECT_EQ(0, told.status);
    EXPECT_EQ("", told.err);
    EXPECT_EQ("words\n", told.out);
    EXPECT_THAT(candidates("orvandiag gath"), ElementsAre("gather"));
}

TEST_F(Completion, LeavesTheServerAsItIs)
{
    const std::string before = fingerprint();
    const auto logs = toolLogs();
    for (const char* line : {"orvandiag logs ", "orvandiag macro set --on ", "orvandiag language ",
                             "orvandiag micro set --on CallFlow:", "orvandiag gather logs --log "})
        EXPECT_THAT(candidates(line), Not(IsEmpty())) << line;
    EXPECT_EQ(before, fingerprint());
    EXPECT_EQ(logs, toolLogs());
}

TEST_F(Completion, AsksNoDatabase)
{
    write(site / "OrvanDirDb.sqlite", "no database");
    EXPECT_THAT(candidates("orvandiag micro CallF"), ElementsAre("CallFlow"));
    EXPECT_THAT(candidates("orvandiag micro set --on CallFlow:7"), ElementsAre("CallFlow:7"));
}

TEST_F(Completion, LeavesOutWhatATerminalWouldNotShow)
{
    addLog("diag_KoCSMgr_\x1b[31m.txt");
    addLog("diag_KoCSMgr_line\nfeed.txt");
    addLog("diag_KoCSMgr_tab\t.txt");
    for (const auto& log : candidates("orvandiag read diag_KoCSMgr_"))
        EXPECT_THAT(log, testing::StartsWith("diag_KoCSMgr_2025"));
}

TEST_F(Completion, IsQuotedForBashAsTheLineIs)
{
    const struct {
        const char* line;
        const char* replaced;
        const char* offered;
    } cases[] = {
        {"orvandiag macro set --on Call\\ Flow\\ -\\ Tr", "Call\\ Flow\\ -\\ Tr",
         "Call\\ Flow\\ -\\ Transfers"},
        {"orvandiag macro set --on \"Call Flow - Tr", "Call Flow - Tr", "Call Flow - Transfers"},
        {"orvandiag macro set --on 'Call Flow - Tr", "Call Flow - Tr", "Call Flow - Transfers"},
        {"orvandiag micro set --on CallFlow:7", "7", "7"},
        {"orvandiag sample x --fields=ex", "ex", "extended"},
    };
    for (const auto& c : cases) EXPECT_THAT(inBash(c.line, c.replaced), ElementsAre(c.offered));
}

TEST_F(Completion, OffersFoldersAndFilesInBash)
{
    fs::create_directory(folder / "deep down");
    write(folder / "deep file", "");
    EXPECT_THAT(inBash("orvandiag sample deep", "deep"), ElementsAre("deep down"));
    EXPECT_THAT(inBash("orvandiag read deep", "deep"),
                testing::UnorderedElementsAre("deep down", "deep file"));
}

TEST_F(Completion, TypesInBashWhatTheProgramThenGets)
{
    EXPECT_EQ("orvandiag macro set --on 'Call Flow - Transfers'",
              typedInBash("orvandiag macro set --on \"Call Flow - Tr\t"));
    EXPECT_EQ("orvandiag macro set --on 'Call Flow - Transfers'",
              typedInBash("orvandiag macro set --on Call\\ Flow\\ -\\ Tr\t"));
    EXPECT_EQ("orvandiag micro set --on Conversation:3",
              typedInBash("orvandiag micro set --on Conv\t3"));
}

TEST_F(Completion, TypesInZshWhatTheProgramThenGets)
{
    EXPECT_EQ("orvandiag macro set --on 'Call Flow - Transfers'",
              typedInZsh("orvandiag macro set --on \"Call Flow - Tr\t"));
    EXPECT_EQ("orvandiag macro set --on 'Call Flow - Transfers'",
              typedInZsh("orvandiag macro set --on Call\\ Flow\\ -\\ Tr\t"));
    EXPECT_EQ("orvandiag micro set --on Conversation:3",
              typedInZsh("orvandiag micro set --on Conv\t3"));
    EXPECT_EQ("orvandiag logs KoTelephony", typedInZsh("orvandiag logs kotel\t"));
}

TEST_F(Completion, RunsNothingThatALogIsCalled)
{
    const std::string name = "diag_KoCSMgr_$(touch ran)`touch ran`; touch ran '\"x.txt";
    addLog(name);
    const std::string line = "orvandiag gather logs --log diag_KoCSMgr_";
    EXPECT_THAT(typedInBash(line + "\\$\t"), HasSubstr("--log 'diag_KoCSMgr_$(touch ran)`touch"));
    EXPECT_THAT(typedInBash(line + "\\$\\(\t"), HasSubstr("touch ran"));
    EXPECT_THAT(typedInZsh(line + "\\$\t"), HasSubstr("--log 'diag_KoCSMgr_$(touch ran)`touch"));
    EXPECT_THAT(inFish(line), Contains(name));
    EXPECT_FALSE(fs::exists(folder / "ran"));
}

TEST_F(Completion, RunsNothingThatStandsOnTheLine)
{
    EXPECT_THAT(answer("orvandiag --site $(touch ran) logs "), ElementsAre("words"));
    inBash("orvandiag --site $(touch ran) logs ", "");
    EXPECT_FALSE(fs::exists(folder / "ran"));
}

TEST_F(Completion, OffersTheSameInFish)
{
    EXPECT_THAT(inFish("orvandiag macro set --on \"Call Flow - Tr"),
                ElementsAre("Call Flow - Transfers"));
    EXPECT_THAT(inFish("orvandiag micro set --on Conv"), ElementsAre("Conversation:"));
    EXPECT_THAT(inFish("orvandiag micro set --on CallFlow:7"), ElementsAre("CallFlow:7"));
    EXPECT_THAT(inFish("orvandiag logs KoT"), ElementsAre("KoTelephony"));
    EXPECT_THAT(inFish("orvandiag sample /us"), Contains(HasSubstr("/usr/")));
    EXPECT_THAT(inFish("orvandiag read diag_KoCSMgr_"), Contains(currentLog()));
}

} // namespace
