#include "backends/odbc/odbc_database.h"

#include "backends/odbc/driver_path.h"
#include "backends/odbc/grid_statements.h"
#include "platform/database_contract.h"
#include "support/temporary_folder.h"

#include <sqlite3.h>

namespace {

using namespace gridStatements;

constexpr const char* sqliteSchema =
    "CREATE TABLE grid(Name TEXT, ObjectId TEXT, Flags INTEGER, DefaultFlags INTEGER);"
    "INSERT INTO grid VALUES"
    " ('B','id-B',-2147483648,0),('A','id-A',5,1),('O''Hara','id-O',NULL,7);"
    "CREATE VIEW vw_LoggerDiagnosticGrid AS SELECT * FROM grid;"
    "CREATE VIEW vw_Nothing AS SELECT Name FROM grid WHERE 0;"
    "CREATE VIEW csp_LoggerDiagnosticGridModify AS SELECT NULL Name, NULL ObjectId, NULL Flags;"
    "CREATE TRIGGER modify INSTEAD OF INSERT ON csp_LoggerDiagnosticGridModify BEGIN"
    " SELECT CASE WHEN NEW.Flags = 13 THEN RAISE(ABORT, 'unlucky flags') END;"
    " UPDATE grid SET Flags = NEW.Flags WHERE ObjectId = NEW.ObjectId; END;";

/// A file of SQLite behind its driver, which has no procedures. A file that holds something else is
/// a server that has gone.
class SqliteBehindOdbc {
public:
    SqliteBehindOdbc() { execute(sqliteSchema); }

    DatabaseConnection& connection() { return database_; }

    void loseServer()
    {
        bytes_ = folder_.read("directory.db");
        folder_.write("directory.db", std::string(bytes_.size(), 'x'));
    }
    void bringServerBack() { folder_.write("directory.db", bytes_); }

    void setFlags(const std::string& name, std::int32_t flags)
    {
        execute(settingFlags(name, flags));
    }
    void addComponent(const std::string& name) { execute(adding(name)); }
    void removeComponent(const std::string& name) { execute(removing(name)); }

private:
    void execute(const std::string& sql)
    {
        sqlite3* database = nullptr;
        EXPECT_EQ(SQLITE_OK, sqlite3_open((folder_ / "directory.db").c_str(), &database));
        EXPECT_EQ(SQLITE_OK, sqlite3_exec(database, sql.c_str(), nullptr, nullptr, nullptr));
        sqlite3_close(database);
    }

    TemporaryFolder folder_;
    std::string bytes_;
    OdbcDatabase database_{"Driver=SQLite3;Database=" + driverPath(folder_ / "directory.db")};
};

INSTANTIATE_TYPED_TEST_SUITE_P(SqliteBehindOdbc, DatabaseContract, SqliteBehindOdbc);

} // namespace
