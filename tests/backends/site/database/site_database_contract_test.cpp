#include "backends/site/database/site_database.h"

#include "platform/database_contract.h"
#include "support/temporary_folder.h"

#include <sqlite3.h>

namespace {

constexpr const char* schema =
    "CREATE TABLE grid(Name TEXT, ObjectId TEXT, Flags INTEGER, DefaultFlags INTEGER);"
    "INSERT INTO grid VALUES"
    " ('B','id-B',-2147483648,0),('A','id-A',5,1),('O''Hara','id-O',NULL,7);"
    "CREATE VIEW vw_LoggerDiagnosticGrid AS SELECT * FROM grid;"
    "CREATE VIEW vw_Nothing AS SELECT Name FROM grid WHERE 0;"
    "CREATE VIEW csp_LoggerDiagnosticGridModify AS SELECT NULL Name, NULL ObjectId, NULL Flags;"
    "CREATE TRIGGER modify INSTEAD OF INSERT ON csp_LoggerDiagnosticGridModify BEGIN"
    " SELECT CASE WHEN NEW.Flags = 13 THEN RAISE(ABORT, 'unlucky flags') END;"
    " UPDATE grid SET Flags = NEW.Flags WHERE ObjectId = NEW.ObjectId; END;";

/// The database of a site as the contract wants a server.
class SiteServer {
public:
    SiteServer() { execute(schema); }

    DatabaseConnection& connection() { return database_; }

    void loseServer() { std::filesystem::rename(file_, file_ + ".away"); }
    void bringServerBack() { std::filesystem::rename(file_ + ".away", file_); }

    void setFlags(const std::string& name, std::int32_t flags)
    {
        execute("UPDATE grid SET Flags = " + std::to_string(flags) + " WHERE Name = '" + name +
                "'");
    }
    void addComponent(const std::string& name)
    {
        execute("INSERT INTO grid VALUES('" + name + "','id-" + name + "',0,0)");
    }
    void removeComponent(const std::string& name)
    {
        std::string doubled;
        for (const char letter : name) doubled += letter == '\'' ? "''" : std::string(1, letter);
        execute("DELETE FROM grid WHERE Name = '" + doubled + "'");
    }

private:
    void execute(const std::string& sql)
    {
        sqlite3* database = nullptr;
        EXPECT_EQ(SQLITE_OK, sqlite3_open(file_.c_str(), &database));
        EXPECT_EQ(SQLITE_OK, sqlite3_exec(database, sql.c_str(), nullptr, nullptr, nullptr));
        sqlite3_close(database);
    }

    TemporaryFolder folder_;
    std::string file_ = folder_ / "OrvanDirDb.sqlite";
    SiteDatabase database_{file_};
};

INSTANTIATE_TYPED_TEST_SUITE_P(Site, DatabaseContract, SiteServer);

} // namespace
