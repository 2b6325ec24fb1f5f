#include "end_to_end/merged_reading.h"

#include <gmock/gmock.h>

#include <regex>

namespace {

using nlohmann::json;
using testing::HasSubstr;

using Words = std::vector<std::string>;

TEST_F(MergedReading, OfAServerHasAllLinesOfItsLogsByTime)
{
    std::size_t lines = 0;
    for (const auto& entry : std::filesystem::directory_iterator(drive("KelmaOrvan/Logs"))) {
        const std::string name = entry.path().filename().string();
        const std::string content = read(entry.path());
        if (name.find("_fmtd") == std::string::npos)
            lines += static_cast<std::size_t>(std::count(content.begin(), content.end(), '\n'));
    }
    const auto all = rows({});
    EXPECT_EQ(lines, all.size());
    for (std::size_t at = 0; at < all.size(); ++at) {
        if (at > 0) {
            EXPECT_LE(all[at - 1]["moment"], all[at]["moment"]);
        }
        EXPECT_THAT(all[at]["file"], HasSubstr(all[at]["process"].get<std::string>()));
        EXPECT_EQ(all[at]["line"], all[at]["number"]);
    }
}

TEST_F(MergedReading, ChoosesRowsAsAPlainLoopDoes)
{
    useExtendedSite();
    const auto all = rows({});
    const json call = those(all, [](const json& row) { return row["callId"] != ""; })[5]["callId"];
    const auto has = [](const char* column, const json& value) {
        return [=](const json& row) { return row[column] == value; };
    };
    const struct {
        Words words;
        std::function<bool(const json&)> fits;
    } cases[] = {
        {{"--process", "kocsmgr"}, has("process", "KoCSMgr")},
        {{"--component", "CallFlow", "--component", "PortControl"},
         [](const json& row) {
             return row["component"] == "CallFlow" || row["component"] == "PortControl";
         }},
        {{"--source", "Ports"}, has("source", "Ports")},
        {{"--level", "0-1"}, [](const json& row) { return row["level"] < 2 && row["level"] >= 0; }},
        {{"--call", call}, has("callId", call)},
        {{"--port", "7"}, has("port", "7")},
        {{"--thread", all[3]["thread"]}, has("thread", all[3]["thread"])},
        {{"--number", "1200-1299"},
         [](const json& row) { return row["traceNumber"] >= 1200 && row["traceNumber"] < 1300; }},
        {{"--exclude", "level=7", "--exclude", "component=CallFlow"},
         [](const json& row) { return row["level"] != 7 && row["component"] != "CallFlow"; }},
        {{"--since", "2025-02-19 10:00", "--until", "2025-02-20 09:30"},
         [](const json& row) {
             return row["moment"] >= "2025-02-19 10:00:00.000" &&
                    row["moment"] <= "2025-02-20 09:30:00.000";
         }},
        {{"--component", "CallFlow", "--level", "2", "--process", "KoCSMgr"},
         [](const json& row) {
             return row["component"] == "CallFlow" && row["level"] == 2 &&
                    row["process"] == "KoCSMgr";
         }},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::PrintToString(c.words));
        const auto expected = those(all, c.fits);
        EXPECT_FALSE(expected.empty());
        EXPECT_EQ(expected, rows(c.words));
    }
}

TEST_F(MergedReading, FindsExpressionsInWholeLines)
{
    const std::string log = currentLog();
    const auto lines = linesOf(read(drive("KelmaOrvan/Logs/" + log)));
    const auto matching = [&](const std::regex& wanted) {
        return std::count_if(lines.begin(), lines.end(), [&](const std::string& line) {
            return std::regex_search(line, wanted);
        });
    };
    const std::string count = std::to_string(matching(std::regex("port [0-9]+,")));
    EXPECT_EQ(count + "\n", run({"read", log, "--grep", "port [0-9]+,", "--count"}).out);
    EXPECT_EQ(count + "\n",
              run({"read", log, "--grep", "PORT [0-9]+,", "--ignore-case", "--count"}).out);
    EXPECT_EQ(std::to_string(lines.size() - static_cast<std::size_t>(std::stol(count))) + "\n",
              run({"read", log, "--exclude", "grep=port [0-9]+,", "--count"}).out);
    EXPECT_EQ("0\n", run({"read", log, "--grep", "PORT [0-9]+,", "--count"}).out);
}

