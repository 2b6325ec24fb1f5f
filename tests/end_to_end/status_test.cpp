#include "end_to_end/sample_site.h"

#include <gmock/gmock.h>

#include <cmath>
#include <cstring>

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
