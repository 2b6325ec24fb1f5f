#include "backends/odbc/connection_string.h"

#include "support/error_of.h"

#include <gtest/gtest.h>

namespace {

using Names = std::vector<std::string>;

constexpr const char* toolsOwn =
    "Provider=SQLOLEDB.1;Integrated Security=SSPI;Persist Security Info=False;Initial "
    "Catalog=OrvanDirDb;Data Source=(local)\\kelmaorvan";

const Names drivers = {"SQLite3", "PostgreSQL Unicode"};

TEST(ServerDriver, IsTheNewestByItsNumber)
{
    EXPECT_EQ("ODBC Driver 18 for SQL Server",
              newestServerDriver(Names{"SQL Server", "ODBC Driver 9 for SQL Server",
                                       "ODBC Driver 18 for SQL Server",
                                       "ODBC Driver 17 for SQL Server"}));
    EXPECT_EQ("SQL Server Native Client 11.0",
              newestServerDriver(Names{"SQL Server Native Client 11.0", "SQL Server Native Client",
                                       "SQL Server Native Client 10.0"}));
}

TEST(ServerDriver, OfAnOlderFamilyServesWhereThereIsNoNewerOne)
{
    EXPECT_EQ("ODBC Driver 13 for SQL Server",
              newestServerDriver(
                  Names{"SQL Server Native Client 11.0", "ODBC Driver 13 for SQL Server"}));
    EXPECT_EQ("SQL Server Native Client 11.0",
              newestServerDriver(Names{"SQL Server", "SQL Server Native Client 11.0"}));
    EXPECT_EQ("SQL Server", newestServerDriver(Names{"SQLite3", "SQL Server"}));
}

TEST(ServerDriver, IsNoneOfAnotherServer)
{
    EXPECT_EQ(std::nullopt, newestServerDriver({}));
    EXPECT_EQ(std::nullopt, newestServerDriver(Names{"PostgreSQL Unicode", "SQLite3",
                                                     "SQL Server Compact", "ODBC Driver 18"}));
}

TEST(ConnectionString, OfTheToolBecomesOneOfOdbc)
{
    EXPECT_EQ("Driver=SQL Server;Server=(local)\\kelmaorvan;Database=OrvanDirDb;"
              "Trusted_Connection=yes;TrustServerCertificate=yes",
              odbcConnectionString(toolsOwn, "SQL Server", "", ""));
}

TEST(ConnectionString, OfTheToolGoesByTheAdministratorsAccountWhateverUserIsGiven)
{
    EXPECT_NE(std::string::npos,
              odbcConnectionString(toolsOwn, "SQL Server", "sa", "x").find("Trusted_Connection"));
    EXPECT_EQ("Driver=D;Server=here;UID=me;PWD={a;}}b};TrustServerCertificate=yes",
              odbcConnectionString("data source = here ", "D", "me", "a;}b"));
}

TEST(ConnectionString, WithoutAServerIsRefused)
{
    for (const char* none : {"", ";;;", "Data Source", "Data Source=", "garbage"})
        EXPECT_EQ(-2147467259, errorOf([&] { odbcConnectionString(none, "D", "", ""); })) << none;
}

TEST(ConnectionStringOfASource, IsTheSourceItselfOrItsName)
{
    EXPECT_EQ("driver=PostgreSQL Unicode;Server=here;Port=5432;PWD={a=b}",
              connectionStringOfSource(
                  " driver = {PostgreSQL Unicode}; Server=here;;Port=5432;PWD={a=b} ;", drivers));
    EXPECT_EQ("DSN=OrvanDirDb", connectionStringOfSource("OrvanDirDb", drivers));
    EXPECT_EQ("DSN=OrvanDirDb;UID=o", connectionStringOfSource("DSN=OrvanDirDb;UID=o", drivers));
}

TEST(ConnectionStringOfASource, MakesNoFileAndWaitsForNoneForLong)
{
    const std::string bounded = "Driver=SQLite3;Database=/x;NoCreat=1;Timeout=10000";
    EXPECT_EQ(bounded, connectionStringOfSource("Driver=SQLite3;NoCreat=0;Database=/x", drivers));
    EXPECT_EQ(bounded,
              connectionStringOfSource("Driver=SQLite3;TIMEOUT=2000000000;Database=/x", drivers));
}

TEST(ConnectionStringOfASource, TakesNoFileOfTheFolderThatTheProgramRunsIn)
{
    for (const char* file : {"", "x", "./x", "folder/x", ":memory:", "c:x"})
        EXPECT_EQ(-2147467259, errorOf([&] {
            connectionStringOfSource("Driver=SQLite3;Database=" + std::string(file), drivers);
        })) << file;
}

TEST(ConnectionStringOfASource, HoldsNothingThatADriverWithoutBracesWouldTakeForAKey)
{
    for (const char* source :
         {"Driver=SQLite3;Database=/x;PWD={x;LoadExt=./e.so;y}",
          "Driver=SQLite3;Database=/x;PWD={x}};LoadExt=./e.so;y}",
          "Driver=SQLite3;Database={/x;NoCreat=0}", "DSN=own;PWD={x;LoadExt=./e.so}",
          "DSN={own;LoadExt=./e.so}", "Driver=PostgreSQL Unicode;PWD={x;pqopt=sslkey=x}",
          "Driver=PostgreSQL Unicode;PWD=x}y", "own;LoadExt", "{own}"})
        EXPECT_EQ(-2147467259, errorOf([&] { connectionStringOfSource(source, drivers); }))
            << source;
}

TEST(ConnectionStringOfASource, LeavesASourceOfThisMachineAsItIs)
{
    for (const char* source : {"DSN=own;Database=/new.db", "DSN=own;NoCreat=0", "DSN=own;Server=x",
                               "DSN=own;Driver=SQLite3;Database=/x", "DSN=own;Timeout=1"})
        EXPECT_EQ(-2147467259, errorOf([&] { connectionStringOfSource(source, drivers); }))
            << source;
}

TEST(ConnectionStringOfASource, NamesNoFileToLoadOrToWrite)
{
    for (const char* source :
         {"Driver=/tmp/driver.so;Server=x", "Driver={/tmp/driver.so}", "Driver=None",
          "Driver=SQLite3;LoadExt=/tmp/x.so", "Driver=SQLite3;loadext=/tmp/x.so", "FILEDSN=/tmp/x",
          "DSN=a;SAVEFILE=/tmp/x", "Driver=SQLite3;Driver=/tmp/x.so",
          "Driver=SQLite3;dRiVeR=/tmp/x.so", "Driver=PostgreSQL Unicode;pqopt={sslkey=x}",
          "Driver=PostgreSQL Unicode;ConnSettings=DROP", "Driver={SQLite3;Database=x",
          "Driver={SQLite3}x;Database=x", "Driver={SQLite3} ;Driver={/x}", "Server=here", "=",
          "a=", ";;=;;", "Driver=;DSN="})
        EXPECT_EQ(-2147467259, errorOf([&] { connectionStringOfSource(source, drivers); }))
            << source;
    EXPECT_EQ(-2147467259,
              errorOf([] { connectionStringOfSource(std::string(100'000, 'x'), drivers); }));
}

} // namespace
