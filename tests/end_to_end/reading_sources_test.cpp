#include "end_to_end/merged_reading.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <set>

namespace {

using nlohmann::json;
using testing::HasSubstr;

using Words = std::vector<std::string>;

TEST_F(MergedReading, ReadsTheOthersWhereALogIsMissing)
{
    const std::string log = currentLog();
    const Outcome shown = run({"read", "none.txt", log, "-n", "5"});
    EXPECT_EQ(1, shown.status);
    EXPECT_THAT(shown.err, testing::MatchesRegex("orvandiag: the log \"none.txt\" can not be "
                                                 "found, neither here nor in [^\n]*\n"));
    EXPECT_EQ(6u, linesOf(shown.out).size());
}

TEST_F(MergedReading, OfNoRowIsNothingAndASuccess)
{
    for (const Words& words :
         {Words{"read", "--component", "None"}, Words{"--json", "read", "--component", "None"},
          Words{"read", currentLog(), "--grep", "nowhere at all"},
          Words{"read", "--until", "2001-01-01", "--format", "csv"}}) {
        const Outcome shown = run(words);
        EXPECT_EQ(0, shown.status);
        EXPECT_EQ("", shown.out);
    }
}

TEST_F(MergedReading, RefusesWhatMakesNoSense)
{
    const std::vector<Words> cases = {
        {"--grep", "("},
        {"--since", "never"},
        {"--last", "2"},
        {"--level", "high"},
        {"--exclude", "level"},
        {"--exclude", "colour=red"},
        {"--count-by", "colour"},
        {"--columns", "number,colour"},
        {"--count", "--calls"},
        {"--count", "--format", "raw"},
        {"-n", "3", "--tail", "3"},
        {"--last", "2h", "--since", "15:20"},
        {"--excel"},
        {"--format", "raw", "--columns", "level"},
        {"--format", "xml"},
        {"-n", "0"},
    };
    for (Words words : cases) {
        SCOPED_TRACE(testing::PrintToString(words));
        words.insert(words.begin(), "read");
        const Outcome refused = run(words);
        EXPECT_EQ(2, refused.status);
        EXPECT_EQ("", refused.out);
        EXPECT_EQ(1, std::count(refused.err.begin(), refused.err.end(), '\n')) << refused.err;
    }
}

TEST_F(MergedReading, EndsQuietlyWhereNobodyReadsOn)
{
    for (const std::string format : {"table", "raw", "json", "csv", "otlp"}) {
        const Outcome ended =
            shell("$O read --format " + format + " | head -c 100 >&2; echo ${PIPESTATUS[0]}");
        EXPECT_EQ("0\n", ended.out);
        EXPECT_EQ(100u, ended.err.size()) << ended.err;
    }
}

TEST_F(MergedReading, EndsQuietlyWhereThePersonWishesItToEnd)
{
    const Outcome ended =
        shell("sleep 1 | timeout --preserve-status -s INT 0.3 $O read -; echo $?");
    EXPECT_EQ("130\n", ended.out);
    EXPECT_EQ("", ended.err);
}

TEST_F(MergedReading, ReadsStandardInput)
{
    const std::string path = drive("KelmaOrvan/Logs/" + currentLog()).string();
    const std::string all = run({"read", path, "--format", "json"}).out;
    EXPECT_EQ(all, shell("cat " + path + " | $O read - --format json").out);
    EXPECT_EQ(all, shell("$O read - --format json < " + path).out);
}

TEST_F(MergedReading, ReadsWhatAnotherProgramWritesToAPipe)
{
    const std::string path = drive("KelmaOrvan/Logs/" + currentLog()).string();
    const std::string pipe = (folder / "pipe").string();
    const Outcome shown = shell("mkfifo " + pipe + "; cat " + path + " > " + pipe + " & $O read " +
                                pipe + " --count");
    EXPECT_EQ(0, shown.status) << shown.err;
    EXPECT_EQ(run({"read", path, "--count"}).out, shown.out);
}

TEST_F(MergedReading, FailsWhereAFolderCanBeReadInPartAlone)
{
    ASSERT_EQ(0, run({"gather", "frame", "--from", "2025-02-20 15:00", "--hours", "1", "--to",
                      target.string()})
                     .status);
    for (const auto& entry : std::filesystem::directory_iterator(target))
        if (entry.path().extension() == ".mdb")
            std::filesystem::resize_file(entry, std::filesystem::file_size(entry) / 2);
    const Outcome shown = run({"read", target.string(), "--count"});
    EXPECT_EQ(1, shown.status);
    EXPECT_NE("", shown.out) << "but what can be read is";
    EXPECT_THAT(shown.err, HasSubstr("can't be read"));
}

TEST_F(MergedReading, NeedsNoServerForFilesOfThisMachine)
{
    const std::string path = drive("KelmaOrvan/Logs/" + currentLog()).string();
    const std::string none = (folder / "none").string();
    const Outcome shown = orvandiag({"--site", none, "read", path});
    EXPECT_EQ(0, shown.status) << shown.err;
    EXPECT_EQ(run({"read", path}).out, shown.out);
    const Outcome refused = orvandiag({"--site", none, "read", "none.txt"});
    EXPECT_EQ(1, refused.status);
    EXPECT_THAT(refused.err, HasSubstr("is not a site"));
    const Outcome missing = orvandiag({"--site", none, "read", "./none.txt"});
    EXPECT_EQ(1, missing.status);
    EXPECT_EQ("orvandiag: the log \"./none.txt\" can not be found\n", missing.err);
}

TEST_F(MergedReading, ReadsWhatAGatherOfAFrameLeaves)
{
    ASSERT_EQ(0, run({"gather", "frame", "--from", "2025-02-20 15:00", "--hours", "1", "--to",
                      target.string()})
                     .status);
    std::string database;
    std::string cabinet;
    for (const auto& entry : std::filesystem::directory_iterator(target)) {
        if (entry.path().extension() == ".mdb") database = entry.path().string();
        if (entry.path().extension() == ".cab") cabinet = entry.path().string();
    }
    const auto stored =
        rows({database, "--process", "KoCSMgr", "--exclude", "component=Data File"});
    const auto logged = rows({"--process", "KoCSMgr", "--since", "2025-02-20 15:00", "--until",
                              "2025-02-20 16:00:00.000", "--exclude", "component=Data File"});
    EXPECT_FALSE(stored.empty());
    EXPECT_EQ(logged.size(), stored.size());
    EXPECT_EQ(run({"read", database, "--count"}).out,
              run({"read", cabinet, "--exclude", "process=", "--count"}).out);
    EXPECT_EQ(0, run({"read", target.string(), "--count"}).status);
}

TEST_F(MergedReading, OfATraceDatabaseAloneGoesByTimeOverItsProcesses)
{
    ASSERT_EQ(0, run({"gather", "frame", "--from", "2025-02-20 15:00", "--hours", "1", "--to",
                      target.string()})
                     .status);
    std::string database;
    for (const auto& entry : std::filesystem::directory_iterator(target))
        if (entry.path().extension() == ".mdb") database = entry.path().string();
    const auto stored = rows({database});
    std::vector<std::string> moments;
    std::set<std::string> processes;
    for (const auto& row : stored) {
        moments.push_back(row.at("moment"));
        processes.insert(row.at("process"));
    }
    EXPECT_GT(processes.size(), 3u);
    EXPECT_TRUE(std::is_sorted(moments.begin(), moments.end()));
    const auto first = rows({database, "-n", "20"});
    EXPECT_EQ(std::vector<json>(stored.begin(), stored.begin() + 20),
              std::vector<json>(first.begin(), first.end()));
}

TEST_F(MergedReading, SaysWhyNoRowHasAPort)
{
    for (const Words& words : {Words{"--port", "7", "--count"}, Words{"--count-by", "port"}}) {
        Words asked = words;
        asked.insert(asked.begin(), "read");
        const Outcome shown = run(asked);
        EXPECT_EQ(0, shown.status);
        EXPECT_EQ("orvandiag: no row has a port; a server writes them with extended log fields\n",
                  shown.err);
    }
    useExtendedSite();
    const Outcome shown = run({"read", "--port", "7", "--count"});
    EXPECT_EQ("", shown.err);
    EXPECT_NE("0\n", shown.out);
}

TEST_F(MergedReading, OfATraceDatabaseHasTheColumnsOfItsTable)
{
    useExtendedSite();
    ASSERT_EQ(0, run({"gather", "frame", "--from", "2025-02-20 15:00", "--hours", "1", "--to",
                      target.string()})
                     .status);
    std::string database;
    for (const auto& entry : std::filesystem::directory_iterator(target))
        if (entry.path().extension() == ".mdb") database = entry.path().string();
    const auto stored = rows({database});
    ASSERT_FALSE(stored.empty());
    EXPECT_TRUE(std::any_of(stored.begin(), stored.end(),
                            [](const json& row) { return row.at("callId") != ""; }));
    EXPECT_TRUE(stored[0].contains("port"));
    EXPECT_FALSE(stored[0].contains("thread"));
}

TEST_F(MergedReading, OfVeryManyLogsHasTheirRowsInTurn)
{
    constexpr int logs = 150;
    constexpr int rowsOfEach = 40;
    std::vector<std::string> contents(logs);
    std::string byTime;
    std::string wanted;
    const std::string zeros = "000";
    for (int row = 0; row < rowsOfEach; ++row)
        for (int log = 0; log < logs; ++log) {
            const std::string number = std::to_string(log);
            const std::string line = "15:00:" + std::to_string(10 + row) + ":" +
                                     zeros.substr(number.size()) + number +
                                     ",Conv,12,CallFlow,7,row " + std::to_string(row) + "\n";
            contents[static_cast<std::size_t>(log)] += line;
            byTime += line;
            if (row >= 30 && row % 10 == 4) wanted += line;
        }
    std::filesystem::create_directory(folder / "many");
    for (int log = 0; log < logs; ++log)
        write(folder / "many" / ("diag_P" + std::to_string(1000 + log) + "_20250220_150000.txt"),
              contents[static_cast<std::size_t>(log)]);
    const std::string many = (folder / "many").string();
    EXPECT_EQ(byTime, run({"read", many, "--format", "raw"}).out);
    EXPECT_EQ(wanted, run({"read", many, "--format", "raw", "--last", "9s", "--grep", "4$"}).out);
    EXPECT_EQ(byTime.substr(byTime.size() - wanted.size() / 150 * 7),
              run({"read", many, "--format", "raw", "--tail", "7"}).out);
}

} // namespace
