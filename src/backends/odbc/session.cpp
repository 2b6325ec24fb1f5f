#include "backends/odbc/session.h"

#include "backends/odbc/bounded_call.h"
#include "backends/odbc/statement.h"
#include "backends/odbc/wide_text.h"
#include "platform/database.h"
#include "runtime/run_time_error.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>

namespace {

/// The server's own number for a call of what it does not have.
constexpr int numberOfNoSuchProcedure = 2812;

void setNumber(SQLHDBC connection, SQLINTEGER attribute, std::uintptr_t number)
{
    // A driver that knows no such attribute goes on without it.
    SQLSetConnectAttrW(connection, attribute, reinterpret_cast<SQLPOINTER>(number),
                       SQL_IS_UINTEGER);
}

SQLHENV newEnvironment()
{
    SQLHENV environment = SQL_NULL_HENV;
    if (!SQL_SUCCEEDED(SQLAllocHandle(SQL_HANDLE_ENV, SQL_NULL_HANDLE, &environment)))
        throw RunTimeError(runTimeErrors::outOfMemory);
    SQLSetEnvAttr(environment, SQL_ATTR_ODBC_VERSION, reinterpret_cast<SQLPOINTER>(SQL_OV_ODBC3),
                  0);
    return environment;
}

} // namespace

OdbcSession::OdbcSession(const std::string& connectionString, OdbcUse use, OdbcPatience patience)
    : environment_(newEnvironment()), use_(use), patience_(patience)
{
    try {
        if (!SQL_SUCCEEDED(SQLAllocHandle(SQL_HANDLE_DBC, environment_, &connection_)))
            throw RunTimeError(runTimeErrors::outOfMemory);
        setNumber(connection_, SQL_ATTR_LOGIN_TIMEOUT,
                  static_cast<std::uintptr_t>(patience_.login.count()));
        setNumber(connection_, SQL_ATTR_CONNECTION_TIMEOUT,
                  static_cast<std::uintptr_t>(patience_.statement.count()));
        if (use_ == OdbcUse::look) setNumber(connection_, SQL_ATTR_ACCESS_MODE, SQL_MODE_READ_ONLY);
        if (!SQL_SUCCEEDED(connect(connectionString)))
            throw RunTimeError(
                databaseErrors::unspecified,
                diagnosticOfConnection(connection_, "The driver could not connect.").text);
        server_ = serverKindOf(connection_);
        hasProcedures_ = !callsByView(connection_);
        if (!answers())
            throw RunTimeError(databaseErrors::unspecified, "The database can't be read.");
    } catch (...) {
        close();
        throw;
    }
}

/// A driver's own patience may end where the server lets it in, and a server that says nothing from
/// then on holds it for ever.
SQLRETURN OdbcSession::connect(const std::string& connectionString)
{
    constexpr std::chrono::seconds driversOwnSay{5};
    const auto wide = std::make_shared<WideText>(connectionString);
    const auto result = resultWithin(
        patience_.login + driversOwnSay,
        [wide, connection = connection_] {
            return SQLDriverConnectW(connection, nullptr, wide->data(), wide->length(), nullptr, 0,
                                     nullptr, SQL_DRIVER_NOPROMPT);
        },
        [connection = connection_, environment = environment_](SQLRETURN late) {
            if (SQL_SUCCEEDED(late)) SQLDisconnect(connection);
            SQLFreeHandle(SQL_HANDLE_DBC, connection);
            SQLFreeHandle(SQL_HANDLE_ENV, environment);
        });
    if (result) return *result;
    connection_ = SQL_NULL_HDBC;
    environment_ = SQL_NULL_HENV;
    throw RunTimeError(databaseErrors::unspecified,
                       "The server takes the connection and then says nothing.");
}

OdbcSession::~OdbcSession()
{
    close();
}

void OdbcSession::close()
{
    if (connection_ != SQL_NULL_HDBC) {
        SQLDisconnect(connection_);
        SQLFreeHandle(SQL_HANDLE_DBC, connection_);
    }
    if (environment_ != SQL_NULL_HENV) SQLFreeHandle(SQL_HANDLE_ENV, environment_);
}

bool OdbcSession::answers()
{
    if (broken_) return false;
    try {
        // A file is not read before something of it is asked for.
        OdbcStatement(*this).run(
            server_ == ServerKind::sqlite ? "SELECT count(*) FROM sqlite_master" : "SELECT 1");
    } catch (const RunTimeError&) {
        // Whatever else is refused was refused by a server that is there.
    }
    return !broken_;
}

/// Drivers tell the loss of a connection in more ways than one.
bool OdbcSession::isLost(Failure failure) const
{
    SQLUINTEGER dead = SQL_CD_FALSE;
    return failure == Failure::connectionLost ||
           (SQL_SUCCEEDED(SQLGetConnectAttrW(connection_, SQL_ATTR_CONNECTION_DEAD, &dead,
                                             SQL_IS_UINTEGER, nullptr)) &&
            dead == SQL_CD_TRUE);
}

void OdbcSession::fail(SQLHSTMT statement, Asked asked)
{
    using namespace databaseErrors;
    const Diagnostic diagnostic =
        diagnosticOfStatement(statement, "The driver does not say what failed.");
    if (diagnostic.state == "HY001") throw RunTimeError(runTimeErrors::outOfMemory);
    const Failure failure = failureOf(diagnostic, server_);
    if (isLost(failure)) {
        broken_ = true;
        throw RunTimeError(runTimeErrors::connectionClosed, diagnostic.text);
    }
    if (failure == Failure::timedOut)
        throw RunTimeError(statementRefused, "The server did not answer within " +
                                                 std::to_string(patience_.statement.count()) +
                                                 " seconds: " + diagnostic.text);
    if (asked == Asked::query && failure == Failure::noSuchTable)
        throw RunTimeError(noSuchTable, diagnostic.text);
    const bool numbered = asked == Asked::call && server_ == ServerKind::sqlServer &&
                          diagnostic.number != 0 && diagnostic.number != numberOfNoSuchProcedure;
    throw RunTimeError(numbered ? diagnostic.number : statementRefused, diagnostic.text);
}

std::vector<std::string> installedDrivers()
{
    std::vector<std::string> names;
    const SQLHENV environment = newEnvironment();
    std::array<SQLWCHAR, 256> name{};
    std::array<SQLWCHAR, 4096> attributes{};
    SQLSMALLINT length = 0;
    SQLSMALLINT attributesLength = 0;
    SQLUSMALLINT direction = SQL_FETCH_FIRST;
    while (SQL_SUCCEEDED(SQLDriversW(
        environment, direction, name.data(), static_cast<SQLSMALLINT>(name.size()), &length,
        attributes.data(), static_cast<SQLSMALLINT>(attributes.size()), &attributesLength))) {
        direction = SQL_FETCH_NEXT;
        names.push_back(utf8OfWide(
            name.data(), std::min<std::size_t>(static_cast<std::size_t>(length), name.size() - 1)));
    }
    SQLFreeHandle(SQL_HANDLE_ENV, environment);
    return names;
}
