#include "end_to_end/sample_site.h"

#include <gmock/gmock.h>

namespace {

using testing::HasSubstr;

struct ReadCommand : SampleSite {
    std::vector<nlohmann::json> rows(const std::string& log)
    {
        std::vector<nlohmann::json> result;
        const Outcome shown = runJson({"read", log});
        EXPECT_EQ(0, shown.status) << shown.err;
        std::istringstream lines(shown.out);
        for (std::string line; std::getline(lines, line);)
            result.push_back(nlohmann::json::parse(line));
        return result;
    }

    std::string put(const std::string& content)
    {
        const auto file = folder / "a.txt";
        write(file, content);
        return file.string();
    }
};

TEST_F(ReadCommand, ShowsEveryLineOfTheCurrentLogAsARow)
{
    const std::string log = currentLog();
    const std::string raw = read(drive("KelmaOrvan/Logs/" + log));
    std::size_t lines = 0;
    std::istringstream stream(raw);
    for (std::string line; std::getline(stream, line);) lines += line.size() > 1 ? 1 : 0;
    const auto all = rows(log);
    EXPECT_EQ(lines, all.size());
    EXPECT_EQ(1, all[0]["number"]);
    EXPECT_EQ(lines, all.back()["number"]);
    const std::string firstTime = raw.substr(0, raw.find(','));
    EXPECT_EQ(firstTime, all[0]["timeStamp"]);
    EXPECT_FALSE(all[0].contains("callId"));
}

TEST_F(ReadCommand, TakesARawLineApart)
{
    const auto all = rows(put("15:23:07:123,Conv,1234,CallFlow,7,Call answered, at once\r\n\r\n"
                              "2005-10-08 15:23:08,Conv,5,X,0,caf\xE9 \x80 \"q\"\\\n"
                              "15:23:09:001 (Src,9,Comp,3) formatted already"));
    ASSERT_EQ(3u, all.size()) << "the blank line is no row";
    EXPECT_EQ("15:23:07:123", all[0]["timeStamp"]);
    EXPECT_EQ("Conv", all[0]["source"]);
    EXPECT_EQ(1234, all[0]["traceNumber"]);
    EXPECT_EQ("CallFlow", all[0]["component"]);
    EXPECT_EQ(7, all[0]["level"]);
    EXPECT_EQ("Call answered, at once ", all[0]["trace"]);
    EXPECT_EQ("2005-10-08 15:23:08", all[1]["timeStamp"]);
    EXPECT_EQ("caf\u00e9 \u20ac \"q\"\\ ", all[1]["trace"]) << "decoded from the code page";
    EXPECT_EQ(3, all[2]["number"]);
    EXPECT_EQ("formatted already ", all[2]["trace"]);
}

TEST_F(ReadCommand, ShowsALineOfNoKnownFormAsItIs)
{
    const std::string file = put("2005-10-08 22:23:07,Conv,12,caf\xE9 \"opened\"\r\n"
                                 "15:23:07:123,Conv,1234,CallFlow,7,Call answered\r\n"
                                 "*** lost\r\n");
    const auto all = rows(file);
    ASSERT_EQ(3u, all.size());
    EXPECT_EQ("2005-10-08 22:23:07,Conv,12,caf\u00e9 \"opened\"", all[0]["raw"]);
    EXPECT_EQ("", all[0]["timeStamp"]) << "the row itself stays blank";
    EXPECT_EQ(0, all[0]["traceNumber"]);
    EXPECT_EQ("", all[0]["trace"]);
    EXPECT_FALSE(all[1].contains("raw"));
    EXPECT_EQ("*** lost", all[2]["raw"]);

    const Outcome plain = run({"read", file});
    EXPECT_THAT(plain.out, HasSubstr(" 2005-10-08 22:23:07,Conv,12,caf\u00e9 \"opened\"\n"));
    EXPECT_THAT(plain.out, HasSubstr(" *** lost\n"));
}

TEST_F(ReadCommand, AlignsItsColumnsUnderHeadersOfWideLetters)
{
    std::string settings = read(site / "site.ini");
    settings.replace(settings.find("language=1033"), 13, "language=1041");
    write(site / "site.ini", settings);
    const std::string file = put("15:23:07:123,Conv,12,Call,7,end\r\n");

    std::istringstream lines(run({"read", file}).out);
    std::string header;
    std::string row;
    std::getline(lines, header);
    std::getline(lines, row);
    ASSERT_EQ('\xE3', header[header.rfind(' ') + 1]) << "a Japanese letter in " << header;
    std::size_t shown = 0; // each of these letters has three bytes and two columns
    for (const unsigned char byte : header.substr(0, header.rfind(' ') + 1))
        shown += byte < 0x80 ? 1 : byte >= 0xC0 ? 2 : 0;
    EXPECT_EQ(row.find("end"), shown) << header << "\n" << row;
}

TEST_F(ReadCommand, WritesEveryTextAsJsonReadsIt)
{
    const struct {
        const char* because;
        const char* trace;
        const char* read;
    } cases[] = {
        {"quotes", R"(said "yes")", R"(said "yes" )"},
        {"a path", R"(opened C:\logs\)", R"(opened C:\logs\ )"},
        {"nothing but what is escaped", R"("\")", R"("\" )"},
        {"a tab and a control character", "a\tb\x01 c", "a\tb\x01 c "},
        {"a byte above ASCII", "caf\xE9 \"x\"", "caf\u00e9 \"x\" "},
        {"no trace at all", "", " "},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        const auto all = rows(put(std::string("15:23:07:123,Conv,1234,CallFlow,7,") + c.trace));
        ASSERT_EQ(1u, all.size());
        EXPECT_EQ(c.read, all[0]["trace"]);
        EXPECT_EQ(7, all[0]["level"]);
    }
}

TEST_F(ReadCommand, ShowsTheExtendedFieldsOfANewerServer)
{
    const auto other = (folder / "extended").string();
    ASSERT_EQ(0, orvandiag({"sample", other, "--lines", "500", "--fields", "extended"}).status);
    const std::string file = put(
        "15:23:07:123,Conv,1234,77,12,00ff00ff00ff00ff00ff00ff00ff00ff,CallFlow,7,Call answered");
    const auto row = orvandiag({"--json", "--site", other, "read", file}).json();
    EXPECT_EQ("77", row["thread"]);
    EXPECT_EQ("12", row["port"]);
    EXPECT_EQ("00ff00ff00ff00ff00ff00ff00ff00ff", row["callId"]);
    EXPECT_EQ("Call answered ", row["trace"]) << "without the long call id at its head";
}

TEST_F(ReadCommand, SurvivesWhateverAFileHolds)
{
    struct Case {
        const char* because;
        std::string content;
    };
    std::string garbage;
    for (unsigned i = 0, state = 7; i < 200'000; ++i) {
        state = state * 1664525 + 1013904223;
        garbage += static_cast<char>(state >> 24);
    }
    const Case cases[] = {
        {"nothing", ""},
        {"only line ends", "\n\r\n\n"},
        {"NUL bytes", std::string(100, '\0') + "\n" + std::string(30, '\0')},
        {"binary garbage", garbage},
        {"a line of two megabytes", "15:23:07:123,Conv,1,X,2," + std::string(2'000'000, 'x')},
        {"no last line end", "15:23:07:123,Conv,1,X,2,end"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        const std::string file = put(c.content);
        EXPECT_EQ(0, runJson({"read", file}).status);
        const Outcome plain = run({"read", file});
        EXPECT_EQ(0, plain.status) << plain.err;
        EXPECT_EQ(c.content, read(file)) << "reading changes nothing";
    }
}

TEST_F(ReadCommand, ShowsALogOfAnySize)
{
    std::string content;
    while (content.size() < 3'000'000)
        content += "15:23:07:123,Conv,1,X,2," + std::string(80, 'x') + "\n";
    const std::string file = put(content);
    const auto lines = std::count(content.begin(), content.end(), '\n');
    EXPECT_EQ(std::to_string(lines) + "\n", run({"read", file, "--count"}).out);
    const Outcome shown = run({"read", file});
    EXPECT_EQ(0, shown.status) << shown.err;
    EXPECT_EQ(lines + 1, std::count(shown.out.begin(), shown.out.end(), '\n'));
}

} // namespace
