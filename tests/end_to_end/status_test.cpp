#include "end_to_end/sample_site.h"

#include <gmock/gmock.h>

#include <cmath>
#include <cstring>
#include <thread>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

struct StatusCommand : SampleSite {};

TEST_F(StatusCommand, TellsVersionLogFolderAndProcesses)
{
    const auto status = runJson({"status"}).json();
    EXPECT_EQ(2, status["version"]["major"]);
    EXPECT_EQ(0, status["version"]["minor"]);
    EXPECT_FALSE(status["version"]["text"].get<std::string>().empty());
    EXPECT_EQ("C:\\KelmaOrvan\\Logs", status["logFolder"]);
    EXPECT_FALSE(status["extendedFields"]);
    EXPECT_THAT(status["processes"],
                ElementsAre("KoCSMgr", "KoDirSync", "KoMsgStore", "KoNotify", "KoTelephony"));
    EXPECT_THAT(run({"status"}).out, HasSubstr("KoTelephony"));
}

TEST_F(StatusCommand, KnowsTheExtendedFieldsOfANewerServer)
{
    const auto other = (folder / "extended").string();
    ASSERT_EQ(0, orvandiag({"sample", other, "--lines", "500", "--fields", "extended"}).status);
    EXPECT_TRUE(orvandiag({"--json", "--site", other, "status"}).json()["extendedFields"]);
}

TEST_F(StatusCommand, ALogFolderThatIsNotThereIsToldWhereLogsAreListed)
{
    ASSERT_EQ(0, run({"settings", "--log-folder", "D:\\Gone"}).status);
    const std::string told = "orvandiag: the server's log folder D:\\Gone is not there\n";
    for (const auto& words : std::vector<std::vector<std::string>>{
             {"status"}, {"tree"}, {"logs", "KoCSMgr"}, {"gather", "standard", "--dry-run"}}) {
        const Outcome outcome = run(words);
        EXPECT_EQ(0, outcome.status) << words[0];
        EXPECT_EQ(told, outcome.err) << words[0];
    }
    std::filesystem::create_directories(site / "drive_d/Gone");
    EXPECT_EQ("", run({"status"}).err);
    EXPECT_EQ("orvandiag: no log of KoCSMgr in D:\\Gone\n", run({"logs", "KoCSMgr"}).err);
}

TEST_F(StatusCommand, TellsWhichTracesAreOnAndSinceWhenAtLeast)
{
    ASSERT_EQ(0, run({"reset"}).status);
    const std::string trace = "Call Flow - Transfers";
    EXPECT_THAT(runJson({"status"}).json()["traces"]["macro"], testing::IsEmpty());
    EXPECT_THAT(run({"status"}).out, HasSubstr("Macro traces on  none\nLevels added     none\n"));
    ASSERT_EQ(0, run({"macro", "set", "--on", trace}).status);
    const auto traces = runJson({"status"}).json()["traces"];
    ASSERT_EQ(1u, traces["macro"].size());
    EXPECT_EQ("Call Flow", traces["macro"][0]["group"]);
    EXPECT_EQ("Transfers", traces["macro"][0]["trace"]);
    const std::string since = traces["macro"][0]["onAtLeastSince"];
    EXPECT_THAT(since, testing::MatchesRegex("20..-..-..T..:..:..-0[78]:00"));
    EXPECT_THAT(traces["levels"], testing::Not(testing::IsEmpty()));
    EXPECT_THAT(run({"status"}).out,
                HasSubstr("Macro traces on  " + trace + ", at least since 20"));

    // Recorded as on once more, it is on since the first time; the events tell.
    std::this_thread::sleep_for(std::chrono::milliseconds(1100));
    ASSERT_EQ(0, run({"macro", "set", "--on", trace}).status);
    EXPECT_EQ(since, runJson({"status"}).json()["traces"]["macro"][0]["onAtLeastSince"]);
    // Without events the record tells when it was on at the latest.
    std::filesystem::remove(site / "eventlogs/Application.jsonl");
    const std::string recorded = runJson({"status"}).json()["traces"]["macro"][0]["onAtLeastSince"];
    EXPECT_GT(recorded, since);
    ASSERT_EQ(0, run({"macro", "set", "--off", trace}).status);
    EXPECT_THAT(runJson({"status"}).json()["traces"]["macro"], testing::IsEmpty());
}

