#include "backends/odbc/diagnostic.h"

#include <gtest/gtest.h>

namespace {

Failure failure(const std::string& state, ServerKind server = ServerKind::other, int number = 0,
                const std::string& text = "")
{
    return failureOf({state, number, text}, server);
}

TEST(OdbcDiagnostic, IsOneLineWithoutTheNamesOfWhoPassedItOn)
{
    EXPECT_EQ("Login failed.", oneLine("[unixODBC][Driver Manager][FreeTDS] Login failed.\n"));
    EXPECT_EQ("ERROR: unlucky flags; Error while executing the query",
              oneLine("ERROR: unlucky flags;\r\n\tError while executing the query"));
    EXPECT_EQ("no [array] here", oneLine("no [array] here"));
    EXPECT_EQ("[open", oneLine("[open"));
    EXPECT_EQ("", oneLine("[a][b]"));
}

TEST(OdbcDiagnostic, TellsALostConnectionByItsState)
{
    for (const char* state : {"08001", "08003", "08S01", "57P01"})
        EXPECT_EQ(Failure::connectionLost, failure(state)) << state;
}

TEST(OdbcDiagnostic, TellsAMissingViewAndAWaitByTheirStates)
{
    EXPECT_EQ(Failure::noSuchTable, failure("42S02"));
    EXPECT_EQ(Failure::noSuchTable, failure("42P01"));
    EXPECT_EQ(Failure::timedOut, failure("HYT00"));
    EXPECT_EQ(Failure::timedOut, failure("57014"));
    EXPECT_EQ(Failure::refused, failure("42S22"));
    EXPECT_EQ(Failure::refused, failure(""));
}

TEST(OdbcDiagnostic, TellsTheFailuresOfAFileByTheNumbersOfItsServerAlone)
{
    EXPECT_EQ(Failure::connectionLost, failure("HY000", ServerKind::sqlite, 26));
    EXPECT_EQ(Failure::refused, failure("HY000", ServerKind::postgres, 26));
    EXPECT_EQ(Failure::noSuchTable,
              failure("HY000", ServerKind::sqlite, 1, "no such table: vw_None (1)"));
    EXPECT_EQ(Failure::refused, failure("HY000", ServerKind::sqlite, 1, "no such column: x (1)"));
}

} // namespace
