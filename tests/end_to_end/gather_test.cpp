#include "end_to_end/sample_site.h"
#include "support/places.h"

#include <gmock/gmock.h>

#include <chrono>
#include <fstream>
#include <functional>

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;

struct GatherCommand : SampleSite {};

std::string formattedName(const std::string& log)
{
    return log.substr(0, log.find('.')) + "_fmtd" + log.substr(log.find('.'));
}

TEST_F(GatherCommand, StandardCopiesTheCurrentLogAndBothEventLogs)
{
    const std::string log = currentLog();
    const Outcome gathered = runJson({"gather", "standard", "--to", target.string()});
    ASSERT_EQ(0, gathered.status) << gathered.err;
    const auto result = gathered.json();
    EXPECT_EQ(target.string(), result["destination"]);
    EXPECT_TRUE(result["database"].is_null());
    EXPECT_TRUE(result["cabinet"].is_null());
    EXPECT_THAT(result["files"], ElementsAre("Application.csv", "System.csv", formattedName(log)));
    EXPECT_THAT(read(target / "Application.csv"),
                testing::StartsWith("Time,Type,Source,Event ID,Computer,Message\r\n"));

    const std::string raw = read(drive("KelmaOrvan/Logs/" + log));
    const std::string copy = read(target / formattedName(log));
    EXPECT_EQ(std::count(raw.begin(), raw.end(), '\n'), std::count(copy.begin(), copy.end(), '\n'));
    const std::string firstTime = raw.substr(0, raw.find(','));
    EXPECT_THAT(copy, testing::StartsWith(firstTime + " ("));
}

TEST_F(GatherCommand, MakesAFolderOfItsOwnWithoutADestination)
{
    const auto result = runJson({"gather", "standard"}).json();
    const fs::path destination = result["destination"].get<std::string>();
    EXPECT_TRUE(fs::is_directory(destination));
    EXPECT_THAT(destination.filename().string(),
                testing::MatchesRegex("LogsFrom[0-9]{8}_[0-9]{6}"));
    EXPECT_EQ(drive("Temp"), destination.parent_path());
}

TEST_F(GatherCommand, TakesADestinationOnTheServersDrive)
{
    const auto result = runJson({"gather", "standard", "--to", "C:\\Case"}).json();
    EXPECT_EQ(drive("Case").string(), result["destination"]);
}

TEST_F(GatherCommand, TakesLogsByName)
{
    const auto logs = runJson({"logs", "KoNotify"}).json();
    const std::string log = logs[1]["fileName"];
    const auto result = runJson({"gather", "logs", "--log", log, "--event-log", "security", "--to",
                                 target.string()})
                            .json();
    EXPECT_THAT(result["files"], ElementsAre("Security.csv", formattedName(log)));
}

TEST_F(GatherCommand, CopiesALineThatIsNoneAsItCan)
{
    const std::string log = "diag_KoNotify_20250101_000000.txt";
    write(drive("KelmaOrvan/Logs/" + log), "garbage without any structure at all\n"
                                           "short\n"
                                           "15:23:07:123,Conv,1,X,2,good\n");
    const Outcome gathered = run({"gather", "logs", "--log", log, "--to", target.string()});
    EXPECT_EQ(0, gathered.status) << gathered.err;
    EXPECT_EQ(" \r\n\r\n15:23:07:123 (Conv,1,X,2) good \r\n", read(target / formattedName(log)));
}

TEST_F(GatherCommand, RunsUnderTheDevelopmentHostWithoutFormatting)
{
    const std::string log = currentLog();
    const Outcome gathered =
        run({"--development-host", "gather", "logs", "--log", log, "--to", target.string()});
    ASSERT_EQ(0, gathered.status) << gathered.err;
    const std::string raw = read(drive("KelmaOrvan/Logs/" + log));
    const std::string copy = read(target / formattedName(log));
    EXPECT_EQ(raw.substr(0, raw.find_first_of("\r\n")), copy.substr(0, copy.find_first_of("\r\n")));
}