TEST_F(MergedReading, TakesTimesFromTheLastRow)
{
    const auto all = rows({});
    const std::string last = all.back()["moment"];
    const std::string day = last.substr(0, 10);
    const auto onThatDay = those(all, [&](const json& row) {
        return row["moment"].get<std::string>().substr(0, 10) == day;
    });
    ASSERT_LT(onThatDay.size(), all.size());
    EXPECT_EQ(onThatDay, rows({"--since", "today"}));
    EXPECT_EQ(all.size() - onThatDay.size(), rows({"--until", "yesterday"}).size());
    const auto hour = those(onThatDay, [&](const json& row) {
        return row["moment"] >= day + " 15:20:00.000" && row["moment"] <= day + " 16:20:00.000";
    });
    ASSERT_FALSE(hour.empty());
    EXPECT_EQ(hour, rows({"--since", "15:20", "--until", "16:20"}));
    EXPECT_EQ(those(hour, [](const json& row) { return row["component"] == "CallFlow"; }),
              rows({"--since", "15:20", "--until", "16:20", "--component", "CallFlow"}));
    EXPECT_EQ(hour, rows({"--since", day + "T23:20Z", "--until", day + " 19:20 -05:00"}))
        << "the sample stands eight hours behind universal time";
    EXPECT_EQ(rows({"--since", "-90m"}), rows({"--last", "90m"}));
    EXPECT_EQ(rows({"--since", "-90m"}), rows({"--since", "1 hour 30 minutes ago"}));
    EXPECT_EQ(all.size(), rows({"--until", "now"}).size());
    EXPECT_FALSE(rows({"--last", "90m"}).empty());
}

TEST_F(MergedReading, ShowsTheFirstRowsAndTheLast)
{
    const auto all = rows({});
    const auto begin = all.begin();
    EXPECT_EQ(std::vector<json>(begin, begin + 10), rows({"-n", "10"}));
    EXPECT_EQ(std::vector<json>(begin, begin + 1000), rows({"-n", "1000"}));
    EXPECT_EQ(std::vector<json>(all.end() - 7, all.end()), rows({"--tail", "7"}));
    EXPECT_EQ(all, rows({"--tail", "999999"}));
    const auto flow = those(all, [](const json& row) { return row["component"] == "CallFlow"; });
    EXPECT_EQ(std::vector<json>(flow.begin(), flow.begin() + 5),
              rows({"--component", "CallFlow", "-n", "5"}));
}

TEST_F(MergedReading, OfOneLogKeepsItsNumbersWhateverIsChosen)
{
    const std::string log = currentLog();
    const auto all = rows({log});
    EXPECT_EQ(those(all, [](const json& row) { return row["component"] == "CallFlow"; }),
              rows({log, "--component", "CallFlow"}));
    EXPECT_EQ(std::vector<json>(all.end() - 3, all.end()), rows({log, "--tail", "3"}));
}

TEST_F(MergedReading, ShowsWhatAMacroTraceTurnsOn)
{
    write(drive("OrvanDiagnostics/ZMKXML/HTZ.xml"),
          "<GA NAME=\"Z\"><TRACE NAME=\"T\"><DIAG GROUP=\"CallFlow\"><FLAG ID=\"2\"/></DIAG>"
          "<DIAG GROUP=\"PortControl\"><FLAG ID=\"4\"/><FLAG ID=\"16\"/></DIAG></TRACE></GA>");
    const auto traced = those(rows({}), [](const json& row) {
        return (row["component"] == "CallFlow" && row["level"] == 2) ||
               (row["component"] == "PortControl" && (row["level"] == 4 || row["level"] == 16));
    });
    ASSERT_FALSE(traced.empty());
    EXPECT_EQ(traced, rows({"--macro", "Z - T"}));
    const Outcome refused = run({"read", "--macro", "Z - U"});
    EXPECT_EQ(1, refused.status);
    EXPECT_EQ("orvandiag: no macro trace \"Z - U\"; did you mean \"Z - T\"?\n", refused.err);
}

