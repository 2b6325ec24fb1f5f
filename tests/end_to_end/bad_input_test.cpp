#include "end_to_end/sample_site.h"
#include "support/places.h"

#include <gmock/gmock.h>

namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using Words = std::vector<std::string>;

struct BadInput : SampleSite {
    void expectOneLine(const Outcome& refused, int status, const std::string& part)
    {
        EXPECT_EQ(status, refused.status);
        EXPECT_EQ(1, std::count(refused.err.begin(), refused.err.end(), '\n')) << refused.err;
        EXPECT_THAT(refused.err, testing::StartsWith("orvandiag: "));
        EXPECT_THAT(refused.err, HasSubstr(part));
        EXPECT_EQ("", refused.out);
    }

    /// The same, with messages of the tool before the line.
    void expectLastLine(Outcome refused, int status, const std::string& part)
    {
        const auto end = refused.err.rfind('\n', refused.err.size() - 2);
        if (end != std::string::npos) refused.err.erase(0, end + 1);
        expectOneLine(refused, status, part);
    }
};

TEST_F(BadInput, AFolderThatIsNoSiteIsRefused)
{
    for (const auto& place : {folder / "nowhere", folder}) {
        expectOneLine(orvandiag({"--site", place.string(), "status"}), 1, "is not a site");
        EXPECT_FALSE(fs::exists(folder / "drive_c"));
    }
}

TEST_F(BadInput, AFolderWithoutANameIsRefused)
{
    expectOneLine(orvandiag({"--site", "", "status"}), 1, "the folder of the site has no name");
    expectOneLine(orvandiag({"sample", ""}), 1, "the folder to make has no name");
}

TEST_F(BadInput, ADamagedRegistryIsRefusedWithItsLineAndLeftAlone)
{
    const std::string damaged =
        "Windows Registry Editor Version 5.00\n\n[HKEY_LOCAL_MACHINE\\Software]\n"
        "\"a\"=dword:xyz\n";
    write(site / "registry.reg", damaged);
    expectOneLine(run({"status"}), 1, "registry.reg line 4");
    EXPECT_EQ(damaged, read(site / "registry.reg"));
}

TEST_F(BadInput, ADamagedSiteFileIsRefusedWithItsLine)
{
    write(site / "site.ini", "[site]\ncomputer = A\ncodePage = many\n");
    expectOneLine(run({"status"}), 1, "site.ini line 3");
}

