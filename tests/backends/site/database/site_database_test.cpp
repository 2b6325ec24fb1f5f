#include "backends/site/database/site_database.h"

#include "backends/site/database/sqlite_handle.h"
#include "support/error_of.h"

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <thread>

#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

constexpr const char* schema =
    "CREATE TABLE grid(Name TEXT, ObjectId TEXT, Flags INTEGER, DefaultFlags INTEGER);"
    "INSERT INTO grid VALUES('A','1',5,1),('B','2',-2147483648,0),('O''Brien','3',7,0);"
    "CREATE VIEW vw_LoggerDiagnosticGrid AS SELECT * FROM grid;"
    "CREATE TABLE audit(alias TEXT, name TEXT);"
    "CREATE VIEW csp_LoggerDiagnosticGridModify AS SELECT NULL AuditAlias, NULL AuditComponent,"
    " NULL Name, NULL ObjectId, NULL Flags;"
    "CREATE TRIGGER modify INSTEAD OF INSERT ON csp_LoggerDiagnosticGridModify BEGIN"
    " SELECT CASE WHEN NEW.Flags = 13 THEN RAISE(ABORT, 'unlucky flags') END;"
    " UPDATE grid SET Flags = NEW.Flags WHERE ObjectId = NEW.ObjectId;"
    " INSERT INTO audit VALUES(NEW.AuditAlias, NEW.Name); END;";

void execute(const std::string& file, const char* sql)
{
    sqlite3* database = nullptr;
    ASSERT_EQ(SQLITE_OK, sqlite3_open(file.c_str(), &database));
    ASSERT_EQ(SQLITE_OK, sqlite3_exec(database, sql, nullptr, nullptr, nullptr));
    sqlite3_close(database);
}

struct SiteDatabaseTest : testing::Test {
    SiteDatabaseTest()
    {
        fs::remove_all(folder);
        fs::create_directories(folder);
        execute(file, schema);
    }
    ~SiteDatabaseTest() override { fs::remove_all(folder); }

    void open() { database.open("ignored", "", ""); }

    Value one(const std::string& query)
    {
        auto rows = database.openRecordset(query, CursorKind::forwardOnly, LockKind::optimistic);
        return rows->atEnd() ? Value(Empty{}) : rows->field("Flags");
    }

    Value flags(const std::string& name)
    {
        return one("SELECT Flags FROM vw_LoggerDiagnosticGrid WHERE Name = '" + name + "'");
    }

    std::unique_ptr<DatabaseRecordset> keyset(const std::string& query)
    {
        return database.openRecordset(query, CursorKind::keyset, LockKind::optimistic);
    }

    const fs::path folder =
        fs::temp_directory_path() / ("orvan_database_" + std::to_string(getpid()));
    const std::string file = (folder / "OrvanDirDb.sqlite").string();
    SiteDatabase database{file};
};

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

TEST_F(SiteDatabaseTest, SeesAnotherProgramsChangeAtOnce)
{
    open();
    EXPECT_EQ(Value(5), flags("A"));
    execute(file, "UPDATE grid SET Flags = 6 WHERE Name = 'A'");
    EXPECT_EQ(Value(6), flags("A"));
}

/// Another program that holds the database for itself.
struct Lock {
    explicit Lock(const std::string& file)
    {
        sqlite3_open(file.c_str(), &other);
        EXPECT_EQ(SQLITE_OK, sqlite3_exec(other, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr));
    }
    ~Lock()
    {
        sqlite3_exec(other, "ROLLBACK", nullptr, nullptr, nullptr);
        sqlite3_close(other);
    }
    sqlite3* other = nullptr;
};

void setFlags(SiteDatabase& database, const std::string& objectId, std::int32_t word)
{
    auto command = database.createCommand();
    command->setProcedure("csp_LoggerDiagnosticGridModify");
    command->refreshParameters();
    command->assign("@ObjectId", objectId);
    command->assign("@Flags", word);
    command->execute();
}