TEST_F(MergedReading, TakesAMacroTraceAsTheTraceDatabaseDefinesIt)
{
    const auto define = [&](const std::string& component) {
        write(drive("OrvanDiagnostics/ZMKXML/HTZ.xml"),
              "<GA NAME=\"Zed\"><TRACE NAME=\"Tee\"><DIAG GROUP=\"" + component +
                  "\"><FLAG ID=\"2\"/></DIAG></TRACE></GA>");
    };
    define("CallFlow");
    ASSERT_EQ(0, run({"gather", "frame", "--from", "2025-02-20 15:00", "--hours", "1", "--to",
                      target.string()})
                     .status);
    std::string database;
    for (const auto& entry : std::filesystem::directory_iterator(target))
        if (entry.path().extension() == ".mdb") database = entry.path().string();
    define("PortControl"); // the server has changed since
    const auto ofComponent = [](const std::vector<json>& all, const std::string& component) {
        return those(all, [&](const json& row) {
            return row["component"] == component && row["level"] == 2;
        });
    };
    const auto stored = ofComponent(rows({database}), "CallFlow");
    ASSERT_FALSE(stored.empty());
    EXPECT_EQ(stored, rows({database, "--macro", "zed - TEE"}));
    EXPECT_EQ(ofComponent(rows({}), "PortControl"), rows({"--macro", "Zed - Tee"}));

    const std::string none = (folder / "none").string();
    const Outcome alone =
        orvandiag({"--site", none, "--json", "read", database, "--macro", "Zed - Tee"});
    EXPECT_EQ(0, alone.status) << alone.err;
    EXPECT_EQ(stored.size(), linesOf(alone.out).size());
    const Outcome refused = orvandiag({"--site", none, "read", database, "--macro", "Zed - Te"});
    EXPECT_EQ(1, refused.status);
    EXPECT_EQ("orvandiag: no macro trace \"Zed - Te\" in the trace databases; did you mean "
              "\"Zed - Tee\"?\n",
              refused.err);
    const Outcome unknown = run({"read", database, "--macro", "Nobody's"});
    EXPECT_EQ("orvandiag: no macro trace \"Nobody's\", neither in the trace databases nor at the "
              "server; orvandiag macro lists the server's\n",
              unknown.err);
}

TEST_F(MergedReading, ReadsLettersByTheCodePageThatAPersonNames)
{
    write(folder / "a.txt", "15:23:07:123,Conv,1,X,2,\xC4\xE0\n");
    const std::string log = (folder / "a.txt").string();
    EXPECT_EQ("\u00c4\u00e0 ", rows({log})[0]["trace"]);
    EXPECT_EQ("\u0414\u0430 ", rows({log, "--code-page", "1251"})[0]["trace"]);
    EXPECT_EQ(1u, rows({log, "--code-page", "1251", "--grep", "\u0414\u0430$"}).size());
    const Outcome alone = orvandiag(
        {"--site", (folder / "none").string(), "--json", "read", log, "--code-page", "1251"});
    EXPECT_THAT(alone.out, HasSubstr("\u0414\u0430"));
    const Outcome refused = run({"read", log, "--code-page", "65001"});
    EXPECT_EQ(2, refused.status);
    EXPECT_THAT(refused.err, HasSubstr("\"65001\" is no code page that is known; there are 437, "));
    EXPECT_THAT(refused.err, HasSubstr(" 1252, "));
}

TEST_F(MergedReading, RefusesAChoiceWithNothingInIt)
{
    write(folder / "a.txt", "15:23:07:123,Conv,1,X,2,text\n");
    for (const char* option :
         {"--since", "--until", "--last", "--macro", "--count-by", "--columns"}) {
        const Outcome refused = run({"read", (folder / "a.txt").string(), option, ""});
        EXPECT_EQ(2, refused.status) << option;
        EXPECT_EQ("", refused.out) << option;
        EXPECT_THAT(refused.err, HasSubstr(std::string(option) + ": there is nothing in it"));
    }
}