TEST_F(BadInput, AnUnknownProcessOrLogIsRefusedAndNothingChanges)
{
    const std::string before = fingerprint();
    const struct {
        const char* because;
        std::vector<std::string> words;
        const char* told;
    } cases[] = {
        {"no such process", {"logs", "KoNothing"}, "KoNothing"},
        {"no process at all", {"logs", ""}, "no process \"\""},
        {"a key below a process", {"logs", "KoCSMgr\\CurrentLogFile"}, "no process"},
        {"no such log", {"read", "diag_KoNothing_1.txt"}, "can not be found"},
        {"no log at all", {"read", ""}, "can not be found"},
        {"the name of a node of the tree", {"read", "Static Node"}, "can not be found"},
        {"no such folder", {"read", "C:\\KelmaOrvan\\Lags"}, "can not be found"},
        {"a device", {"read", "/dev/zero"}, "can not be found"},
        {"above the drive", {"read", "C:\\..\\..\\..\\etc\\passwd"}, "can not be found"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        expectOneLine(run(c.words), 1, c.told);
    }
    EXPECT_EQ(before, fingerprint());
}

TEST_F(BadInput, ACommandThatFailsInItsWorkStillUnloadsTheTool)
{
    fs::remove(site / "OrvanDirDb.sqlite");
    expectOneLine(run({"settings", "--max-megabytes", "500"}), 1, "can't be read");
    const std::string events = read(site / "eventlogs/Application.jsonl");
    EXPECT_NE(std::string::npos, events.rfind("10003"));
}

TEST_F(BadInput, AResultThatCantBeWrittenIsAFailure)
{
    for (const std::string& command : {std::string("status"), "read " + currentLog()}) {
        SCOPED_TRACE(command);
        expectOneLine(runProgram({"bash", "-c",
                                  std::string("exec '") + built::orvandiag + "' --site '" +
                                      site.string() + "' " + command + " >/dev/full"}),
                      1, "cannot write the result");
    }
}

TEST_F(BadInput, HelpAndVersionThatCantBeWrittenAreFailures)
{
    for (const std::string& asked :
         {std::string("--help"), std::string("gather frame --help"), std::string("--version"),
          std::string("man"), std::string("help gather"), std::string("completion bash")}) {
        SCOPED_TRACE(asked);
        expectOneLine(
            runProgram({"bash", "-c",
                        std::string("exec '") + built::orvandiag + "' " + asked + " >/dev/full"}),
            1, "cannot write the result");
    }
}

TEST_F(BadInput, APathThatIsTooLongIsToldInWordsAndNotAtItsLength)
{
    const std::string name(300, 'a');
    const std::string path = "/" + std::string(5000, 'a');
    const std::string shown = "/" + std::string(59, 'a') + "..." + std::string(20, 'a');
    const std::string told = " has too long a path, 5,001 bytes: " + shown;
    const std::string before = fingerprint();
    const struct {
        Words words;
        std::string told;
    } cases[] = {
        {{"--site", path, "status"}, "the site" + told},
        {{"--tool-folder", path, "--site", site.string(), "status"}, "the tool folder" + told},
        {{"sample", path}, "the folder to make" + told},
        {{"sample", name}, "the folder to make has too long a path, 300 bytes: "},
        {{"--site", site.string(), "gather", "standard", "--to", path}, "the destination" + told},
        {{"--site", site.string(), "read", path},
         "the log \"" + shown + "\" can not be found: its path is too long"},
        {{"--site", (folder / "none").string(), "read", path},
         "the log \"" + shown + "\" can not be found: its path is too long"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.told);
        const Outcome refused = orvandiag(c.words, folder.string());
        expectOneLine(refused, 1, "orvandiag: " + c.told);
        EXPECT_LT(refused.err.size(), 250u);
    }
    EXPECT_EQ(before, fingerprint());
}

TEST_F(BadInput, WrongUsageEndsWithTwo)
{
    const std::vector<std::vector<std::string>> cases = {
        {"frobnicate"},
        {"logs"},
        {"--colour", "status"},
        {"status", "now"},
        {"sample"},
        {"sample", "x", "--lines", "many"},
        {"sample", "x", "--lines", "0"},
        {"sample", "x", "--fields", "wide"},
        {"sample", "x", "--seed", "-1"},
        {"sample", "x", "--seed=-1"},
        {"sample", "x", "--seed", " -1"},
        {"settings", "--max-megabytes", "many"},
        {"settings", "--max-megabytes", "0"},
        {"settings", "--log-folder", ""},
        {"settings", "--log-folder", " "},
        {"gather", "standard", "--to", ""},
        {"gather", "logs", "--log", "x", "--to", "", "--dry-run"},
        {"settings", "--max-megabytes", "-5"},
        {"settings", "--max-megabytes", "99999999999"},
        {"event-language", "--keep"},
        {"event-language", "FRA", "JPN"},
        {"language", "FRA", "JPN"},
        {"completion"},
        {"completion", "powershell"},
    };
    for (const auto& words : cases) {
        SCOPED_TRACE(testing::PrintToString(words));
        expectOneLine(run(words), 2, "--help");
    }
}

TEST_F(BadInput, ASampleIsNotMadeOverSomething)
{
    const std::string before = fingerprint();
    expectOneLine(orvandiag({"sample", site.string()}), 1, site.string());
    EXPECT_EQ(before, fingerprint());
}

TEST_F(BadInput, ASiteWithoutADatabaseStartsAndSaysSo)
{
    fs::remove(site / "OrvanDirDb.sqlite");
    const Outcome status = runJson({"status"});
    EXPECT_EQ(0, status.status) << status.err;
    EXPECT_FALSE(status.json()["connected"]);
}

TEST_F(BadInput, AnEmptySiteShowsEmptyViews)
{
    const auto bare = folder / "bare";
    fs::create_directories(bare / "drive_c");
    const Outcome status = orvandiag({"--json", "--site", bare.string(), "status"});
    EXPECT_EQ(0, status.status) << status.err;
    EXPECT_EQ(0, status.json()["version"]["major"]);
    EXPECT_EQ(1u, orvandiag({"--json", "--site", bare.string(), "tree"}).json().size());
    expectOneLine(orvandiag({"--site", bare.string(), "cycle"}), 1, "BroadCast");
}

TEST_F(BadInput, ASecondSignalOfADayThatCanNotBeOneIsToldWithTheReason)
{
    write(site / "site.ini", "[site]\ntimeZone=AEST-10AEDT,M10.1.0,M4.1.0/3\n");
    ASSERT_EQ(0, run({"cycle"}).status);
    Outcome second = run({"cycle"});
    if (second.status == 0) second = run({"cycle"}); // midnight passed between the two
    expectOneLine(second, 1, "the server sees no change; in a time zone of ten hours or more it");
}

TEST_F(BadInput, ARegistryThatTakesNothingIsTheReasonWhyACommandFails)
{
    fs::permissions(site / "registry.reg", fs::perms::owner_read);
    const std::string before = read(site / "registry.reg");
    const std::string refused = "the registry did not take the value ";
    expectLastLine(run({"cycle"}), 1, refused + "\"Cycle Diag File Time Set\": Permission denied");
    for (const Words& words : {Words{"reset"}, Words{"micro", "set", "--on", "CallFlow:4"}}) {
        SCOPED_TRACE(testing::PrintToString(words));
        expectLastLine(run(words), 1,
                       "the server was not told: " + refused + "\"Diagnostic Grid Time Set\"");
    }
    const std::string stays = "the event log's language stays, as it could not be noted: the "
                              "registry did not take the key ";
    expectLastLine(run({"event-language", "FRA"}), 1, stays);
    expectLastLine(run({"settings", "--log-folder", "D:\\Other"}), 1,
                   "the log folder could not be written: " + refused + "\"Output Path\"");
    EXPECT_EQ(before, read(site / "registry.reg"));
}

} // namespace
