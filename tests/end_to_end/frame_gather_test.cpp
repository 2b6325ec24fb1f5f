#include "backends/jet/outside_readers.h"
#include "end_to_end/frame_gather.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <map>
#include <set>

#include <sys/stat.h>

namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::UnorderedElementsAre;

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
        {"a day that is none", "2025-02-30 16:42", "1", 2},
        {"no time", "the day before", "1", 2},
        {"a time of another clock, without its date", "16:42Z", "1", 2},
        {"a year that the tool's calendar lacks", "0099-02-20 16:42", "1", 2},
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

TEST_F(FrameGather, TakesAFrameAsPeopleSayIt)
{
    const auto whatIsGathered = [this](std::vector<std::string> frame) {
        frame.insert(frame.begin(), {"gather", "frame"});
        frame.insert(frame.end(), {"--to", target.string()});
        const Outcome gathered = runJson(frame);
        EXPECT_EQ(0, gathered.status) << gathered.err;
        auto rows = rowsOf(databaseIn(target), "tblTraces");
        fs::remove_all(target);
        return std::tuple(rows, gathered.json()["frame"], gathered.err);
    };
    const auto [rows, frame, silence] =
        whatIsGathered({"--from", "2025-02-20 16:42", "--hours", "1"});
    EXPECT_FALSE(rows.empty());
    EXPECT_EQ("2025-02-20T16:42:00-08:00", frame["from"]);
    EXPECT_EQ("2025-02-20T17:42:00-08:00", frame["to"]);
    EXPECT_EQ("", silence) << "it is as it was typed";

    const std::string told =
        "orvandiag: the time frame is 2025-02-20 16:42 to 2025-02-20 17:42 PST (UTC-08:00)";
    const struct {
        std::vector<std::string> frame;
        std::string told;
    } same[] = {
        {{"--from", "2025-02-20T16:42", "--to-time", "2025-02-20T17:42"}, told + "\n"},
        {{"--from", "2025-02-21T00:42Z", "--hours", "1"}, told + "\n"},
        {{"--from", "2025-02-21T01:42+01:00", "--to-time", "2025-02-20 17:42"}, told + "\n"},
        {{"--from", "2025-02-20 16:42:30", "--hours", "1"},
         told + "; a frame starts at a whole minute\n"},
        {{"--from", "2025-02-20 16:42:30", "--to-time", "2025-02-20 17:00"},
         told + "; wider than asked for, as a frame has whole hours from a whole minute on\n"},
    };
    for (const auto& c : same) {
        const auto [sameRows, sameFrame, err] = whatIsGathered(c.frame);
        EXPECT_EQ(rows, sameRows) << c.told;
        EXPECT_EQ(frame, sameFrame);
        EXPECT_EQ(c.told, err);
    }
}

TEST_F(FrameGather, OfTheLastHoursTakesALineOfThisMinute)
{
    const auto lastLineOf = [this](const std::vector<std::string>& frame) {
        std::vector<std::string> words = {"gather", "frame"};
        words.insert(words.end(), frame.begin(), frame.end());
        words.insert(words.end(), {"--to", target.string()});
        const Outcome gathered = run(words);
        EXPECT_EQ(0, gathered.status) << gathered.err;
        EXPECT_THAT(
            gathered.err,
            testing::ContainsRegex("^orvandiag: the time frame is [^;\n]* UTC [(]UTC[+]00:00[)]"));
        const auto rows = rowsOf(databaseIn(target), "tblTraces");
        fs::remove_all(target);
        const std::string trace = rows.empty() ? "" : rows.back().at("Trace");
        return trace.substr(0, trace.find_last_not_of(' ') + 1);
    };
    write(site / "site.ini", "[site]\ntimeZone = UTC0\n");
    const std::time_t moment = std::time(nullptr);
    std::tm now{};
    ::gmtime_r(&moment, &now);
    char stamp[20];
    char name[48];
    std::strftime(stamp, sizeof stamp, "%H:%M:%S", &now);
    std::strftime(name, sizeof name, "diag_KoNotify_%Y%m%d_%H%M%S.txt", &now);
    write(drive("KelmaOrvan/Logs") / name, std::string(stamp) + ":000,Conv,1,X,2,just now\n");
    EXPECT_EQ("just now", lastLineOf({"--last", "90s"}));
    EXPECT_EQ("just now", lastLineOf({"--last", "2 hours"}));
    EXPECT_EQ("just now", lastLineOf({"--from", "1 hour ago", "--to-time", "now"}));
}

TEST_F(FrameGather, WithoutAFrameTakesTheWizardsOwn)
{
    const Outcome planned = runJson({"gather", "frame", "--dry-run"});
    ASSERT_EQ(0, planned.status) << planned.err;
    const auto frame = planned.json()["frame"];
    const std::string from = frame["from"];
    EXPECT_EQ(":00-0", from.substr(16, 5)) << "a whole minute, by the site's clock";
    const std::time_t now = std::time(nullptr);
    std::tm parts{};
    ASSERT_NE(nullptr, ::strptime(from.substr(0, 19).c_str(), "%Y-%m-%dT%H:%M:%S", &parts));
    const std::time_t start =
        ::timegm(&parts) + (from[20] - '0') * 10 * 3'600 + (from[21] - '0') * 3'600;
    EXPECT_NEAR(static_cast<double>(now - 3'600), static_cast<double>(start), 120);
    EXPECT_THAT(planned.err, testing::StartsWith("orvandiag: the time frame is "));
}

TEST_F(FrameGather, TellsTheSitesClockWhereAFrameLiesAheadOfIt)
{
    const Outcome refused = gather("2999-01-01 00:00", "1");
    EXPECT_EQ(1, refused.status);
    EXPECT_THAT(refused.err, testing::ContainsRegex(
                                 "starts in the future, at 2999-01-01 00:00 PST [(]UTC-08:00[)]; "
                                 "the site's clock says 20[0-9-]* [0-9:]* P[SD]T [(]UTC"));
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

} // namespace
