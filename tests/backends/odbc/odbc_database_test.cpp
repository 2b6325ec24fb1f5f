#include "backends/odbc/odbc_database.h"

#include "backends/odbc/driver_path.h"
#include "backends/odbc/session.h"
#include "support/error_of.h"
#include "support/postgres_server.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>

#include <chrono>

namespace {

using namespace std::chrono_literals;
using testing::HasSubstr;
using testing::Not;

PostgresServer& server()
{
    static PostgresServer server;
    return server;
}

/// A connection to a server of PostgreSQL that holds nothing.
class OnPostgres : public testing::Test {
protected:
    OnPostgres() { server().reset(); }

    void open(const std::string& more = "")
    {
        database = std::make_unique<OdbcDatabase>(server().connectionString() + more, patience);
        database->open("", "", "");
    }

    Value value(const std::string& expression) { return first("SELECT " + expression + " AS x"); }

    Value first(const std::string& query)
    {
        return database->openRecordset(query, CursorKind::forwardOnly, LockKind::readOnly)
            ->field("x");
    }

    std::unique_ptr<DatabaseCommand> command(const std::string& procedure)
    {
        auto made = database->createCommand();
        made->setProcedure(procedure);
        made->refreshParameters();
        return made;
    }

    OdbcPatience patience;
    std::unique_ptr<OdbcDatabase> database;
};

std::string failureOfOpening(const std::optional<std::string>& source)
{
    OdbcDatabase database(source);
    EXPECT_EQ(-2147467259, errorOf([&] { database.open("Data Source=(local)", "", ""); }));
    EXPECT_EQ(0, database.state());
    EXPECT_EQ(1, database.errorCount());
    const std::string text = errorTextOf([&] { database.open("Data Source=(local)", "", ""); });
    EXPECT_THAT(text, Not(testing::IsEmpty()));
    EXPECT_EQ(std::string::npos, text.find('\n')) << text;
    return text;
}

TEST(OdbcDatabase, SaysWhichDriversItLookedForWhereThereIsNone)
{
    EXPECT_THAT(failureOfOpening(std::nullopt), HasSubstr("\"ODBC Driver NN for SQL Server\""));
}

TEST(OdbcDatabase, RefusesWhatIsNoSource)
{
    EXPECT_THAT(failureOfOpening("garbage"), HasSubstr("Data source name not found"));
    EXPECT_THAT(failureOfOpening("Driver=None;Database=x"), HasSubstr("is called \"None\""));
    for (const char* garbage : {"", "=", ";;=;;", "{", "Driver={", "DSN=\xF0\x9F\x98\x80", "%s%n"})
        failureOfOpening(garbage);
    failureOfOpening("Driver=" + std::string(100'000, 'x'));
}

TEST(OdbcDatabase, RefusesAFileThatIsNoDatabaseAndMakesNone)
{
    const TemporaryFolder folder;
    folder.write("garbage.db", std::string(4096, 'x'));
    const std::string source = "Driver=SQLite3;Database=";
    failureOfOpening(source + driverPath(folder / "garbage.db"));
    failureOfOpening(source + driverPath(folder / "none.db"));
    EXPECT_FALSE(folder.exists("none.db"));
}

TEST_F(OnPostgres, SaysWhyALoginIsRefused)
{
    EXPECT_THAT(failureOfOpening(server().connectionString("postgres", "nobody_here")),
                HasSubstr("nobody_here"));
    EXPECT_THAT(failureOfOpening(server().connectionString("none_here")), HasSubstr("none_here"));
}

TEST_F(OnPostgres, ValuesCarryTheirTypes)
{
    open(";BoolsAsChar=0");
    EXPECT_EQ(Value(5), value("5::smallint"));
    EXPECT_EQ(Value(-2147483647 - 1), value("(-2147483648)::integer"));
    EXPECT_EQ(Value(7), value("7::bigint"));
    EXPECT_EQ(Value(2147483648.0), value("2147483648::bigint"));
    EXPECT_EQ(Value(3.5), value("3.5::double precision"));
    EXPECT_EQ(Value(0.25), value("0.25::real"));
    EXPECT_EQ(Value(12.75), value("12.75::numeric(10,2)"));
    EXPECT_EQ(Value(true), value("true"));
    EXPECT_EQ(Value(false), value("false"));
    EXPECT_EQ(Value(std::string("A ")), value("'A '::text"));
    EXPECT_EQ(Value(std::string()), value("''::varchar"));
    EXPECT_EQ(Value(Null{}), value("NULL::integer"));
    EXPECT_EQ(Value(Null{}), value("NULL::text"));
    EXPECT_EQ(Value(dateOf(2005, 10, 8, 15, 23, 7)), value("timestamp '2005-10-08 15:23:07'"));
    EXPECT_EQ(Value(dateOf(2005, 10, 8)), value("date '2005-10-08'"));
    EXPECT_EQ(Value(std::string("{460D2B40-DA67-412D-A303-F0873C3222CC}")),
              value("'460d2b40-da67-412d-a303-f0873c3222cc'::uuid"));
}

TEST_F(OnPostgres, TextsComeWholeWhateverTheirLengthAndLetters)
{
    open();
    const std::string letters = "Stra\xC3\x9F"
                                "e \xE6\x97\xA5\xF0\x9F\x98\x80";
    EXPECT_EQ(Value(letters), value("'" + letters + "'"));
    for (const int length : {1022, 1023, 1024, 1025, 2046, 2047, 100'000})
        EXPECT_EQ(Value(std::string(static_cast<std::size_t>(length), 'x')),
                  value("repeat('x', " + std::to_string(length) + ")"))
            << length;
}

TEST_F(OnPostgres, AParameterConvertsWhatItIsGiven)
{
    server().run("CREATE TABLE got(i integer, f double precision, d timestamp, t text, b boolean);"
                 "CREATE PROCEDURE csp_Take(i integer, f double precision, d timestamp, t text,"
                 " b boolean) LANGUAGE sql AS 'INSERT INTO got VALUES ($1, $2, $3, $4, $5)'");
    open();
    const auto taking = command("csp_Take");
    taking->assign("@I", std::string(" 400"));
    taking->assign("@F", std::string("3.5"));
    taking->assign("@D", dateOf(2005, 10, 8, 15, 23, 7));
    taking->assign("@T", 42);
    taking->assign("@B", true);
    taking->execute();
    EXPECT_EQ("400|3.5|2005-10-08 15:23:07|42|t", server().run("SELECT * FROM got"));
    taking->assign("@I", std::string("many"));
    EXPECT_EQ(-2147217900, errorOf([&] { taking->execute(); }));
    EXPECT_EQ("1", server().run("SELECT count(*) FROM got"));
}

TEST_F(OnPostgres, TextParametersTakeDatesNumbersAndLongTexts)
{
    server().run("CREATE TABLE got(t text);"
                 "CREATE PROCEDURE csp_Take(t varchar) LANGUAGE sql AS"
                 " 'INSERT INTO got VALUES ($1)'");
    open();
    const auto taking = command("csp_Take");
    const std::string longText(20'000, 'y');
    for (const Value& given :
         {Value(dateOf(2005, 10, 8, 15, 23, 7)), Value(-7), Value(Null{}), Value(std::string()),
          Value(std::string("\xC3\x9F\xE6\x97\xA5")), Value(longText)}) {
        taking->assign("@t", given);
        taking->execute();
    }
    EXPECT_EQ("2005-10-08 15:23:07\n-7\n<none>\n\n\xC3\x9F\xE6\x97\xA5\n" + longText,
              server().run("SELECT coalesce(t, '<none>') FROM got"));
}

TEST_F(OnPostgres, AProcedureWithoutParametersIsKnown)
{
    server().run("CREATE TABLE got(i integer); CREATE PROCEDURE csp_Note() LANGUAGE sql AS"
                 " 'INSERT INTO got VALUES (1)'");
    open();
    command("csp_Note")->execute();
    EXPECT_EQ("1", server().run("SELECT count(*) FROM got"));
}

TEST_F(OnPostgres, AProcedureIsNotTakenForOneWhoseNameIsLikeIt)
{
    server().run("CREATE PROCEDURE cspXNote(i integer) LANGUAGE sql AS 'SELECT 1'");
    open();
    EXPECT_EQ(-2147217900, errorOf([&] { command("csp_Note"); }));
}

TEST_F(OnPostgres, OneThatLooksReadsAndCallsNoProcedure)
{
    server().run("CREATE TABLE got(i integer); CREATE PROCEDURE csp_Note() LANGUAGE sql AS"
                 " 'INSERT INTO got VALUES (1)'");
    database = std::make_unique<OdbcDatabase>(server().connectionString());
    database->openFor(OdbcUse::look);
    database->open("", "", "");
    EXPECT_EQ(Value(5), value("5"));
    const auto note = command("csp_Note");
    EXPECT_EQ(-2147217900, errorOf([&] { note->execute(); }));
    EXPECT_EQ("0", server().run("SELECT count(*) FROM got"));
}

TEST_F(OnPostgres, AStatementThatTakesTooLongIsEndedAndTheNextOneServed)
{
    patience.statement = 1s;
    open();
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_THAT(errorTextOf([&] { value("pg_sleep(30)"); }),
                HasSubstr("did not answer within 1 seconds"));
    EXPECT_LT(std::chrono::steady_clock::now() - begin, 15s);
    EXPECT_EQ(-2147217900, errorOf([&] { value("pg_sleep(30)"); }));
    EXPECT_EQ(1, database->state());
    EXPECT_EQ(Value(5), value("5"));
}

TEST_F(OnPostgres, AConnectionThatTheServerEndsRaises3709AndIsClosed)
{
    open();
    EXPECT_EQ(Value(5), value("5"));
    const auto another = database->another();
    another->open("", "", "");
    server().run("SELECT pg_terminate_backend(pid) FROM pg_stat_activity"
                 " WHERE pid <> pg_backend_pid() AND application_name <> 'psql'");
    EXPECT_EQ(3709, errorOf([&] { value("5"); }));
    EXPECT_EQ(3709, errorOf([&] { value("5"); }));
    EXPECT_EQ(0, another->state()) << "without a statement that failed before";
    EXPECT_EQ(0, database->state());
    database->open("", "", "");
    EXPECT_EQ(Value(5), value("5"));
}

TEST_F(OnPostgres, ARowOfAKeysetRaises3709WhenTheServerEndsTheConnection)
{
    open();
    const auto rows = database->openRecordset("SELECT 'a' AS x UNION SELECT 'b' ORDER BY x",
                                              CursorKind::keyset, LockKind::readOnly);
    server().run("SELECT pg_terminate_backend(pid) FROM pg_stat_activity"
                 " WHERE pid <> pg_backend_pid() AND application_name <> 'psql'");
    EXPECT_EQ(Value(std::string("a")), rows->field("x"));
    EXPECT_EQ(3709, errorOf([&] { rows->moveNext(); }));
    EXPECT_EQ(3709, errorOf([&] { rows->field("x"); }));
}

TEST_F(OnPostgres, AQueryWithTooManyRowsIsRefused)
{
    open();
    EXPECT_EQ(-2147217900,
              errorOf([&] { first("SELECT 1 AS x FROM generate_series(1, 100001)"); }));
    EXPECT_EQ(Value(1), first("SELECT 1 AS x FROM generate_series(1, 100000)"));
}

} // namespace
