#include "backends/portable/site_database.h"

#include "support/error_of.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include <sqlite3.h>
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

    const fs::path folder =
        fs::temp_directory_path() / ("orvan_database_" + std::to_string(getpid()));
    const std::string file = (folder / "OrvanDirDb.sqlite").string();
    SiteDatabase database{file};
};

TEST_F(SiteDatabaseTest, IsClosedUntilItIsOpened)
{
    EXPECT_EQ(0, database.state());
    EXPECT_EQ(3709, errorOf([&] { flags("A"); }));
    EXPECT_EQ(3709, errorOf([&] { database.createCommand()->useActiveConnection(); }));
    open();
    EXPECT_EQ(1, database.state());
    EXPECT_EQ(0, database.errorCount());
    EXPECT_EQ(3705, errorOf([&] { open(); }));
}

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

TEST_F(SiteDatabaseTest, RefusesAQuoteThatIsNotEscaped)
{
    open();
    EXPECT_EQ(databaseErrors::statementRefused, errorOf([&] { flags("O'Brien"); }));
    EXPECT_EQ(Value(7), flags("O''Brien"));
    EXPECT_EQ(databaseErrors::noSuchTable, errorOf([&] { one("SELECT Flags FROM nowhere"); }));
}

TEST_F(SiteDatabaseTest, CountsAndKeepsTheRowsOfAKeysetWhileTheTableChanges)
{
    open();
    auto rows = database.openRecordset("SELECT Name, ObjectId, Flags FROM vw_LoggerDiagnosticGrid",
                                       CursorKind::keyset, LockKind::optimistic);
    EXPECT_EQ(3, rows->rowCount());
    int seen = 0;
    for (; !rows->atEnd(); rows->moveNext(), ++seen) {
        auto command = database.createCommand();
        command->setProcedure("csp_LoggerDiagnosticGridModify");
        command->refreshParameters();
        command->assign("@ObjectId", rows->field("ObjectId"));
        command->assign("@Flags", std::int32_t{64});
        command->execute();
    }
    EXPECT_EQ(3, seen);
    EXPECT_EQ(Value(64), flags("B"));
}

TEST_F(SiteDatabaseTest, CallsAProcedureWithTheAssignedParametersAlone)
{
    open();
    auto command = database.createCommand();
    command->setProcedure("csp_LoggerDiagnosticGridModify");
    EXPECT_EQ(3265, errorOf([&] { command->assign("@Flags", 1); })) << "before the refresh";
    command->refreshParameters();
    EXPECT_EQ(3265, errorOf([&] { command->assign("@Colour", 1); }));
    command->assign("@auditalias", std::string("anna"));
    command->assign("@ObjectId", std::string("1"));
    command->assign("@Flags", std::int32_t{9});
    command->execute();
    EXPECT_EQ(Value(9), flags("A"));
    EXPECT_EQ(Value(Null{}), one("SELECT name AS Flags FROM audit"));
    EXPECT_EQ(Value(std::string("anna")), one("SELECT alias AS Flags FROM audit"));
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

TEST_F(SiteDatabaseTest, IsABrokenConnectionWhenTheFileHasGone)
{
    open();
    fs::rename(file, file + ".away");
    EXPECT_EQ(0, database.state());
    EXPECT_EQ(3709, errorOf([&] { flags("A"); }));
    fs::rename(file + ".away", file);
    open();
    EXPECT_EQ(Value(5), flags("A"));
}

TEST_F(SiteDatabaseTest, SeesAnotherProgramsChangeAtOnce)
{
    open();
    EXPECT_EQ(Value(5), flags("A"));
    execute(file, "UPDATE grid SET Flags = 6 WHERE Name = 'A'");
    EXPECT_EQ(Value(6), flags("A"));
}

} // namespace
