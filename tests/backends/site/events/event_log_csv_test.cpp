#include "backends/site/events/event_log_csv.h"

#include "text/utf8.h"

#include <gtest/gtest.h>

#include <random>

namespace {

TEST(EventLogCsvLine, WritesTheColumnsOfARecord)
{
    struct Case {
        const char* because;
        std::string line;
        std::string expected;
    };
    const Case cases[] = {
        {"a record with one text",
         R"({"time":"2005-10-08 15:23:07","type":"Warning","source":"Disk","id":52,)"
         R"("computer":"VOICE01","inserts":["Drive C: is full"]})",
         "2005-10-08 15:23:07,Warning,Disk,52,VOICE01,Drive C: is full\r\n"},
        {"several texts are joined", R"({"inserts":["a","b",3,true]})",
         ",,,,,\"a, b, 3, true\"\r\n"},
        {"empty ones too, wherever they stand", R"({"inserts":["","b","","d",""]})",
         ",,,,,\", b, , d, \"\r\n"},
        {"even if there are no others", R"({"inserts":["",null]})", ",,,,,\", \"\r\n"},
        {"none give no message", R"({"id":1,"inserts":[]})", ",,,1,,\r\n"},
        {"what is missing stays empty", "{}", ",,,,,\r\n"},
        {"null too", R"({"time":null,"inserts":[null]})", ",,,,,\r\n"},
        {"types by number have their classic words", R"({"type":1})", ",Error,,,,\r\n"},
        {"information", R"({"type":4})", ",Information,,,,\r\n"},
        {"a type without a word is its number", R"({"type":10})", ",10,,,,\r\n"},
        {"quotation marks double", R"({"source":"a \"b\""})", ",,\"a \"\"b\"\"\",,,\r\n"},
        {"line ends are quoted", R"({"source":"a\r\nb"})", ",,\"a\r\nb\",,,\r\n"},
        {"any script", R"({"source":"é参"})", ",,é参,,,\r\n"},
        {"the tool's own events are sentences",
         R"({"source":"OrvanDiagnosticTool_MC","id":10004,"inserts":["GA - Calls"]})",
         ",,OrvanDiagnosticTool_MC,10004,,The macro trace was turned on: GA - Calls\r\n"},
        {"whether or not they have texts",
         R"({"source":"OrvanDiagnosticTool_MC","id":10002,"inserts":[]})",
         ",,OrvanDiagnosticTool_MC,10002,,The diagnostic tool was loaded.\r\n"},
        {"an event of another source has its own number", R"({"source":"X","id":10004})",
         ",,X,10004,,\r\n"},
        {"a blank line is none", " \t\r", ""},
        {"a damaged line is kept as the message", "{\"time\":\"2005",
         ",,,,,\"{\"\"time\"\":\"\"2005\"\r\n"},
        {"so is a value that is no record", "[1]", ",,,,,[1]\r\n"},
        {"and bytes of a code page", "caf\xE9", ",,,,,caf\xEF\xBF\xBD\r\n"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_EQ(c.expected, eventLogCsvLine(c.line));
    }
}

TEST(EventLogCsvLine, HasNoFormulaForASpreadsheet)
{
    const std::string line =
        R"json({"source":"=cmd()","id":7,"computer":"@A1","inserts":["+1+2","plain"]})json";

    EXPECT_EQ(",,=cmd(),7,@A1,\"+1+2, plain\"\r\n", eventLogCsvLine(line));
    EXPECT_EQ(",,'=cmd(),7,'@A1,\"'+1+2, plain\"\r\n",
              eventLogCsvLine(line, CsvReader::spreadsheet));
    EXPECT_EQ(",,,,,'=1+1\r\n", eventLogCsvLine("=1+1", CsvReader::spreadsheet));
}

TEST(EventLogCsvLine, StaysCalmWithDeepNesting)
{
    const std::string deep(200'000, '[');

    EXPECT_EQ(",,,,," + deep + "\r\n", eventLogCsvLine(deep));
    const auto nested = "{\"inserts\":" + std::string(5000, '[') + std::string(5000, ']') + "}";
    EXPECT_EQ(0u, eventLogCsvLine(nested).find(",,,,,"));
}

TEST(EventLogCsvLine, GivesUtf8ForAnyBytes)
{
    const std::string pieces[] = {"{", "}", "\"id\"", ":",       ",",    "\"a\"",       "[",
                                  "]", "1", "\xE9",   "\\u00e9", "null", "\"inserts\"", "\""};
    std::mt19937 random(17);
    for (int round = 0; round < 5000; ++round) {
        std::string line;
        for (unsigned count = random() % 20; count > 0; --count) line += pieces[random() % 14];
        EXPECT_TRUE(isUtf8(eventLogCsvLine(line))) << line;
    }
}

} // namespace
