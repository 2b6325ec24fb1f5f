#include "backends/odbc/odbc_database.h"

#include "backends/odbc/grid_statements.h"
#include "platform/database_contract.h"
#include "support/postgres_server.h"

namespace {

using namespace gridStatements;

constexpr const char* postgresSchema =
    "CREATE TABLE grid(Name text, ObjectId text, Flags integer, DefaultFlags integer);"
    "INSERT INTO grid VALUES"
    " ('B','id-B',-2147483648,0),('A','id-A',5,1),('O''Hara','id-O',NULL,7);"
    "CREATE VIEW vw_LoggerDiagnosticGrid AS SELECT * FROM grid;"
    "CREATE VIEW vw_Nothing AS SELECT Name FROM grid WHERE false;"
    "CREATE PROCEDURE csp_LoggerDiagnosticGridModify(Name text, ObjectId text, Flags integer)"
    " LANGUAGE plpgsql AS $$ BEGIN"
    " IF $3 = 13 THEN RAISE 'unlucky flags'; END IF;"
    " UPDATE grid g SET Flags = $3 WHERE g.ObjectId = $2; END $$;";

/// A server of PostgreSQL, started once for all tests.
class PostgresBehindOdbc {
public:
    PostgresBehindOdbc()
    {
        server().reset();
        server().run(postgresSchema);
    }
    ~PostgresBehindOdbc()
    {
        if (lost_) server().start();
    }

    DatabaseConnection& connection() { return database_; }

    void loseServer()
    {
        server().stop();
        lost_ = true;
    }
    void bringServerBack()
    {
        server().start();
        lost_ = false;
    }

    void setFlags(const std::string& name, std::int32_t flags)
    {
        server().run(settingFlags(name, flags));
    }
    void addComponent(const std::string& name) { server().run(adding(name)); }
    void removeComponent(const std::string& name) { server().run(removing(name)); }

private:
    static PostgresServer& server()
    {
        static PostgresServer server;
        return server;
    }

    bool lost_ = false;
    OdbcDatabase database_{server().connectionString()};
};

INSTANTIATE_TYPED_TEST_SUITE_P(PostgresBehindOdbc, DatabaseContract, PostgresBehindOdbc);

} // namespace