TEST_F(StatusCommand, SaysNothingOfLevelsThatCantBeRead)
{
    std::filesystem::remove(site / "OrvanDirDb.sqlite");
    EXPECT_TRUE(runJson({"status"}).json()["traces"]["levels"].is_null());
    EXPECT_THAT(run({"status"}).out, testing::Not(HasSubstr("Levels added")));
}

TEST_F(StatusCommand, ACommandThatChangesSomethingLeavesItsMarksInTheEventLog)
{
    ASSERT_EQ(0, run({"cycle"}).status);
    std::vector<int> events;
    std::istringstream lines(read(site / "eventlogs/Application.jsonl"));
    for (std::string line; std::getline(lines, line);) {
        const auto event = nlohmann::json::parse(line);
        if (event["source"] == "OrvanDiagnosticTool_MC") events.push_back(event["id"]);
    }
    EXPECT_THAT(events, ElementsAre(10001, 10002, 10003));
}

struct TreeCommand : SampleSite {};

TEST_F(TreeCommand, ShowsTheCurrentLogFirstThenTheOthersNewestFirst)
{
    const auto tree = runJson({"tree"}).json();
    ASSERT_EQ(1u, tree.size());
    EXPECT_EQ("Kelma Orvan Diagnostics", tree[0]["name"]);
    const auto processes = tree[0]["children"][0];
    EXPECT_EQ("Processes", processes["name"]);
    EXPECT_EQ("Processes", processes["kind"]);
    const auto process = processes["children"][0];
    EXPECT_EQ("KoCSMgr", process["key"]);
    EXPECT_EQ("LogProcess", process["kind"]);
    EXPECT_EQ("Current- " + currentLog(), process["children"][0]["name"]);
    EXPECT_EQ("LogFile", process["children"][0]["kind"]);
    EXPECT_GT(process["children"][1]["key"], process["children"][2]["key"]);
    for (const auto& log : process["children"])
        EXPECT_THAT(log["key"].get<std::string>(), testing::Not(HasSubstr("fmtd")));
}

struct LogsCommand : SampleSite {};

TEST_F(LogsCommand, ListsTheFilesOfAProcessNewestFirst)
{
    const auto logs = runJson({"logs", "KoCSMgr"}).json();
    ASSERT_EQ(3u, logs.size());
    EXPECT_TRUE(logs[0]["current"]);
    EXPECT_FALSE(logs[1]["current"]);
    EXPECT_GT(logs[0]["fileName"], logs[1]["fileName"]);
    EXPECT_EQ(std::filesystem::file_size(drive("KelmaOrvan/Logs/") / logs[0]["fileName"]),
              logs[0]["size"].get<std::uintmax_t>());
}

TEST_F(LogsCommand, ListsTheLogsOfAllProcessesWithTheirNames)
{
    const auto all = runJson({"logs", "--all"}).json();
    std::map<std::string, std::size_t> logs;
    for (const auto& log : all) ++logs[log["process"]];
    EXPECT_EQ(5u, logs.size());
    EXPECT_EQ(3u, logs["KoCSMgr"]);
    EXPECT_THAT(run({"logs", "--all"}).out, StartsWith("Process"));
    EXPECT_THAT(run({"logs", "KoCSMgr"}).out, testing::Not(HasSubstr("Process")));
}

