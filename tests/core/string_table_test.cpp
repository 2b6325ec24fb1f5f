#include "core/string_table.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>

namespace {

TEST(EnglishText, IsThereForEveryIdOfTheTable)
{
    for (int id = firstTextId; id <= lastTextId; ++id) {
        EXPECT_FALSE(englishText(TextId{id}).empty()) << id;
    }
}

TEST(EnglishText, IsEmptyOutsideTheTable)
{
    for (int id : {INT_MIN, -1, 0, firstTextId - 1, lastTextId + 1, INT_MAX}) {
        EXPECT_EQ("", englishText(TextId{id})) << id;
    }
}

TEST(EnglishText, HasTheTextThatItsIdStandsFor)
{
    struct Case {
        const char* because;
        int id;
        const char* text;
    };
    const Case cases[] = {
        {"the maker, also the first address line", 1013, "Kelma Systems, Inc."},
        {"the name in the console's tree", 1015, "Kelma Orvan Diagnostics"},
        {"a button with a mnemonic", 1011, "&Browse..."},
        {"the same button elsewhere has none", 1009, "Browse..."},
        {"one title ends with a period", 1019, "Completing the Configure Macro Traces Wizard."},
        {"its sister does not", 1020, "Completing the Configure Micro Traces Wizard"},
        {"the text lacks its first letter", 1131,
         "his wizard allows you to quickly gather the logs required to troubleshoot problems."},
        {"the column of a log's line is one word", 1098, "Timestamp"},
        {"the column of a log file is two", 1097, "Time Stamp"},
        {"the message after a new log folder", 1129,
         "You must reboot this server for these changes to take effect."},
        {"the last of the table", 1149, "Include Windows System Event Log"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_EQ(c.text, englishText(TextId{c.id}));
    }
}

TEST(EnglishText, KeepsTheBlanksThatJoinItToItsNeighbours)
{
    struct Case {
        const char* because;
        std::string joined;
        const char* expected;
    };
    const auto text = [](int id) { return std::string(englishText(TextId{id})); };
    const Case cases[] = {
        {"two blanks stand between the sentences", text(1053) + "C:\\a.txt" + text(1003),
         "Log file: C:\\a.txt can not be found.  Log not processed."},
        {"a path comes first", "C:\\a.txt" + text(1004),
         "C:\\a.txt is too large to display in the Orvan Diagnostic Tool."},
        {"the default of the cycle list", "0" + text(1140) + text(1141), "0 Hours - Default"},
        {"one hour", "1" + text(1139), "1 Hour"},
        {"blanks come from the caller here",
         text(1067) + " " + text(1126) + " System " + text(1040),
         "Processing Windows System Event Log..."},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_EQ(c.expected, c.joined);
    }
}

TEST(EnglishText, FitsTheBufferThatTextsAreLoadedInto)
{
    for (int id = firstTextId; id <= lastTextId; ++id) {
        EXPECT_LT(englishText(TextId{id}).size(), 1200u) << id;
    }
}

} // namespace