TEST_F(GatherCommand, RefusesWhatItDoesNotKnowAndChangesNothing)
{
    write(folder / "file", "x");
    write(drive("KelmaOrvan/Logs/diag_Gone_1.txt"), "15:23:07:123,Conv,1,X,2,good\n");
    const std::string before = fingerprint();
    const struct {
        const char* because;
        std::vector<std::string> words;
        int status;
    } cases[] = {
        {"an unknown log", {"gather", "logs", "--log", "diag_None_1.txt"}, 1},
        {"a log of no process, which the wizard does not offer",
         {"gather", "logs", "--log", "diag_Gone_1.txt"},
         1},
        {"a log outside the log folder", {"gather", "logs", "--log", "../site.ini"}, 1},
        {"a log without a name", {"gather", "logs", "--log", ""}, 1},
        {"an unknown event log", {"gather", "logs", "--event-log", "Nothing"}, 1},
        {"nothing to gather", {"gather", "logs"}, 2},
        {"no mode", {"gather"}, 2},
        {"a destination that is a file",
         {"gather", "standard", "--to", (folder / "file").string()},
         1},
        {"a destination in a missing folder",
         {"gather", "standard", "--to", (folder / "no/such/folder").string()},
         1},
        {"a destination whose name is longer than a file system's",
         {"gather", "standard", "--to", (folder / std::string(256, 'l')).string()},
         1},
        {"such a destination on the server's drive",
         {"gather", "standard", "--to", "C:\\" + std::string(256, 'l')},
         1},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        const Outcome refused = run(c.words);
        EXPECT_EQ(c.status, refused.status);
        EXPECT_EQ(1, std::count(refused.err.begin(), refused.err.end(), '\n')) << refused.err;
        EXPECT_EQ("", refused.out);
    }
    EXPECT_EQ(before, fingerprint());
    EXPECT_FALSE(fs::exists(folder / "no"));
    EXPECT_EQ("x", read(folder / "file"));
}

TEST_F(GatherCommand, ShowsNothingForADestinationThatTheSystemRefuses)
{
    const Outcome refused = run({"gather", "standard", "--to", "/proc/gathered"});
    EXPECT_EQ(1, refused.status);
    EXPECT_EQ("", refused.out);
    EXPECT_THAT(refused.err, HasSubstr("can't be made"));
    EXPECT_EQ(1, std::count(refused.err.begin(), refused.err.end(), '\n')) << refused.err;
}

TEST_F(GatherCommand, TakesALogByItsNameInAnyCase)
{
    const std::string log = "diag_KoNotify_20250101_000000.txt";
    write(drive("KelmaOrvan/Logs/" + log), "15:23:07:123,Conv,1,X,2,good\n");
    const auto result = runJson({"gather", "logs", "--log", "DIAG_konotify_20250101_000000.TXT",
                                 "--to", target.string()})
                            .json();
    EXPECT_THAT(result["files"], ElementsAre(formattedName(log)));
}

TEST_F(GatherCommand, TakesTheLogOfExactlyThatNameWhereTwoDifferInCaseAlone)
{
    const fs::path logs = drive("KelmaOrvan/Logs");
    write(logs / "diag_KoNotify_20250101_00000A.txt", "15:23:07:123,Conv,1,X,2,capital\n");
    write(logs / "diag_KoNotify_20250101_00000a.txt", "15:23:07:123,Conv,1,X,2,small\n");
    fs::create_directory(target);
    for (const auto& [name, trace] : {std::pair("diag_KoNotify_20250101_00000A.txt", "capital"),
                                      std::pair("diag_KoNotify_20250101_00000a.txt", "small")}) {
        SCOPED_TRACE(name);
        const fs::path taken = target / trace;
        const Outcome gathered = run({"gather", "logs", "--log", name, "--to", taken.string()});
        ASSERT_EQ(0, gathered.status) << gathered.err;
        EXPECT_THAT(read(taken / formattedName(name)), HasSubstr(trace));
    }
}

