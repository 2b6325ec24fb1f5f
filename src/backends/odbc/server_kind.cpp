#include "backends/odbc/server_kind.h"

#include "backends/odbc/wide_text.h"
#include "runtime/text.h"

#include <algorithm>
#include <array>

namespace {

std::string information(SQLHDBC connection, SQLUSMALLINT what)
{
    std::array<SQLWCHAR, 128> text{};
    SQLSMALLINT bytes = 0;
    const auto room = static_cast<SQLSMALLINT>(sizeof text);
    if (!SQL_SUCCEEDED(SQLGetInfoW(connection, what, text.data(), room, &bytes)) || bytes < 0)
        return {};
    return utf8OfWide(text.data(), std::min(bytes / sizeof(SQLWCHAR), text.size() - 1));
}

} // namespace

ServerKind serverKindOf(SQLHDBC connection)
{
    const std::string name = information(connection, SQL_DBMS_NAME);
    if (equalIgnoringCase(name, "Microsoft SQL Server")) return ServerKind::sqlServer;
    if (equalIgnoringCase(name, "PostgreSQL")) return ServerKind::postgres;
    if (equalIgnoringCase(name, "SQLite")) return ServerKind::sqlite;
    return ServerKind::other;
}

bool callsByView(SQLHDBC connection)
{
    return information(connection, SQL_PROCEDURES) == "N";
}

std::string catalogueName(SQLHDBC connection, const std::string& name)
{
    SQLUSMALLINT kept = SQL_IC_MIXED;
    SQLGetInfoW(connection, SQL_IDENTIFIER_CASE, &kept, sizeof kept, nullptr);
    if (kept == SQL_IC_LOWER) return lowerCase(name);
    if (kept == SQL_IC_UPPER) return upperCase(name);
    return name;
}
