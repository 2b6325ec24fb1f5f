#include "end_to_end/merged_reading.h"

#include <gmock/gmock.h>

namespace {

using nlohmann::json;

using Words = std::vector<std::string>;

TEST_F(MergedReading, WritesRawLinesAsTheyStandInTheirLog)
{
    const std::string log = currentLog();
    std::string raw = read(drive("KelmaOrvan/Logs/" + log));
    raw.erase(std::remove(raw.begin(), raw.end(), '\r'), raw.end());
    EXPECT_EQ(raw, run({"read", log, "--format", "raw"}).out);
    const std::string odd = "15:23:07:123,Conv,1,X,2,caf\xE9 \x1B[2J\n no form \x80\n";
    write(folder / "a.txt", odd);
    EXPECT_EQ(odd, run({"read", "a.txt", "--format", "raw"}).out);
}

TEST_F(MergedReading, WritesCommaSeparatedTextThatOthersRead)
{
    write(folder / "a.txt", "15:23:07:123,Conv,1,X,2,said \"yes\", twice\n"
                            "15:23:07:124,Conv,1,X,2,=1+1\n=cmd()\n");
    const auto rowsOf = [&](const Words& more) {
        Words words = {"read", "a.txt", "--format", "csv"};
        words.insert(words.end(), more.begin(), more.end());
        const Outcome written = run(words);
        EXPECT_EQ(0, written.status) << written.err;
        write(folder / "a.csv", written.out);
        return runProgram({"python3", "-c",
                           "import csv,json;print(json.dumps(list(csv.reader("
                           "open('a.csv',newline='',encoding='utf-8'),strict=True))))"},
                          folder.string())
            .json();
    };
    const json plain = rowsOf({});
    ASSERT_EQ(4u, plain.size());
    EXPECT_EQ((json{"number", "timeStamp", "source", "traceNumber", "component", "level", "trace"}),
              plain[0]);
    EXPECT_EQ((json{"1", "15:23:07:123", "Conv", "1", "X", "2", "said \"yes\", twice "}), plain[1]);
    EXPECT_EQ("=1+1 ", plain[2][6]);
    EXPECT_EQ("=cmd()", plain[3][6]);
    const json safe = rowsOf({"--excel"});
    EXPECT_EQ("'=1+1 ", safe[2][6]);
    EXPECT_EQ("'=cmd()", safe[3][6]);
    EXPECT_EQ((json{"level", "trace"}), rowsOf({"--columns", "level,trace"})[0]);
}

TEST_F(MergedReading, FeedsCollectors)
{
    useExtendedSite();
    const auto all = rows({});
    const Outcome written = run({"read", "--format", "otlp"});
    EXPECT_EQ(0, written.status) << written.err;
    std::map<std::string, std::size_t> expected;
    std::map<std::string, std::size_t> taken;
    for (const json& row : formed(all)) ++expected[row["process"]];
    for (const std::string& line : linesOf(written.out)) {
        const json request = json::parse(line);
        for (const json& resource : request["resourceLogs"]) {
            const json& attributes = resource["resource"]["attributes"];
            EXPECT_EQ("service.name", attributes[0]["key"]);
            EXPECT_EQ("host.name", attributes[1]["key"]);
            taken[attributes[0]["value"]["stringValue"]] +=
                resource["scopeLogs"][0]["logRecords"].size();
        }
    }
    EXPECT_EQ(expected, taken);
}

TEST_F(MergedReading, GivesCollectorsUniversalTimesSeveritiesAndTraces)
{
    useExtendedSite();
    write(folder / "diag_KoCSMgr_20250220_1523.txt",
          "2025-02-20 15:23:07,Conv,12,77,4,00ff00ff00ff00ff00ff00ff00ff00FF,CallFlow,0,caf\xE9\n"
          "2025-02-20 15:23:08,Conv,12,77,4,0A,CallFlow,1,two\nits own\nand caf\xE9\n");
    const Outcome written =
        run({"read", (folder / "diag_KoCSMgr_20250220_1523.txt").string(), "--format", "otlp"});
    const json resource = written.json()["resourceLogs"][0];
    const json records = resource["scopeLogs"][0]["logRecords"];
    ASSERT_EQ(2u, records.size()) << "a row with its lines is one event";
    EXPECT_EQ("1740093787000000000", records[0]["timeUnixNano"]) << "eight hours from Greenwich";
    EXPECT_EQ(17, records[0]["severityNumber"]);
    EXPECT_EQ("0", records[0]["severityText"]);
    EXPECT_EQ("caf\u00e9", records[0]["body"]["stringValue"]);
    EXPECT_EQ("00ff00ff00ff00ff00ff00ff00ff00ff", records[0]["traceId"]);
    EXPECT_EQ(13, records[1]["severityNumber"]);
    EXPECT_FALSE(records[1].contains("traceId")) << "a short call id is no trace's";
    EXPECT_EQ("two\nits own\nand caf\u00e9", records[1]["body"]["stringValue"]);
    std::map<std::string, json> attributes;
    for (const json& attribute : records[1]["attributes"])
        attributes[attribute["key"]] = attribute["value"];
    EXPECT_EQ((json{{"intValue", "12"}}), attributes["orvan.trace_number"]);
    EXPECT_EQ((json{{"stringValue", "CallFlow"}}), attributes["orvan.component"]);
    EXPECT_EQ((json{{"stringValue", "0A"}}), attributes["orvan.call_id"]);
    EXPECT_EQ((json{{"intValue", "2"}}), attributes["orvan.line"]);
}

TEST_F(MergedReading, GivesCollectorsEveryLineOfARowWithVeryMany)
{
    std::string bytes = "15:23:07:123,Conv,1,X,2,a\n";
    constexpr int ownLines = 2000;
    for (int line = 0; line < ownLines; ++line) bytes += std::string(1000, 'x') + "\n";
    write(folder / "a.txt", bytes);
    std::ptrdiff_t lines = 0;
    for (const std::string& line : linesOf(run({"read", "a.txt", "--format", "otlp"}).out)) {
        const json request = json::parse(line);
        for (const json& record : request["resourceLogs"][0]["scopeLogs"][0]["logRecords"]) {
            const std::string body = record["body"]["stringValue"];
            lines += std::count(body.begin(), body.end(), '\n') + 1;
            EXPECT_LE(body.size(), (1U << 20) + 1001);
        }
    }
    EXPECT_EQ(ownLines + 1, lines);
}

} // namespace
