#include "backends/common/event_csv.h"

#include <gtest/gtest.h>

namespace {

TEST(EventCsv, ALineHasTheCellsInTheOrderOfTheHeader)
{
    EXPECT_EQ("t,y,s,1,c,m\r\n", eventCsvLine({"t", "y", "s", "1", "c", "m"}, CsvReader::any));
    EXPECT_EQ(",,,,,\"a, \"\"b\"\"\r\n\"\r\n",
              eventCsvLine({.message = "a, \"b\"\r\n"}, CsvReader::any));
}

TEST(EventCsv, NoCellIsAFormulaForASpreadsheet)
{
    EXPECT_EQ("'=1,,,,,'@x\r\n",
              eventCsvLine({.time = "=1", .message = "@x"}, CsvReader::spreadsheet));
}

TEST(EventCsv, TypesHaveTheirClassicWords)
{
    EXPECT_EQ("Information", eventTypeWord(0));
    EXPECT_EQ("Error", eventTypeWord(1));
    EXPECT_EQ("Warning", eventTypeWord(2));
    EXPECT_EQ("Information", eventTypeWord(4));
    EXPECT_EQ("Success Audit", eventTypeWord(8));
    EXPECT_EQ("Failure Audit", eventTypeWord(16));
    EXPECT_EQ("", eventTypeWord(10));
}

TEST(EventCsv, TextsFollowASentenceThatHasNoEnd)
{
    EXPECT_EQ("The diagnostic tool was loaded.",
              eventMessage(toolEventSentence("OrvanDiagnosticTool_MC", 10002), {"x"}));
    EXPECT_EQ("The macro trace was turned on: GA, b",
              eventMessage(toolEventSentence("OrvanDiagnosticTool_MC", 10004), {"GA", "b"}));
    EXPECT_EQ("", toolEventSentence("Another", 10004));
    EXPECT_EQ("a, , c", eventMessage("", {"a", "", "c"}));
}

} // namespace