TEST_F(SiteDatabaseTest, RefusesAStatementWhenAnotherProgramHoldsTheDatabaseTooLong)
{
    SiteDatabase impatient{file, std::chrono::milliseconds(30)};
    impatient.open("", "", "");
    const auto read = [&] {
        return impatient
            .openRecordset("SELECT Flags FROM vw_LoggerDiagnosticGrid WHERE Name = 'A'",
                           CursorKind::forwardOnly, LockKind::optimistic)
            ->field("Flags");
    };
    {
        const Lock lock(file);
        EXPECT_EQ(databaseErrors::statementRefused, errorOf([&] { read(); }));
        EXPECT_EQ(file + ": another program holds it and did not let go in time",
                  errorTextOf([&] { setFlags(impatient, "1", 64); }));
        EXPECT_EQ(1, impatient.state()) << "the connection stays open";

        SiteDatabase second = impatient.another();
        EXPECT_EQ("Cannot open " + file + ": another program holds it and did not let go in time",
                  errorTextOf([&] { second.open("", "", ""); }));
        EXPECT_EQ(databaseErrors::unspecified, errorOf([&] { second.open("", "", ""); }));
    }
    EXPECT_EQ(Value(5), read());
    setFlags(impatient, "1", 64);
    EXPECT_EQ(Value(64), read());
}

TEST_F(SiteDatabaseTest, ShowsNoRowOfAKeysetThatItCouldNotReadAgain)
{
    SiteDatabase impatient{file, std::chrono::milliseconds(30)};
    impatient.open("", "", "");
    auto rows = impatient.openRecordset("SELECT Name, Flags FROM vw_LoggerDiagnosticGrid",
                                        CursorKind::keyset, LockKind::optimistic);
    {
        const Lock lock(file);
        EXPECT_EQ(databaseErrors::statementRefused, errorOf([&] { rows->moveNext(); }));
        EXPECT_FALSE(rows->atEnd());
        EXPECT_EQ(databaseErrors::statementRefused, errorOf([&] { rows->field("Flags"); }));
    }
    execute(file, "UPDATE grid SET Flags = 6 WHERE Name = 'B'");
    EXPECT_EQ(Value(6), rows->field("Flags"));
    rows->moveNext();
    EXPECT_EQ(Value(std::string("O'Brien")), rows->field("Name"));
}

/// What another program's statement comes to.
int othersResult(const std::string& file, const char* sql)
{
    sqlite3* other = nullptr;
    sqlite3_open(file.c_str(), &other);
    const int result = sqlite3_exec(other, sql, nullptr, nullptr, nullptr);
    sqlite3_close(other);
    return result;
}

constexpr const char* walkedQuery =
    "SELECT Name, ObjectId, Flags FROM vw_LoggerDiagnosticGrid ORDER BY Name";
constexpr const char* othersChange = "UPDATE grid SET Flags = Flags | 256 WHERE Name = 'A'";

TEST_F(SiteDatabaseTest, NobodyChangesARowBetweenItsReadingAndItsWritingInAWalk)
{
    open();
    auto rows = keyset(walkedQuery);
    auto command = database.createCommand();
    command->setProcedure("csp_LoggerDiagnosticGridModify");
    EXPECT_EQ(SQLITE_OK, othersResult(file, othersChange)) << "nothing is to be written yet";
    for (; !rows->atEnd(); rows->moveNext()) {
        command->refreshParameters();
        const auto word = valueAsInteger32(rows->field("Flags"));
        command->assign("@ObjectId", rows->field("ObjectId"));
        command->assign("@Flags", word | 64);
        EXPECT_EQ(SQLITE_BUSY, othersResult(file, othersChange));
        EXPECT_EQ(SQLITE_OK, othersResult(file, "SELECT * FROM grid")) << "who looks goes on";
        command->execute();
    }
    EXPECT_EQ(SQLITE_OK, othersResult(file, "BEGIN EXCLUSIVE")) << "the change is made";
    EXPECT_EQ(Value(5 | 256 | 64), flags("A")) << "the first row was read again";
    EXPECT_EQ(Value(7 | 64), flags("O''Brien"));
}

TEST_F(SiteDatabaseTest, KeepsWhatWasChangedInAWalkThatIsLeftEarly)
{
    open();
    for (const bool closed : {true, false}) {
        SCOPED_TRACE(closed);
        auto rows = keyset(walkedQuery);
        setFlags(database, "1", closed ? 8 : 9);
        if (closed) rows->close();
        rows.reset();
        SiteDatabase other{file};
        other.open("", "", "");
        EXPECT_EQ(Value(closed ? 8 : 9),
                  other
                      .openRecordset("SELECT Flags FROM grid WHERE Name = 'A'",
                                     CursorKind::forwardOnly, LockKind::readOnly)
                      ->field("Flags"));
        EXPECT_EQ(SQLITE_OK, othersResult(file, "BEGIN EXCLUSIVE"));
    }
}

