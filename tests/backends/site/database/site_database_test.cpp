#include "backends/site/database/site_database.h"

#include "backends/site/database/grid_database.h"
#include "backends/site/database/sqlite_handle.h"
#include "support/error_of.h"

#include <csignal>
#include <fstream>
#include <iterator>
#include <map>

#include <sys/wait.h>

namespace fs = std::filesystem;

namespace {

struct SiteDatabaseTest : GridDatabase {};

TEST_F(SiteDatabaseTest, RaisesForAFileThatIsNoDatabase)
{
    const struct {
        const char* because;
        const char* content;
    } cases[] = {{"missing", nullptr},
                 {"a text", "[site]\ncomputer = VOICE01, and much more text\n"}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        fs::remove(file);
        if (c.content) std::ofstream(file) << std::string(20, 'x') << c.content;
        SiteDatabase broken{file};
        EXPECT_EQ(databaseErrors::unspecified, errorOf([&] { broken.open("", "", ""); }));
        EXPECT_EQ(1, broken.errorCount());
        EXPECT_EQ(0, broken.state());
        EXPECT_EQ(c.content != nullptr, fs::exists(file)) << "nothing is made or removed";
    }
}

TEST_F(SiteDatabaseTest, ReadsAColumnByName)
{
    open();
    EXPECT_EQ(Value(5), flags("A"));
    EXPECT_EQ(Value(std::int32_t{-2147483647 - 1}), flags("B")) << "bit 31 travels unchanged";
    EXPECT_EQ(Value(Empty{}), flags("none"));
    EXPECT_EQ(Value(5), flags("A")) << "the compiled query serves again";
    auto rows = database.openRecordset("SELECT Name FROM vw_LoggerDiagnosticGrid",
                                       CursorKind::forwardOnly, LockKind::optimistic);
    EXPECT_EQ(3265, errorOf([&] { rows->field("Flags"); }));
    EXPECT_EQ(-1, rows->rowCount());
    rows->close();
    EXPECT_EQ(3704, errorOf([&] { rows->atEnd(); }));
}

TEST_F(SiteDatabaseTest, EndsAQueryThatHasNoEnd)
{
    constexpr const char* endless =
        "CREATE VIEW endless AS WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n)"
        " SELECT 'N' || i Name, i Flags FROM n;"
        "CREATE VIEW empty AS SELECT * FROM endless WHERE Flags < 0;";
    execute(file, endless);
    open();
    for (const CursorKind cursor : {CursorKind::forwardOnly, CursorKind::keyset})
        EXPECT_EQ(-2147217900, errorOf([&] {
            database.openRecordset("SELECT * FROM empty", cursor, LockKind::optimistic);
        }));
    EXPECT_EQ(-2147217900, errorOf([&] { keyset("SELECT * FROM endless"); }));

    auto rows = database.openRecordset("SELECT * FROM endless", CursorKind::forwardOnly,
                                       LockKind::optimistic);
    int passed = 0;
    const int failure = errorOf([&] {
        for (; !rows->atEnd(); rows->moveNext()) ++passed;
    });
    EXPECT_EQ(-2147217900, failure);
    EXPECT_EQ(100'000, passed);
    EXPECT_TRUE(rows->atEnd()) << "who goes on after a failure comes to an end too";
}

TEST_F(SiteDatabaseTest, CountsTheStepsOfEachUseOfAStatementAnew)
{
    execute(file, "CREATE VIEW long AS WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1"
                  " FROM n WHERE i < 400000) SELECT COUNT(*) Flags FROM n;");
    open();
    for (int use = 0; use < 12; ++use) EXPECT_EQ(Value(400000), one("SELECT Flags FROM long"));
}

TEST_F(SiteDatabaseTest, ShowsARowOfAKeysetAsItIsWhenTheCursorComesToIt)
{
    open();
    auto rows = keyset("SELECT ObjectId, DefaultFlags, Flags FROM vw_LoggerDiagnosticGrid "
                       "ORDER BY Name");
    execute(file, "UPDATE grid SET Flags = 70 WHERE Name = 'A';"
                  "UPDATE grid SET Flags = 71 WHERE Name = 'B'");
    EXPECT_EQ(Value(5), rows->field("Flags")) << "come to at the opening";
    rows->moveNext();
    EXPECT_EQ(Value(std::string("2")), rows->field("ObjectId"));
    EXPECT_EQ(Value(71), rows->field("Flags"));
    execute(file, "UPDATE grid SET Flags = 72 WHERE Name IN ('B', 'O''Brien')");
    EXPECT_EQ(Value(71), rows->field("Flags")) << "while the cursor stands there";
    rows->moveNext();
    EXPECT_EQ(Value(72), rows->field("Flags"));
    rows->moveNext();
    EXPECT_TRUE(rows->atEnd());
}

TEST_F(SiteDatabaseTest, PassesOverARowOfAKeysetThatHasGone)
{
    open();
    auto rows = keyset("SELECT Name, Flags FROM vw_LoggerDiagnosticGrid ORDER BY Name");
    execute(file, "DELETE FROM grid WHERE Name = 'B';"
                  "INSERT INTO grid VALUES('C','4',1,1)");
    rows->moveNext();
    EXPECT_EQ(Value(std::string("O'Brien")), rows->field("Name"));
    execute(file, "DELETE FROM grid");
    EXPECT_EQ(Value(7), rows->field("Flags"));
    rows->moveNext();
    EXPECT_TRUE(rows->atEnd());
    EXPECT_EQ(3, rows->rowCount());
}

TEST_F(SiteDatabaseTest, ShowsRowsOfAKeysetThatNothingTellsApartAsTheyWere)
{
    execute(file, "UPDATE grid SET Name = 'A'");
    open();
    for (const char* query : {"SELECT Name, Flags FROM vw_LoggerDiagnosticGrid ORDER BY ObjectId",
                              "SELECT CAST(ObjectId AS BLOB) Id, Flags FROM grid ORDER BY Id"}) {
        SCOPED_TRACE(query);
        execute(file, "UPDATE grid SET Flags = 5");
        auto rows = keyset(query);
        execute(file, "UPDATE grid SET Flags = 6");
        int seen = 0;
        for (; !rows->atEnd(); rows->moveNext(), ++seen) EXPECT_EQ(Value(5), rows->field("Flags"));
        EXPECT_EQ(3, seen);
    }
}

TEST_F(SiteDatabaseTest, KeepsARecordsetWhenAnotherOfItsQueryIsClosed)
{
    open();
    const auto named = [&](const std::string& name) {
        return database.openRecordset("SELECT Flags FROM vw_LoggerDiagnosticGrid WHERE Name = '" +
                                          name + "'",
                                      CursorKind::forwardOnly, LockKind::optimistic);
    };
    auto none = named("none");
    auto walked = named("B");
    walked->moveNext();
    auto rows = named("A");

    none->close();
    walked->close();

    EXPECT_TRUE(!rows->atEnd());
    EXPECT_EQ(Value(5), rows->field("Flags"));
}

TEST_F(SiteDatabaseTest, TellsWhatTheServerRefuses)
{
    open();
    auto command = database.createCommand();
    command->setProcedure("csp_Nothing");
    EXPECT_EQ("Could not find stored procedure 'csp_Nothing'.",
              errorTextOf([&] { command->refreshParameters(); }));
    command->setProcedure("csp_LoggerDiagnosticGridModify");
    command->refreshParameters();
    command->assign("@Flags", std::int32_t{13});
    EXPECT_EQ("unlucky flags", errorTextOf([&] { command->execute(); }));
    EXPECT_EQ(1, database.state()) << "a refusal does not close the connection";
}

TEST_F(SiteDatabaseTest, RefusesWritesToADatabaseThatMayOnlyBeRead)
{
    open();
    sqlite3_exec(database.handle()->get(), "PRAGMA query_only = 1", nullptr, nullptr, nullptr);

    EXPECT_EQ("attempt to write a readonly database",
              errorTextOf([&] { setFlags(database, "1", 64); }));

    EXPECT_EQ(1, database.state());
    EXPECT_EQ(Value(5), flags("A"));
}

/// Names and sizes of what lies in the test's folder.
std::map<std::string, std::uintmax_t> filesIn(const fs::path& folder)
{
    std::map<std::string, std::uintmax_t> files;
    for (const auto& entry : fs::directory_iterator(folder))
        files[entry.path().filename().string()] = entry.file_size();
    return files;
}

TEST_F(SiteDatabaseTest, ALookReadsAndWritesNothing)
{
    const auto before = filesIn(folder);
    database.openFor(DatabaseUse::look);
    open();

    EXPECT_EQ(Value(5), flags("A"));
    EXPECT_EQ("attempt to write a readonly database",
              errorTextOf([&] { setFlags(database, "1", 64); }));
    EXPECT_EQ(Value(5), flags("A"));
    EXPECT_EQ(before, filesIn(folder));
}

TEST_F(SiteDatabaseTest, ALookSeesWhatAWriteAheadLogHoldsAndLeavesItAsItIs)
{
    sqlite3* other = nullptr;
    ASSERT_EQ(SQLITE_OK, sqlite3_open(file.c_str(), &other));
    ASSERT_EQ(SQLITE_OK, sqlite3_exec(other,
                                      "PRAGMA journal_mode=WAL;"
                                      "UPDATE grid SET Flags = 77 WHERE Name = 'A'",
                                      nullptr, nullptr, nullptr));
    const auto before = filesIn(folder);
    database.openFor(DatabaseUse::look);
    open();
    EXPECT_EQ(Value(77), flags("A"));
    EXPECT_EQ(before, filesIn(folder));
    sqlite3_close(other);

    const auto closed = filesIn(folder);
    EXPECT_EQ(1u, closed.size());
    SiteDatabase later{file};
    later.openFor(DatabaseUse::look);
    later.open("", "", "");
    EXPECT_EQ(1, later.state());
    EXPECT_EQ(closed, filesIn(folder));
}

TEST_F(SiteDatabaseTest, ALookSeesNothingOfWhatAKilledWriterLeftUndone)
{
    const pid_t child = fork();
    if (child == 0) {
        sqlite3* writer = nullptr;
        sqlite3_open(file.c_str(), &writer);
        sqlite3_exec(
            writer,
            "PRAGMA cache_size=1; PRAGMA cache_spill=1; BEGIN;"
            "UPDATE grid SET Flags = 99;"
            "CREATE TABLE much(text TEXT);"
            "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 2000)"
            "INSERT INTO much SELECT hex(randomblob(200)) FROM n;",
            nullptr, nullptr, nullptr);
        raise(SIGKILL);
    }
    waitpid(child, nullptr, 0);
    const auto before = filesIn(folder);
    ASSERT_EQ(2u, before.size()) << "a journal that nobody has rolled back";

    database.openFor(DatabaseUse::look);
    open();
    EXPECT_EQ(Value(5), flags("A"));
    EXPECT_EQ(before, filesIn(folder));

    constexpr auto read = fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read;
    constexpr auto enter = fs::perms::owner_exec | fs::perms::group_exec | fs::perms::others_exec;
    for (const auto& entry : fs::directory_iterator(folder)) fs::permissions(entry.path(), read);
    fs::permissions(folder, read | enter);
    const bool superuser = geteuid() == 0; // who may write everywhere
    if (superuser) {
        ASSERT_EQ(0, seteuid(65534));
    }
    SiteDatabase readOnly{file};
    readOnly.openFor(DatabaseUse::look);
    EXPECT_NO_THROW(readOnly.open("", "", ""));
    EXPECT_EQ(1, readOnly.state());
    if (superuser) {
        ASSERT_EQ(0, seteuid(0));
    }
    fs::permissions(folder, fs::perms::owner_all);
}

TEST_F(SiteDatabaseTest, OpensAnotherProgramsDatabaseAndRefusesWhatItLacks)
{
    fs::remove(file);
    execute(file, "CREATE TABLE bookmarks(url TEXT);"
                  "CREATE VIEW csp_LoggerDiagnosticGridModify AS SELECT NULL ObjectId, NULL Flags");
    open();

    EXPECT_EQ(databaseErrors::noSuchTable, errorOf([&] { flags("A"); }));
    EXPECT_EQ(databaseErrors::statementRefused, errorOf([&] { setFlags(database, "1", 64); }))
        << "a view alone is no procedure";
    EXPECT_EQ(1, database.state());
}

TEST_F(SiteDatabaseTest, LacksEverythingInAnEmptyFile)
{
    std::ofstream(file, std::ios::trunc).close();
    open();

    EXPECT_EQ(databaseErrors::noSuchTable, errorOf([&] { flags("A"); }));
    EXPECT_EQ(0u, fs::file_size(file)) << "nothing is written to it";
}

TEST_F(SiteDatabaseTest, IsABrokenConnectionWhenTheFileIsDamagedUntilItIsMended)
{
    open();
    EXPECT_EQ(Value(5), flags("A"));
    std::ifstream whole(file, std::ios::binary);
    const std::string good(std::istreambuf_iterator<char>(whole), {});
    std::ofstream(file, std::ios::binary | std::ios::in) << std::string(good.size(), 'x');

    EXPECT_EQ(3709, errorOf([&] { flags("A"); }));
    EXPECT_EQ(0, database.state());
    EXPECT_EQ(databaseErrors::unspecified, errorOf([&] { open(); }));

    std::ofstream(file, std::ios::binary | std::ios::in) << good;
    open();
    EXPECT_EQ(Value(5), flags("A"));
}

} // namespace