TEST_F(LogsCommand, ListsThoseThatWereWrittenToSinceATime)
{
    namespace fs = std::filesystem;
    const auto now = fs::file_time_type::clock::now();
    for (const auto& log : fs::directory_iterator(drive("KelmaOrvan/Logs")))
        fs::last_write_time(log.path(), now - std::chrono::hours(100));
    const fs::path current = drive("KelmaOrvan/Logs/" + currentLog());
    fs::last_write_time(current, now - std::chrono::hours(2));
    const auto recent = runJson({"logs", "--all", "--since", "3 hours ago"}).json();
    ASSERT_EQ(1u, recent.size());
    EXPECT_EQ(current.filename().string(), recent[0]["fileName"]);
    EXPECT_EQ(3u, runJson({"logs", "KoCSMgr", "--since", "5 days ago"}).json().size());
    const Outcome none = run({"logs", "KoCSMgr", "--since", "1 hour ago"});
    EXPECT_EQ(0, none.status);
    EXPECT_EQ("", none.out);
    EXPECT_THAT(none.err, HasSubstr("was written to since 1 hour ago"));
}

TEST_F(LogsCommand, RefusesATimeThatIsNoneAndAProcessBesideAll)
{
    for (const auto& words :
         std::vector<std::vector<std::string>>{{"logs"},
                                               {"logs", "KoCSMgr", "--all"},
                                               {"logs", "--all", "--since", "someday"},
                                               {"logs", "--all", "--since", ""}})
        EXPECT_EQ(2, run(words).status) << testing::PrintToString(words);
}

struct CycleCommand : SampleSite {};

TEST_F(CycleCommand, WritesAStampOfThisDayIntoTheRegistry)
{
    const auto cycle = runJson({"cycle"}).json();
    EXPECT_EQ("Cycle Diag File Time Set", cycle["signal"]);
    const std::string hex = cycle["bytes"];
    ASSERT_EQ(16u, hex.size());
    unsigned char bytes[8];
    std::string spaced;
    for (int i = 0; i < 8; ++i) {
        bytes[i] = static_cast<unsigned char>(std::stoi(hex.substr(2 * i, 2), nullptr, 16));
        spaced += (i ? "," : "") + hex.substr(2 * i, 2);
    }
    double stamp = 0;
    std::memcpy(&stamp, bytes, sizeof stamp);
    const double today = static_cast<double>(std::time(nullptr)) / 86400 + 25569;
    EXPECT_LT(std::fabs(stamp - today), 1.1) << stamp;
    EXPECT_THAT(read(site / "registry.reg"),
                HasSubstr("\"Cycle Diag File Time Set\"=hex:" + spaced));
    EXPECT_EQ("New log files started.\n", run({"cycle"}).out);
}

TEST_F(CycleCommand, ASignalOfTheSameSecondIsGivenAgainInTheNext)
{
    std::string latest;
    for (int time = 0; time < 3; ++time) {
        const Outcome cycle = runJson({"cycle"});
        ASSERT_EQ(0, cycle.status) << cycle.err;
        EXPECT_NE(latest, cycle.json()["bytes"]) << "the server would see no change";
        latest = cycle.json()["bytes"];
    }
}

struct AboutCommand : SampleSite {};

TEST_F(AboutCommand, TellsNameAndVersion)
{
    const auto about = runJson({"about"}).json();
    EXPECT_EQ("Kelma Orvan Diagnostics", about["name"]);
    EXPECT_THAT(about["version"].get<std::string>(),
                testing::MatchesRegex(" [0-9]+\\.[0-9]+ Build [0-9]+"));
    EXPECT_THAT(orvandiag({"--version"}).out, StartsWith("orvandiag "));
}

TEST_F(AboutCommand, TeachesTheCommandLine)
{
    const Outcome help = orvandiag({"--help"});
    EXPECT_EQ(0, help.status);
    for (const char* command :
         {"sample", "status", "tree", "logs", "read", "cycle", "gather", "about"}) {
        EXPECT_THAT(help.out, HasSubstr(command));
        const Outcome own = orvandiag({command, "--help"});
        EXPECT_EQ(0, own.status);
        EXPECT_THAT(own.out, HasSubstr(command));
    }
}

} // namespace
