#pragma once

#include "backends/site/database/site_database.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>

#include <sqlite3.h>
#include <unistd.h>

/// Runs statements on a database file, as another program does.
inline void execute(const std::string& file, const char* sql)
{
    sqlite3* database = nullptr;
    ASSERT_EQ(SQLITE_OK, sqlite3_open(file.c_str(), &database));
    ASSERT_EQ(SQLITE_OK, sqlite3_exec(database, sql, nullptr, nullptr, nullptr));
    sqlite3_close(database);
}

/// Calls the server's procedure that sets the flag word of a component.
inline void setFlags(SiteDatabase& database, const std::string& objectId, std::int32_t word)
{
    auto command = database.createCommand();
    command->setProcedure("csp_LoggerDiagnosticGridModify");
    command->refreshParameters();
    command->assign("@ObjectId", objectId);
    command->assign("@Flags", word);
    command->execute();
}

/// A site's database with three components in its diagnostic grid, in a folder of its own. The
/// procedure that sets flags refuses 13.
struct GridDatabase : testing::Test {
    GridDatabase()
    {
        std::filesystem::remove_all(folder);
        std::filesystem::create_directories(folder);
        execute(file, schema);
    }
    ~GridDatabase() override { std::filesystem::remove_all(folder); }

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

    static constexpr const char* schema =
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

    const std::filesystem::path folder =
        std::filesystem::temp_directory_path() / ("orvan_database_" + std::to_string(getpid()));
    const std::string file = (folder / "OrvanDirDb.sqlite").string();
    SiteDatabase database{file};
};
