#include "runtime/spreadsheet_cell.h"

#include <gtest/gtest.h>

namespace {

TEST(WithoutFormulas, PutsAnApostropheBeforeWhatBeginsAFormula)
{
    EXPECT_EQ("'=1+1", withoutFormulas("=1+1"));
    EXPECT_EQ("'+cmd|' /C calc'!A0", withoutFormulas("+cmd|' /C calc'!A0"));
    EXPECT_EQ("'-2+3", withoutFormulas("-2+3"));
    EXPECT_EQ("'@SUM(A1)", withoutFormulas("@SUM(A1)"));
    EXPECT_EQ("'\uFF1D1", withoutFormulas("\uFF1D1")) << "full width";
}

TEST(WithoutFormulas, LooksBehindBlanksTabsAndLineEnds)
{
    EXPECT_EQ("  '=1", withoutFormulas("  =1"));
    EXPECT_EQ("\t'=1", withoutFormulas("\t=1"));
    EXPECT_EQ("\r\n'=1", withoutFormulas("\r\n=1"));
}

TEST(WithoutFormulas, LooksWhereAnotherSeparatorWouldBeginACell)
{
    EXPECT_EQ("a;'=1;b", withoutFormulas("a;=1;b"));
    EXPECT_EQ("a;\"'=1\"", withoutFormulas("a;\"=1\""));
    EXPECT_EQ("a\n'-b", withoutFormulas("a\n-b"));
}

TEST(WithoutFormulas, LeavesTextsAndNumbersAlone)
{
    for (const char* cell : {"", "a", "a=1", "a - b", "-12", "+3.5", "-0.25", "2025-02-20 16:42",
                             "'=1", "a;b", "12;3", "caf\u00e9"})
        EXPECT_EQ(cell, withoutFormulas(cell));
    EXPECT_EQ("'-", withoutFormulas("-"));
}

} // namespace
