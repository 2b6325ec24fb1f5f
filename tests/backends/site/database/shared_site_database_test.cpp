// One directory database and several programs: waiting for each other, walks, held calls, kills.
#include "backends/site/database/grid_database.h"
#include "support/error_of.h"

#include <chrono>
#include <csignal>
#include <fstream>
#include <thread>

#include <sys/wait.h>

namespace {

struct SharedSiteDatabase : GridDatabase {};

TEST_F(SharedSiteDatabase, SeesAnotherProgramsChangeAtOnce)
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

TEST_F(SharedSiteDatabase, RefusesAStatementWhenAnotherProgramHoldsTheDatabaseTooLong)
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

TEST_F(SharedSiteDatabase, ShowsNoRowOfAKeysetThatItCouldNotReadAgain)
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

TEST_F(SharedSiteDatabase, NobodyChangesARowBetweenItsReadingAndItsWritingInAWalk)
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

TEST_F(SharedSiteDatabase, KeepsWhatWasChangedInAWalkThatIsLeftEarly)
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

TEST_F(SharedSiteDatabase, SaysAtTheEndOfAWalkThatItsChangeCouldNotBeMadeLasting)
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

TEST_F(SharedSiteDatabase, WritesHeldCallsToTheDiskOnceForAThousand)
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

TEST_F(SharedSiteDatabase, KeepsWhatARefusedHeldCallCameAfter)
{
    open();
    database.holdCalls();
    setFlags(database, "1", 64);
    EXPECT_NE(0, errorOf([&] { setFlags(database, "1", 13); })) << "the procedure refuses 13";
    database.settle();
    EXPECT_EQ(Value(64), flags("A"));
}

TEST_F(SharedSiteDatabase, ACallThatIsRefusedWithAllOfItsChangeCostsNoOther)
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

TEST_F(SharedSiteDatabase, MakesCallsOfAWalkLastingAtItsEndAlone)
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

TEST_F(SharedSiteDatabase, SaysWhenHeldCallsCouldNotBeMadeLasting)
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
    std::filesystem::remove(file);
    EXPECT_EQ(3709, errorOf([&] { impatient.letCallsGo(); }));
}

TEST_F(SharedSiteDatabase, WaitsOnceForAllStatementsAndConnectionsOfARun)
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

TEST_F(SharedSiteDatabase, WaitsForAnotherProgramThatLetsGoInTime)
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

TEST_F(SharedSiteDatabase, IsWholeAfterItsWriterWasKilled)
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
