#include "backends/jet/outside_readers.h"
#include "end_to_end/frame_model.h"
#include "end_to_end/sample_site.h"
#include "support/places.h"

#include <gmock/gmock.h>

#include <random>

#include <csignal>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::UnorderedElementsAre;

struct FrameGather : SampleSite {
    std::vector<std::string> gatherWords(const std::string& from, const std::string& hours,
                                         const fs::path& to) const
    {
        return {"gather", "frame", "--from", from, "--hours", hours, "--to", to.string()};
    }

    Outcome gather(const std::string& from, const std::string& hours) const
    {
        return runJson(gatherWords(from, hours, target));
    }

    std::vector<TextRow> expected(LocalSecond start, int hours, bool extended = false) const
    {
        return expectedRows(drive("KelmaOrvan/Logs"), start, start + hours * 3'600LL, extended);
    }

    /// The one database in a folder, or an empty path.
    static fs::path databaseIn(const fs::path& folder)
    {
        std::error_code none;
        for (const auto& entry : fs::directory_iterator(folder, none))
            if (entry.path().extension() == ".mdb") return entry.path();
        return {};
    }

    /// Gathers a log of 500,000 lines, and runs a command as soon as the database is there.
    Outcome gatherWhile(const std::string& command) const
    {
        std::string content;
        for (int line = 0; line < 500'000; ++line)
            content += "15:23:07:123,Conv,1,CallFlow,2,good\n";
        write(drive("KelmaOrvan/Logs/diag_Long_20250101_000000.txt"), content);
        return runProgram({"bash", "-c",
                           std::string("'") + built::orvandiag + "' --site '" + site.string() +
                               "' gather frame --from '2025-01-01 00:00' --hours 24 --to '" +
                               target.string() + "' & gather=$!; until [ -s '" + target.string() +
                               "'/*.mdb ] || ! kill -0 $gather; do :; done; " + command +
                               "; wait $gather"});
    }

    /// Starts a gather into the target, and kills it a while after its database has grown to a
    /// size, unless it ends before.
    void killGather(std::uintmax_t bytes, unsigned microseconds) const
    {
        std::vector<std::string> words = {built::orvandiag, "--site", site.string()};
        for (const auto& word : gatherWords("2025-02-17 17:00", "100", target))
            words.push_back(word);
        const pid_t child = fork();
        if (child == 0) {
            const int nowhere = open("/dev/null", O_WRONLY);
            dup2(nowhere, STDOUT_FILENO);
            dup2(nowhere, STDERR_FILENO);
            std::vector<char*> arguments;
            for (auto& word : words) arguments.push_back(word.data());
            arguments.push_back(nullptr);
            execv(arguments[0], arguments.data());
            _exit(127);
        }
        const auto grown = [&] {
            const fs::path database = databaseIn(target);
            std::error_code none;
            return !database.empty() && fs::file_size(database, none) >= bytes;
        };
        while (!grown()) {
            if (waitpid(child, nullptr, WNOHANG) != 0) return;
            usleep(200);
        }
        usleep(microseconds);
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
    }
};

TEST_F(FrameGather, HoldsExactlyTheLinesOfTheFrame)
{
    const Outcome gathered = gather("2025-02-19 08:00", "24");
    ASSERT_EQ(0, gathered.status) << gathered.err;
    const fs::path database = gathered.json()["database"].get<std::string>();
    const auto rows = expected(localSecond(2025, 2, 19, 8, 0), 24);
    ASSERT_GT(rows.size(), 100U);
    EXPECT_EQ("", firstDifference(rows, rowsOf(database, "tblTraces")));
    EXPECT_EQ("", firstDifference(rows, nodeRows(database, "tblTraces")));
    EXPECT_EQ("", firstDifference(withoutEmptyTexts(rows), exportedRows(database, "tblTraces")));
    EXPECT_EQ("", firstDifference(withoutEmptyTexts(rows),
                                  withoutEmptyTexts(jsonRows(database, "tblTraces"))));
    EXPECT_EQ("", problemsOf(database));
}

TEST_F(FrameGather, HoldsEveryLineOfAFrameOverSeveralMidnights)
{
    const Outcome gathered = gather("2025-02-17 17:00", "999");
    ASSERT_EQ(0, gathered.status) << gathered.err;
    const auto rows = expected(localSecond(2025, 2, 17, 17, 0), 999);
    ASSERT_GT(rows.size(), 2'900U);
    EXPECT_EQ("", firstDifference(rows, rowsOf(databaseIn(target), "tblTraces")));
}

TEST_F(FrameGather, TakesThreadPortAndCallIdFromExtendedLines)
{
    fs::remove_all(site);
    ASSERT_EQ(0, orvandiag({"sample", site.string(), "--lines", "3000", "--fields", "extended",
                            "--seed", "7"})
                     .status);
    const Outcome gathered = gather("2025-02-17 17:00", "100");
    ASSERT_EQ(0, gathered.status) << gathered.err;
    const auto rows = expected(localSecond(2025, 2, 17, 17, 0), 100, true);
    EXPECT_EQ("", firstDifference(rows, rowsOf(databaseIn(target), "tblTraces")));
}

TEST_F(FrameGather, StoresTheFiltersAndTheMacroTracesOnce)
{
    ASSERT_EQ(0, gather("2025-02-19 08:00", "24").status);
    const fs::path database = databaseIn(target);
    std::set<std::string> combinations;
    for (const auto& row : rowsOf(database, "tblTraces")) combinations.insert(row.at("qrvIndex"));
    std::set<std::string> filters;
    const auto filterRows = nodeRows(database, "tblUniqueFilters");
    for (const auto& row : filterRows) filters.insert(row.at("qrvIndex"));
    EXPECT_EQ(combinations, filters);
    EXPECT_EQ(filters.size(), filterRows.size());

    std::size_t definitions = 0;
    for (const auto& row : nodeRows(database, "tblMacroTraces")) {
        EXPECT_EQ(read(drive("OrvanDiagnostics/ZMKXML/" + row.at("Name"))), row.at("Data"));
        ++definitions;
    }
    EXPECT_GT(definitions, 0U);
}

TEST_F(FrameGather, StoresADefinitionInTheServersCodePageByItsCharacters)
{
    ASSERT_EQ(0, run({"cycle"}).status) << "the tool's folder is supplied once";
    const std::string head = "<?xml version='1.0' encoding='windows-1252'?><GA NAME='Caf";
    const std::string tail = "'/>\r\n";
    write(drive("OrvanDiagnostics/ZMKXML/HTcafe.xml"), head + "\xE9 \x80" + tail);
    ASSERT_EQ(0, gather("2025-02-20 16:42", "1").status);
    std::string stored;
    for (const auto& row : nodeRows(databaseIn(target), "tblMacroTraces"))
        if (row.at("Name") == "HTcafe.xml") stored = row.at("Data");
    EXPECT_EQ(head + "\xC3\xA9 \xE2\x82\xAC" + tail, stored);
}

TEST_F(FrameGather, PacksTheDatabaseAndTheEventLogsAndCleansUp)
{
    const auto result = gather("2025-02-20 16:42", "1").json();
    const fs::path database = result["database"].get<std::string>();
    const fs::path cabinet = result["cabinet"].get<std::string>();
    // Their stamps are of two moments, so that either of them may come first.
    EXPECT_THAT(result["files"],
                UnorderedElementsAre("Application.csv", "System.csv", cabinet.filename().string(),
                                     database.filename().string()));
    const fs::path extracted = folder / "extracted";
    ASSERT_EQ(0,
              runProgram({"cabextract", "-q", "-d", extracted.string(), cabinet.string()}).status);
    for (const std::string name : {"Application.csv", "System.csv"})
        EXPECT_EQ(read(target / name), read(extracted / name));
    EXPECT_EQ(read(database), read(extracted / database.filename()));
}

TEST_F(FrameGather, AFrameWithoutLinesGivesADatabaseOfMacroTraces)
{
    const Outcome gathered = run({"gather", "frame", "--from", "2001-01-01 00:00", "--hours", "1",
                                  "--no-application", "--no-system", "--to", target.string()});
    ASSERT_EQ(0, gathered.status) << gathered.err;
    EXPECT_THAT(gathered.out, HasSubstr("No line lies in the time frame"));
    EXPECT_TRUE(rowsOf(databaseIn(target), "tblTraces").empty());
    EXPECT_FALSE(rowsOf(databaseIn(target), "tblMacroTraces").empty());
    EXPECT_FALSE(fs::exists(target / "Application.csv"));
}

TEST_F(FrameGather, AFrameOnAServerWhoseLogFolderIsMissingSaysSo)
{
    fs::rename(drive("KelmaOrvan/Logs"), folder / "logs");
    const Outcome gathered = gather("2025-02-20 16:42", "1");
    EXPECT_EQ(1, gathered.status);
    EXPECT_EQ("orvandiag: not everything was gathered: the server's log folder "
              "C:\\KelmaOrvan\\Logs is not there\n",
              gathered.err);
    EXPECT_TRUE(gathered.json()["cabinet"].is_string());
    EXPECT_THAT(run({"gather", "frame", "--from", "2025-02-20 16:42", "--hours", "1", "--to",
                     target.string()})
                    .out,
                testing::Not(HasSubstr("No line lies in the time frame")))
        << "nobody looked";
}

TEST_F(FrameGather, OnlyTheFilesOfThisRunAreListed)
{
    ASSERT_EQ(0, gather("2025-02-20 16:42", "1").status);
    write(target / "mine_WPN_1.cab", "x");
    write(target / "notes.txt", "x");
    const Outcome gathered = runJson({"gather", "frame", "--from", "2025-02-20 16:42", "--hours",
                                      "1", "--no-system", "--to", target.string()});
    const auto result = gathered.json();
    EXPECT_THAT(
        result["files"],
        UnorderedElementsAre("Application.csv",
                             fs::path(result["cabinet"].get<std::string>()).filename().string(),
                             fs::path(result["database"].get<std::string>()).filename().string()));
}

TEST_F(FrameGather, TellsHowManyRowsEachProcessHas)
{
    const Outcome gathered = run(gatherWords("2025-02-17 17:00", "100", target));
    ASSERT_EQ(0, gathered.status) << gathered.err;
    std::map<std::string, long long> counts;
    for (const auto& row : rowsOf(databaseIn(target), "tblTraces")) ++counts[row.at("Process")];
    ASSERT_EQ(5U, counts.size());
    EXPECT_THAT(gathered.out, HasSubstr(target.string()));
    for (const auto& [process, count] : counts) {
        std::string shown = std::to_string(count);
        if (count >= 1'000) shown.insert(shown.size() - 3, ",");
        EXPECT_THAT(gathered.out, testing::ContainsRegex(process + " +" + shown + "\n"));
    }
}

TEST_F(FrameGather, RefusesWhatIsNoFrameAndChangesNothing)
{
    const struct {
        const char* because;
        const char* from;
        const char* hours;
        int status;
    } cases[] = {
        {"no hours", "2025-02-20 16:42", "0", 2},
        {"more hours than there may be", "2025-02-20 16:42", "1000", 2},
        {"half an hour", "2025-02-20 16:42", "0.5", 2},
        {"a word for a number", "2025-02-20 16:42", "two", 2},
        {"hours below zero", "2025-02-20 16:42", "-1", 2},
        {"a date alone", "2025-02-20", "1", 2},
        {"a day that is none", "2025-02-30 16:42", "1", 2},
        {"no date", "yesterday", "1", 2},
        {"a start in the future", "2999-01-01 00:00", "1", 1},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        const Outcome refused = gather(c.from, c.hours);
        EXPECT_EQ(c.status, refused.status);
        EXPECT_EQ(1, std::count(refused.err.begin(), refused.err.end(), '\n')) << refused.err;
        EXPECT_EQ("", refused.out);
        EXPECT_FALSE(fs::exists(target));
    }
}

TEST_F(FrameGather, TellsOfWhatIsMissing)
{
    const struct {
        const char* because;
        const char* file;
        const char* content; ///< null: a folder stands in its place
        const char* message;
        bool database;
    } cases[] = {
        {"a template that can't be copied", "blankWPNDB.mdb", nullptr, "no trace database was made",
         false},
        {"a template that is no database", "blankWPNDB.mdb", "not a database at all",
         "not everything was gathered", true},
        {"no cabinet maker", "cabmaker.exe", nullptr, "no cabinet was made", true},
    };
    ASSERT_EQ(0, run({"cycle"}).status) << "the tool's folder is supplied once";
    const fs::path tools = drive("OrvanDiagnostics");
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        const fs::path file = tools / c.file;
        const fs::path kept = folder / "kept";
        fs::rename(file, kept);
        if (c.content != nullptr)
            write(file, c.content);
        else
            fs::create_directory(file);
        if (c.content != nullptr) fs::permissions(file, fs::perms::owner_all);

        const Outcome gathered = gather("2025-02-20 16:42", "1");
        EXPECT_EQ(1, gathered.status);
        EXPECT_THAT(gathered.err, HasSubstr(c.message));
        EXPECT_EQ(c.database, !gathered.json()["database"].is_null());
        EXPECT_TRUE(fs::exists(target / "Application.csv"));

        fs::remove_all(target);
        fs::remove_all(file);
        fs::rename(kept, file);
    }
}

TEST_F(FrameGather, NoProgramOfTheSiteOrOfTheDestinationIsRun)
{
    ASSERT_EQ(0, run({"cycle"}).status) << "the tool's folder is supplied once";
    const fs::path tools = drive("OrvanDiagnostics/cabmaker.exe");
    const std::string foreign = "#!/bin/sh\ntouch '" + (folder / "ran").string() + "'\n";
    fs::remove(tools);
    write(tools, foreign);
    fs::permissions(tools, fs::perms::owner_all);

    const Outcome gathered = gather("2025-02-20 16:42", "1");
    EXPECT_EQ(0, gathered.status);
    EXPECT_EQ("orvandiag: the site's cabinet maker is not the installed one, which made the "
              "cabinet in its place\n",
              gathered.err);
    EXPECT_TRUE(gathered.json()["cabinet"].is_string());

    fs::remove(tools);
    fs::remove_all(target);
    fs::create_directories(target);
    write(target / "cabmaker", foreign);
    fs::permissions(target / "cabmaker", fs::perms::owner_all);
    EXPECT_EQ("", gather("2025-02-20 16:42", "1").err) << "it is no program of the tool's name";
    EXPECT_EQ(foreign, read(target / "cabmaker"));
    EXPECT_FALSE(fs::exists(folder / "ran"));
}

TEST_F(FrameGather, RefusesADestinationInWhichItWouldDestroySomething)
{
    const fs::path outside = folder / "outside";
    fs::create_directories(outside);
    write(outside / "kept", "kept");
    const struct {
        const char* name;
        bool link;
    } cases[] = {
        {"setup.inf", false}, {"setup.rpt", false}, {"ZMK.DDF", false},
        {"disk1", true},      {"System.csv", true}, {"cabmaker.exe", true},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        fs::create_directories(target);
        if (c.link)
            fs::create_symlink(outside, target / c.name);
        else
            write(target / c.name, "mine");
        const Outcome refused = gather("2025-02-20 16:42", "1");
        EXPECT_EQ(1, refused.status);
        EXPECT_EQ("", refused.out);
        EXPECT_THAT(refused.err, testing::StartsWith("orvandiag: " + std::string(c.name) +
                                                     " in the destination " + target.string()));
        EXPECT_THAT(refused.err, testing::EndsWith("; name another folder\n"));
        const Outcome foreseen = run({"gather", "frame", "--from", "2025-02-20 16:42", "--hours",
                                      "1", "--dry-run", "--to", target.string()});
        EXPECT_EQ(1, foreseen.status);
        EXPECT_EQ("", foreseen.out);
        EXPECT_EQ(refused.err, foreseen.err);
        EXPECT_EQ(1, std::distance(fs::directory_iterator(target), fs::directory_iterator()));
        fs::remove(target / c.name);
    }
    EXPECT_EQ("kept", read(outside / "kept"));
}

TEST_F(FrameGather, WhatItMakesIsTheUsersOwn)
{
    const auto before = umask(0077);
    ASSERT_EQ(0, gather("2025-02-20 16:42", "1").status);
    umask(before);
    EXPECT_EQ(fs::perms::owner_all, fs::status(target).permissions());
    for (const auto& entry : fs::directory_iterator(target))
        EXPECT_EQ(fs::perms(0600), entry.status().permissions()) << entry.path();
}

TEST_F(FrameGather, ADestinationOfAnyNameGetsItsCabinet)
{
    const struct {
        const char* because;
        const char* name;
    } cases[] = {
        {"blanks and letters of the single-byte encoding", "Z\xC3\xBCrich \xE2\x82\xAC 5; x"},
        {"letters that it lacks", "\xE3\x82\xB1\xE3\x83\xBC"},
        {"quotation marks", "a \"b\" 'c'"},
        {"both", "\xE3\x82\xB1\" %TEMP% \xC3\xBC"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        const fs::path named = folder / c.name;
        const Outcome gathered = runJson(gatherWords("2025-02-20 16:42", "1", named));
        EXPECT_EQ(0, gathered.status) << gathered.err;
        ASSERT_TRUE(gathered.json()["cabinet"].is_string());
        const Outcome listed =
            runProgram({"cabextract", "-l", gathered.json()["cabinet"].get<std::string>()});
        EXPECT_THAT(listed.out, HasSubstr(databaseIn(named).filename().string()));
        EXPECT_FALSE(fs::exists(named / "disk1"));
    }
}

TEST_F(FrameGather, AMissingCabinetIsToldInTheCabinetMakersOwnWords)
{
    const fs::path named = folder / "a\x01z";
    const Outcome gathered = runJson(gatherWords("2025-02-20 16:42", "1", named));
    EXPECT_EQ(1, gathered.status);
    EXPECT_THAT(gathered.err, HasSubstr("no cabinet was made: " + (folder / "a\\x01z").string() +
                                        "\\ZMK.DDF:6: a control character"));
    EXPECT_TRUE(gathered.json()["cabinet"].is_null());
}

TEST_F(FrameGather, TellsOfALogThatHasTooManyMalformedLines)
{
    std::string content = "15:23:07:123,Conv,1,CallFlow,2,good\n";
    for (int line = 0; line < 20; ++line) content += "garbage without any structure at all\n";
    write(drive("KelmaOrvan/Logs/diag_Odd_20250101_000000.txt"), content);
    const Outcome gathered = run(gatherWords("2025-01-01 00:00", "24", target));
    EXPECT_EQ(1, gathered.status);
    EXPECT_THAT(gathered.err,
                HasSubstr("diag_Odd_20250101_000000.txt has too many malformed lines"));
    EXPECT_EQ(11U, rowsOf(databaseIn(target), "tblTraces").size());
}

TEST_F(FrameGather, ALineWithALongSourceIsARowAndSharesItsKeyWithItsFilter)
{
    std::string content;
    for (int line = 0; line < 100; ++line)
        content += "15:23:07:123,Conv,1,CallFlow,2,good\n15:23:07:123," + std::string(300, 'C') +
                   std::to_string(line) + ",1,CallFlow,2,long\n";
    write(drive("KelmaOrvan/Logs/diag_Long_20250101_000000.txt"), content);
    const Outcome done = gather("2025-01-01 00:00", "24");
    EXPECT_EQ(0, done.status) << done.err;
    std::set<std::string> keys;
    const auto rows = rowsOf(databaseIn(target), "tblTraces");
    for (const auto& row : rows) keys.insert(row.at("qrvIndex"));
    EXPECT_EQ(200U, rows.size());
    EXPECT_EQ(
        (std::set<std::string>{"CallFlow_Long_2_Conv", "CallFlow_Long_2_" + std::string(239, 'C')}),
        keys);
    EXPECT_EQ(std::string(255, 'C'), rows.at(1).at("Source"));
    const auto filters = nodeRows(databaseIn(target), "tblUniqueFilters");
    ASSERT_EQ(2U, filters.size());
    for (const auto& filter : filters) EXPECT_EQ(1U, keys.count(filter.at("qrvIndex")));
    EXPECT_EQ(rows.at(1).at("Source"), filters.at(1).at("Source"));
}

TEST_F(FrameGather, ACommaInAFiltersValueShiftsItsColumnsAndKeepsItsKey)
{
    write(drive("KelmaOrvan/Logs/diag_a,b_20250101_000000.txt"),
          "15:23:07:123,Conv,1,CallFlow,2,good\n");
    ASSERT_EQ(0, run(gatherWords("2025-01-01 00:00", "24", target)).status);
    const std::vector<TextRow> expected = {{{"qrvIndex", "CallFlow_a,b_2_Conv"},
                                            {"Process", "a"},
                                            {"Source", "b"},
                                            {"Component", "Conv"},
                                            {"TraceLevel", "CallFlow"}}};
    EXPECT_EQ("", firstDifference(expected, nodeRows(databaseIn(target), "tblUniqueFilters")));
}

TEST_F(FrameGather, TellsOfFiltersThatCouldNotAllBeStored)
{
    std::string content;
    for (char letter = 'a'; letter < 'p'; ++letter)
        content += "15:23:07:123,Conv,1," + std::string(60, letter) + ",2,good\n";
    write(drive("KelmaOrvan/Logs/diag_a,b_20250101_000000.txt"), content);
    // A template whose levels are numbers: of each key it gets a component.
    ASSERT_EQ(0, run({"cycle"}).status) << "the tool's folder is supplied once";
    jet::Schema schema = traceSchema();
    schema.tables.back().columns.back() =
        jet::parseSchema("table tblUniqueFilters\ncolumn TraceLevel long\n").tables[0].columns[0];
    write(drive("OrvanDiagnostics/blankWPNDB.mdb"), jet::blankDatabase(schema));
    const Outcome gathered = run(gatherWords("2025-01-01 00:00", "24", target));
    EXPECT_EQ(1, gathered.status);
    EXPECT_EQ("orvandiag: not everything was gathered: the filters could not all be stored: Data "
              "type conversion error\n",
              gathered.err);
    EXPECT_EQ(15U, rowsOf(databaseIn(target), "tblTraces").size());
    EXPECT_EQ(10U, rowsOf(databaseIn(target), "tblUniqueFilters").size());
}

TEST_F(FrameGather, TellsOfDefinitionsThatCouldNotAllBeStored)
{
    ASSERT_EQ(0, run({"cycle"}).status) << "the tool's folder is supplied once";
    write(drive("OrvanDiagnostics/ZMKXML/HTa.xml"), "");
    const Outcome gathered = run(gatherWords("2025-02-20 16:42", "1", target));
    EXPECT_EQ(1, gathered.status);
    EXPECT_EQ("orvandiag: not everything was gathered: the macro trace definitions could not all "
              "be stored: Input past end of file\n",
              gathered.err);
}

TEST_F(FrameGather, ADestinationThatVanishesIsToldAsGone)
{
    const Outcome gone = gatherWhile("rm -r '" + target.string() + "'");
    EXPECT_EQ(1, gone.status);
    EXPECT_EQ("", gone.out);
    EXPECT_THAT(gone.err, HasSubstr("the destination " + target.string() + " has gone"));
}

TEST_F(FrameGather, ALogThatVanishesIsToldAndTheOthersAreGathered)
{
    const std::string name = "diag_Zed_20250101_000000.txt";
    write(drive("KelmaOrvan/Logs/" + name), "15:23:07:123,Conv,1,CallFlow,2,good\n");
    const Outcome gathered = gatherWhile("rm '" + drive("KelmaOrvan/Logs/" + name).string() + "'");
    EXPECT_EQ(1, gathered.status);
    EXPECT_THAT(gathered.err, HasSubstr(name + " can not be found.  Log not processed."));
    EXPECT_THAT(gathered.err, HasSubstr("not everything was gathered: " + name +
                                        " was not gathered: it is not in C:\\KelmaOrvan\\Logs\n"));
    EXPECT_EQ(500'000U, rowsOf(databaseIn(target), "tblTraces").size());
}

TEST_F(FrameGather, ALogThatIsCutOrTakenAwayWhileItIsReadIsTold)
{
    const std::string name = "diag_Long_20250101_000000.txt";
    const std::string path = "'" + drive("KelmaOrvan/Logs/" + name).string() + "'";
    const std::string underWay = "until [ $(stat -c %s '" + target.string() +
                                 "'/*.mdb) -gt 2000000 ]; do sleep 0.01; done; ";
    const Outcome cut = gatherWhile(underWay + "truncate -s 100 " + path);
    EXPECT_EQ(1, cut.status);
    EXPECT_EQ("orvandiag: not everything was gathered: " + name + " was cut while it was read\n",
              cut.err);
    fs::remove_all(target);
    const Outcome gone = gatherWhile(underWay + "rm " + path);
    EXPECT_EQ(1, gone.status);
    EXPECT_EQ("orvandiag: not everything was gathered: " + name +
                  " was taken away while it was read\n",
              gone.err);
}

TEST_F(FrameGather, LogsThatCanNotBeListedAreTold)
{
    fs::rename(drive("KelmaOrvan/Logs"), folder / "logs");
    fs::create_directory_symlink(folder / "logs", drive("KelmaOrvan/Logs"));
    const Outcome gathered = gather("2025-02-20 16:42", "1");
    EXPECT_EQ(1, gathered.status);
    EXPECT_THAT(gathered.err, HasSubstr("not everything was gathered: the logs in "
                                        "C:\\KelmaOrvan\\Logs could not be listed: "));
    EXPECT_TRUE(gathered.json()["cabinet"].is_string());
}

TEST_F(FrameGather, ACurrentLogThatIsNotThereIsTold)
{
    const std::string log = currentLog();
    fs::remove(drive("KelmaOrvan/Logs/" + log));
    const Outcome gathered = gather("2025-02-20 16:42", "1");
    EXPECT_EQ(1, gathered.status);
    EXPECT_EQ("orvandiag: not everything was gathered: the current log of KoCSMgr, "
              "C:\\KelmaOrvan\\Logs\\" +
                  log + ", is not there\n",
              gathered.err);
}

TEST_F(FrameGather, AKilledOneLeavesADatabaseThatHoldsAnExactPrefix)
{
    fs::remove_all(site);
    ASSERT_EQ(0, orvandiag({"sample", site.string(), "--lines", "20000"}).status);
    const auto rows = expected(localSecond(2025, 2, 17, 17, 0), 100);
    ASSERT_EQ(0, run(gatherWords("2025-02-17 17:00", "100", target)).status);
    const auto whole = fs::file_size(databaseIn(target));
    std::mt19937 random(4711);
    int cutShort = 0;
    for (int round = 0; round < 20; ++round) {
        SCOPED_TRACE(round);
        fs::remove_all(target);
        killGather(random() % whole, random() % 20'000);
        const fs::path database = databaseIn(target);
        if (database.empty()) continue;
        const auto found = rowsOf(database, "tblTraces");
        ASSERT_LE(found.size(), rows.size());
        EXPECT_EQ("", firstDifference(
                          {rows.begin(), rows.begin() + static_cast<std::ptrdiff_t>(found.size())},
                          found));
        if (!found.empty() && found.size() < rows.size()) ++cutShort;
        EXPECT_EQ(found.size(), exportedRows(database, "tblTraces").size());
    }
    EXPECT_GT(cutShort, 3) << "some kill was to hit the adding of rows";
}

} // namespace