TEST_F(SiteDatabaseTest, SaysAtTheEndOfAWalkThatItsChangeCouldNotBeMadeLasting)
{
    SiteDatabase impatient{file, std::chrono::milliseconds(30)};
    impatient.open("", "", "");
    auto rows = impatient.openRecordset("SELECT Name FROM grid WHERE Name = 'A'",
                                        CursorKind::keyset, LockKind::optimistic);
    setFlags(impatient, "1", 64);
    sqlite3* reader = nullptr;
    sqlite3_open(file.c_str(), &reader);
    sqlite3_exec(reader, "BEGIN; SELECT * FROM grid", nullptr, nullptr, nullptr);

    EXPECT_EQ(file + ": another program holds it and did not let go in time",
              errorTextOf([&] { rows->moveNext(); }));

    sqlite3_close(reader);
    EXPECT_TRUE(rows->atEnd());
    EXPECT_EQ(SQLITE_OK, othersResult(file, "BEGIN EXCLUSIVE")) << "nothing is held any more";
    open();
    EXPECT_EQ(Value(5), flags("A"));
}

/// The changes made lasting so far, by the file's own count of them.
unsigned lastingChanges(const std::string& file)
{
    std::ifstream stream(file, std::ios::binary);
    stream.seekg(24);
    unsigned count = 0;
    for (int byte = 0; byte < 4; ++byte)
        count = count << 8 | static_cast<unsigned char>(stream.get());
    return count;
}

TEST_F(SiteDatabaseTest, WritesHeldCallsToTheDiskOnceForAThousand)
{
    open();
    database.holdCalls();
    const unsigned before = lastingChanges(file);
    for (int call = 0; call < 2500; ++call) setFlags(database, "1", 100 + call);
    EXPECT_EQ(Value(2599), flags("A")) << "its own statements see them";
    EXPECT_EQ(before + 2, lastingChanges(file));
    database.settle();
    EXPECT_EQ(before + 3, lastingChanges(file));
    database.settle();
    EXPECT_EQ(before + 3, lastingChanges(file)) << "nothing is left to settle";

    setFlags(database, "2", 1);
    database.letCallsGo();
    EXPECT_EQ(before + 4, lastingChanges(file));
    setFlags(database, "2", 2);
    EXPECT_EQ(before + 5, lastingChanges(file)) << "calls are lasting one by one again";
    EXPECT_EQ(SQLITE_OK, othersResult(file, "BEGIN EXCLUSIVE"));
}

TEST_F(SiteDatabaseTest, KeepsWhatARefusedHeldCallCameAfter)
{
    open();
    database.holdCalls();
    setFlags(database, "1", 64);
    EXPECT_NE(0, errorOf([&] { setFlags(database, "1", 13); })) << "the procedure refuses 13";
    database.settle();
    EXPECT_EQ(Value(64), flags("A"));
}

TEST_F(SiteDatabaseTest, ACallThatIsRefusedWithAllOfItsChangeCostsNoOther)
{
    execute(file, "DROP TRIGGER modify;"
                  "CREATE TRIGGER modify INSTEAD OF INSERT ON csp_LoggerDiagnosticGridModify BEGIN"
                  " SELECT RAISE(ROLLBACK, 'unlucky flags') WHERE NEW.Flags = 13;"
                  " UPDATE grid SET Flags = NEW.Flags WHERE ObjectId = NEW.ObjectId; END;");
    open();
    database.holdCalls();
    setFlags(database, "1", 64);
    EXPECT_NE(0, errorOf([&] { setFlags(database, "2", 13); }));
    EXPECT_EQ(0, errorOf([&] { database.letCallsGo(); }));
    EXPECT_EQ(Value(64), flags("A"));
}

TEST_F(SiteDatabaseTest, MakesCallsOfAWalkLastingAtItsEndAlone)
{
    open();
    database.holdCalls();
    auto rows = keyset(walkedQuery);
    const unsigned before = lastingChanges(file);
    setFlags(database, "1", 64);
    database.settle();
    EXPECT_EQ(before, lastingChanges(file));
    rows->close();
    EXPECT_EQ(before + 1, lastingChanges(file));
}

