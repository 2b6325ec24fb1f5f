#pragma once

#include "backends/odbc/diagnostic.h"
#include "backends/odbc/odbc_api.h"
#include "backends/odbc/odbc_use.h"
#include "backends/odbc/server_kind.h"

#include <chrono>
#include <string>
#include <vector>

/// How long a call waits, as the tool's own data provider would: 15 seconds for a server to let
/// somebody in, 30 for a statement. A person waits in front of it.
struct OdbcPatience {
    std::chrono::seconds login{15};
    std::chrono::seconds statement{30};
};

/// What a statement was to do.
enum class Asked { query, call };

/// An open connection to a server's database.
class OdbcSession {
public:
    /// Raises -2147467259, with what the driver says, when the server or the database is not there
    /// or lets nobody in.
    OdbcSession(const std::string& connectionString, OdbcUse use, OdbcPatience patience);
    ~OdbcSession();
    OdbcSession(const OdbcSession&) = delete;
    OdbcSession& operator=(const OdbcSession&) = delete;

    SQLHDBC handle() const { return connection_; }
    OdbcUse use() const { return use_; }
    OdbcPatience patience() const { return patience_; }
    ServerKind server() const { return server_; }
    bool hasProcedures() const { return hasProcedures_; }

    /// Whether the connection was found broken.
    bool isBroken() const { return broken_; }

    /// Asks the server for next to nothing, to learn whether it is still there.
    bool answers();

    /// Raises what a statement's latest call failed with: 3709, -2147217865, -2147217900; for a
    /// procedure's call that the server refused, the server's own number where it has any.
    [[noreturn]] void fail(SQLHSTMT statement, Asked asked);

private:
    SQLRETURN connect(const std::string& connectionString);
    bool isLost(Failure failure) const;
    void close();

    SQLHENV environment_ = SQL_NULL_HENV;
    SQLHDBC connection_ = SQL_NULL_HDBC;
    OdbcUse use_;
    OdbcPatience patience_;
    ServerKind server_ = ServerKind::other;
    bool hasProcedures_ = true;
    bool broken_ = false;
};

/// The names of the drivers that this machine has.
std::vector<std::string> installedDrivers();