TEST_F(MergedReading, ShowsTimesOfDataFilesInTheZoneThatAPersonNames)
{
    write(folder / "diag_KoCSMgr_20250220_1523.txt", "2025-02-20 15:23:07,Conv,12,CallFlow,0,a\n");
    const std::string log = (folder / "diag_KoCSMgr_20250220_1523.txt").string();
    const auto universal = [&](Words words) {
        words.insert(words.end(), {"read", log, "--format", "otlp"});
        return words;
    };
    const auto timeOf = [](const Outcome& shown) {
        return shown.json()["resourceLogs"][0]["scopeLogs"][0]["logRecords"][0]["timeUnixNano"];
    };
    Words words = universal({});
    EXPECT_EQ("1740093787000000000", timeOf(run(words))) << "the server's, eight hours behind";
    words.insert(words.end(), {"--zone", "+01:00"});
    EXPECT_EQ("1740061387000000000", timeOf(run(words)));
    words.back() = "CET-1CEST,M3.5.0,M10.5.0/3";
    EXPECT_EQ("1740061387000000000", timeOf(run(words)));
    write(folder / "data_B_20250220_152307.txt", "2025-02-20 23:30:00,Conv,12,one\n");
    const std::string data = (folder / "data_B_20250220_152307.txt").string();
    const Words shown = {data, data, "--columns", "moment", "-n", "1"};
    const auto momentIn = [&](const std::string& zone) {
        Words asked = shown;
        if (!zone.empty()) asked.insert(asked.end(), {"--zone", zone});
        return rows(asked)[0]["moment"];
    };
    EXPECT_EQ("2025-02-20 15:30:00.000", momentIn(""));
    EXPECT_EQ("2025-02-21 00:30:00.000", momentIn("+01:00"));
    EXPECT_EQ("2025-02-21 00:30:00.000", momentIn("CET-1CEST,M3.5.0,M10.5.0/3"));
    words.back() = "Mars/Olympus";
    const Outcome refused = run(words);
    EXPECT_EQ(2, refused.status);
    EXPECT_THAT(refused.err, HasSubstr("the zone \"Mars/Olympus\" is neither"));
}

TEST_F(MergedReading, CountsByEveryColumn)
{
    useExtendedSite();
    const auto all = rows({});
    for (const std::string column :
         {"process", "source", "component", "level", "thread", "port", "callId", "traceNumber"}) {
        SCOPED_TRACE(column);
        std::map<std::string, int> expected;
        for (const json& row : all)
            if (!row.contains("raw"))
                ++expected[row[column].is_string() ? row[column].get<std::string>()
                                                   : row[column].dump()];
        std::map<std::string, int> counted;
        for (const json& value : runJson({"read", "--count-by", column}).json())
            counted[value[column]] = value["rows"];
        EXPECT_EQ(expected, counted);
    }
    EXPECT_THAT(run({"read", "--count-by", "component", "--format", "csv"}).out,
                testing::StartsWith("component,rows\r\n"));
}

TEST_F(MergedReading, DrawsRowsOverTime)
{
    const auto all = formed(rows({"--last", "2h"}));
    const json buckets = runJson({"read", "--last", "2h", "--histogram"}).json();
    std::size_t counted = 0;
    for (std::size_t at = 0; at < buckets.size(); ++at) {
        const std::string from = buckets[at]["from"];
        const std::string to = at + 1 < buckets.size() ? buckets[at + 1]["from"] : json("9");
        const auto those_ = those(
            all, [&](const json& row) { return row["moment"] >= from && row["moment"] < to; });
        EXPECT_EQ(those_.size(), buckets[at]["rows"]) << from;
        counted += buckets[at]["rows"].get<std::size_t>();
    }
    EXPECT_EQ(all.size(), counted);
    const auto chart = linesOf(run({"read", "--last", "2h", "--histogram"}).out);
    EXPECT_EQ(buckets.size(), chart.size());
    EXPECT_THAT(chart[0], testing::ContainsRegex("^2025-02-20 1[0-9]:[0-9][0-9]  [!+#]+ "));
}

TEST_F(MergedReading, FollowsCallsThroughTheSystem)
{
    useExtendedSite();
    const auto all = rows({});
    const json calls = runJson({"read", "--calls"}).json();
    ASSERT_FALSE(calls.empty());
    for (std::size_t at = 0; at < calls.size(); at += 7) {
        const json& call = calls[at];
        const auto its =
            formed(those(all, [&](const json& row) { return row["callId"] == call["callId"]; }));
        ASSERT_FALSE(its.empty());
        EXPECT_EQ(its.size(), call["rows"]);
        EXPECT_EQ(its.front()["moment"], call["first"]);
        EXPECT_EQ(its.back()["moment"], call["last"]);
        for (const json& row : its)
            EXPECT_THAT(call["processes"].get<Words>(), testing::Contains(row["process"]));
    }
}

} // namespace