TEST_F(SiteDatabaseTest, SaysWhenHeldCallsCouldNotBeMadeLasting)
{
    SiteDatabase impatient{file, std::chrono::milliseconds(30)};
    impatient.holdCalls();
    impatient.open("", "", "");
    setFlags(impatient, "1", 64);
    sqlite3* reader = nullptr;
    sqlite3_open(file.c_str(), &reader);
    sqlite3_exec(reader, "BEGIN; SELECT * FROM grid", nullptr, nullptr, nullptr);
    EXPECT_EQ(file + ": another program holds it and did not let go in time",
              errorTextOf([&] { impatient.settle(); }));
    sqlite3_close(reader);
    EXPECT_EQ(SQLITE_OK, othersResult(file, "BEGIN EXCLUSIVE")) << "nothing is held any more";
    EXPECT_NE(0, errorOf([&] { impatient.settle(); })) << "what was undone stays so";
    EXPECT_EQ(0, errorOf([&] { impatient.letCallsGo(); }));

    impatient.holdCalls();
    setFlags(impatient, "1", 64);
    fs::remove(file);
    EXPECT_EQ(3709, errorOf([&] { impatient.letCallsGo(); }));
}

TEST_F(SiteDatabaseTest, WaitsOnceForAllStatementsAndConnectionsOfARun)
{
    SiteDatabase first{file, std::chrono::milliseconds(300)};
    first.open("", "", "");
    SiteDatabase second = first.another();
    const Lock lock(file);
    const auto before = std::chrono::steady_clock::now();

    for (int statement = 0; statement < 20; ++statement) {
        EXPECT_EQ(databaseErrors::statementRefused, errorOf([&] { setFlags(first, "1", 64); }));
        EXPECT_EQ(databaseErrors::unspecified, errorOf([&] { second.open("", "", ""); }));
    }

    const auto waited = std::chrono::steady_clock::now() - before;
    EXPECT_GE(waited, std::chrono::milliseconds(300));
    EXPECT_LT(waited, std::chrono::milliseconds(10 * 300)) << "of 40 statements";
}

TEST_F(SiteDatabaseTest, WaitsForAnotherProgramThatLetsGoInTime)
{
    open();
    auto lock = std::make_unique<Lock>(file);
    std::thread release([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(60));
        lock.reset();
    });

    EXPECT_NO_THROW(setFlags(database, "1", 64));

    release.join();
    EXPECT_EQ(Value(64), flags("A"));
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

/// Writes words in turn to two components, for ever; an error ends the process.
[[noreturn]] void writeUntilKilled(const std::string& file, int ready) noexcept
{
    SiteDatabase writer{file};
    writer.open("", "", "");
    for (std::int32_t word = 100;; ++word) {
        setFlags(writer, "1", word);
        if (word == 100 && write(ready, "r", 1) != 1) _exit(1);
        setFlags(writer, "2", word);
    }
}

TEST_F(SiteDatabaseTest, IsWholeAfterItsWriterWasKilled)
{
    open();
    for (int round = 0; round < 12; ++round) {
        SCOPED_TRACE(round);
        int ready[2];
        ASSERT_EQ(0, pipe(ready));
        const pid_t child = fork();
        if (child == 0) writeUntilKilled(file, ready[1]);
        close(ready[1]);
        char mark = 0;
        ASSERT_EQ(1, read(ready[0], &mark, 1));
        std::this_thread::sleep_for(std::chrono::microseconds(700 * round));
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        close(ready[0]);

        auto check = database.openRecordset("SELECT integrity_check AS Flags FROM "
                                            "pragma_integrity_check",
                                            CursorKind::forwardOnly, LockKind::optimistic);
        EXPECT_EQ(Value(std::string("ok")), check->field("Flags"));
        check->close();
        const std::int32_t first = valueAsInteger32(flags("A"));
        const std::int32_t second = valueAsInteger32(flags("B"));
        EXPECT_GE(first, 100);
        EXPECT_TRUE(second == first || second == first - 1 || first == 100)
            << first << " and " << second << ": each call is there whole or not at all";
    }
}

} // namespace