TEST_F(GatherCommand, AnInterruptIsTheWizardsCancelAndKeepsWhatWasRead)
{
    const std::string log = "diag_KoNotify_20250101_000000.txt";
    std::string content;
    for (int i = 0; i < 500'000; ++i) content += "15:23:07:123,Conv,1,X,2,a line among many\n";
    write(drive("KelmaOrvan/Logs/" + log), content);
    const std::string copy = (target / formattedName(log)).string();
    const Outcome cancelled =
        runProgram({"bash", "-c",
                    std::string("'") + built::orvandiag + "' --site '" + site.string() +
                        "' gather logs --log " + log + " --event-log System --to '" +
                        target.string() + "' & gather=$!; until [ -e '" + copy +
                        "' ] || ! kill -0 $gather; do :; done; kill -TERM $gather; wait $gather"});
    EXPECT_EQ(1, cancelled.status) << cancelled.out << cancelled.err;
    EXPECT_EQ("orvandiag: cancelled; what was read until then is kept in " + target.string() + "\n",
              cancelled.err);
    EXPECT_LT(fs::file_size(copy), content.size());
    EXPECT_FALSE(fs::exists(target / "System.csv"));
}

TEST_F(GatherCommand, ADryRunTellsWhatWouldBeTakenAndGathersNothing)
{
    const std::string log = currentLog();
    const auto planned = runJson({"gather", "standard", "--dry-run", "--to", target.string()});
    ASSERT_EQ(0, planned.status) << planned.err;
    const auto plan = planned.json();
    const auto size = fs::file_size(drive("KelmaOrvan/Logs/" + log));
    EXPECT_EQ(target.string(), plan["destination"]);
    ASSERT_EQ(1u, plan["logs"].size());
    EXPECT_EQ(log, plan["logs"][0]["name"]);
    EXPECT_EQ(size, plan["logs"][0]["size"]);
    EXPECT_EQ(size, plan["size"]);
    EXPECT_THAT(plan["eventLogs"], ElementsAre("Application", "System"));
    EXPECT_GT(plan["freeSpace"], 0);
    EXPECT_FALSE(fs::exists(target));
}

TEST_F(GatherCommand, ADryRunOfAFrameListsTheLogsThatTouchIt)
{
    write(drive("KelmaOrvan/Logs/diag_KoNotify_20010203_040506.txt"), "old\n");
    fs::last_write_time(drive("KelmaOrvan/Logs/diag_KoNotify_20010203_040506.txt"),
                        fs::file_time_type::clock::now() - std::chrono::hours(24 * 365 * 10));
    const Outcome planned = run({"gather", "frame", "--from", "2001-02-03 04:00", "--hours", "1",
                                 "--no-system", "--dry-run", "--to", target.string()});
    ASSERT_EQ(0, planned.status) << planned.err;
    EXPECT_THAT(planned.out, HasSubstr("diag_KoNotify_20010203_040506.txt"));
    EXPECT_THAT(planned.out, HasSubstr("Application event log"));
    EXPECT_THAT(planned.out, testing::Not(HasSubstr("System event log")));
    EXPECT_FALSE(fs::exists(target));
}

TEST_F(GatherCommand, TellsOfAFullDisk)
{
    ASSERT_EQ(0, run({"cycle"}).status) << "the tool's folder is supplied once";
    const std::string log = "diag_KoNotify_20250101_000000.txt";
    std::string content;
    for (int i = 0; i < 20'000; ++i) content += "15:23:07:123,Conv,1,X,2,a line among many\n";
    write(drive("KelmaOrvan/Logs/" + log), content);
    const Outcome full = runProgram({"bash", "-c",
                                     std::string("ulimit -f 256; exec '") + built::orvandiag +
                                         "' --site '" + site.string() + "' gather logs --log " +
                                         log + " --to '" + target.string() + "'"});
    EXPECT_EQ(1, full.status) << full.out << full.err;
    EXPECT_EQ("orvandiag: not everything was gathered: " + log + " was copied in part: Disk full\n",
              full.err);
    std::string toolLog;
    for (const auto& file : fs::directory_iterator(drive("OrvanDiagnostics/LOGS")))
        toolLog += read(file.path());
    EXPECT_THAT(toolLog, HasSubstr("Came "));
    EXPECT_LT(toolLog.size(), 100'000U) << "a full disk costs one line, and not one a line";
}

TEST_F(GatherCommand, ASignalIsACancelAndNoEnd)
{
    const std::string log = "diag_KoNotify_20250101_000000.txt";
    std::string content;
    for (int i = 0; i < 400'000; ++i) content += "15:23:07:123,Conv,1,X,2,a line among many\n";
    write(drive("KelmaOrvan/Logs/" + log), content);
    for (const char* signal : {"INT", "TERM", "HUP"}) {
        SCOPED_TRACE(signal);
        const std::string copy = (target / formattedName(log)).string();
        const Outcome cancelled =
            runProgram({"bash", "-mc",
                        std::string("'") + built::orvandiag + "' --site '" + site.string() +
                            "' gather logs --log " + log + " --to '" + target.string() +
                            "' & child=$!; until [ -s '" + copy +
                            "' ]; do sleep 0.01; done; kill -" + signal + " $child; wait $child"});
        EXPECT_EQ(1, cancelled.status) << cancelled.err;
        EXPECT_THAT(cancelled.err, HasSubstr("cancelled; what was read until then is kept in "));
        fs::remove_all(target);
    }
}

TEST_F(GatherCommand, StandardWithoutItsLogSaysWhyAndGathersTheRest)
{
    ASSERT_EQ(0, run({"cycle"}).status) << "the tool's folder is supplied once";
    const fs::path registry = site / "registry.reg";
    const std::string whole = read(registry);
    const std::string log = currentLog();
    const fs::path logs = drive("KelmaOrvan/Logs");
    const struct {
        const char* because;
        std::function<void()> spoil;
        std::string reason;
        std::vector<std::string> files;
    } cases[] = {
        {"the server names none",
         [&] {
             std::string without = whole;
             const auto at = without.find("CurrentLogFile", without.find("Process\\KoCSMgr]"));
             write(registry, without.replace(at, 7, "Another"));
         },
         "the server names no current log of KoCSMgr",
         {"Application.csv", "System.csv"}},
        {"its file has gone",
         [&] { fs::rename(logs / log, folder / log); },
         "the current log of KoCSMgr, C:\\KelmaOrvan\\Logs\\" + log + ", is not there",
         {"Application.csv", "System.csv"}},
        {"the folder of all logs has gone",
         [&] { fs::rename(logs, folder / "logs"); },
         "the current log of KoCSMgr, C:\\KelmaOrvan\\Logs\\" + log + ", is not there",
         {"Application.csv", "System.csv"}},
        {"an event log is missing",
         [&] { fs::rename(site / "eventlogs/System.jsonl", folder / "System.jsonl"); },
         "the System event log was not captured: File not found",
         {"Application.csv", formattedName(log)}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        c.spoil();
        const Outcome gathered = runJson({"gather", "standard", "--to", target.string()});
        EXPECT_EQ(1, gathered.status);
        EXPECT_EQ("orvandiag: not everything was gathered: " + c.reason + "\n", gathered.err);
        EXPECT_EQ(c.files, gathered.json()["files"].get<std::vector<std::string>>());

        write(registry, whole);
        if (fs::exists(folder / "logs")) fs::rename(folder / "logs", logs);
        if (fs::exists(folder / log)) fs::rename(folder / log, logs / log);
        fs::remove_all(target);
    }
}

TEST_F(GatherCommand, ACopyThatCantBeMadeIsToldAndTheOthersAreMade)
{
    const std::string log = currentLog();
    // The copy has a longer name than the log, and this one has no room for more.
    const std::string longest = "diag_KoNotify_" + std::string(237, 'x') + ".txt";
    ASSERT_EQ(255U, longest.size());
    fs::copy(drive("KelmaOrvan/Logs/" + log), drive("KelmaOrvan/Logs/" + longest));
    const Outcome gathered =
        runJson({"gather", "logs", "--log", longest, "--log", log, "--to", target.string()});
    EXPECT_EQ(1, gathered.status);
    EXPECT_EQ("orvandiag: not everything was gathered: " + longest +
                  " was not copied: Path not found\n",
              gathered.err);
    EXPECT_THAT(gathered.json()["files"], ElementsAre(formattedName(log)));
}

TEST_F(GatherCommand, APreviewTellsOfALogFolderThatCantBeListed)
{
    const fs::path logs = drive("KelmaOrvan/Logs");
    fs::rename(logs, folder / "logs");
    fs::create_directory_symlink(folder / "logs", logs);
    const Outcome planned =
        run({"gather", "frame", "--from", "2025-02-20 16:42", "--hours", "1", "--dry-run"});
    EXPECT_THAT(planned.err, HasSubstr("the logs in C:\\KelmaOrvan\\Logs could not be listed: "));
}

TEST_F(GatherCommand, EventLogsHoldNoFormulaWhereTheyAreForASpreadsheet)
{
    std::ofstream(site / "eventlogs/System.jsonl", std::ios::app)
        << R"json({"source":"=HYPERLINK(1)","id":7})json"
        << "\n";
    const auto gathered = [&](std::vector<std::string> more) {
        const fs::path to = target.string() + std::to_string(more.size());
        std::vector<std::string> words = {"gather", "logs", "--event-log",
                                          "System", "--to", to.string()};
        words.insert(words.end(), more.begin(), more.end());
        EXPECT_EQ(0, run(words).status);
        return read(to / "System.csv");
    };
    EXPECT_THAT(gathered({}), HasSubstr(",=HYPERLINK(1),7,"));
    EXPECT_THAT(gathered({"--excel"}), HasSubstr(",'=HYPERLINK(1),7,"));
}

TEST_F(GatherCommand, OnlyTheFilesOfThisRunAreListed)
{
    const std::string log = currentLog();
    ASSERT_EQ(0, run({"gather", "standard", "--to", target.string()}).status);
    write(target / "notes.txt", "mine");
    const std::vector<std::string> words = {"gather",      "logs",   "--log", log,
                                            "--event-log", "System", "--to",  target.string()};
    EXPECT_THAT(runJson(words).json()["files"], ElementsAre("System.csv", formattedName(log)));
    EXPECT_EQ("Gathered into " + target.string() + "\n  System.csv\n  " + formattedName(log) + "\n",
              run(words).out);
    EXPECT_EQ("mine", read(target / "notes.txt"));
}

} // namespace
