#include "backends/odbc/statement.h"

#include "backends/odbc/bound_value.h"
#include "backends/odbc/column_value.h"
#include "backends/odbc/wide_text.h"
#include "platform/database.h"
#include "runtime/run_time_error.h"

#include <algorithm>
#include <array>
#include <cstdint>

OdbcStatement::OdbcStatement(OdbcSession& session, Asked asked) : session_(session), asked_(asked)
{
    if (!SQL_SUCCEEDED(SQLAllocHandle(SQL_HANDLE_STMT, session.handle(), &statement_)))
        throw RunTimeError(
            databaseErrors::statementRefused,
            diagnosticOfConnection(session.handle(), "The driver takes no further statement.")
                .text);
    // A driver that can't end a statement goes on without it.
    SQLSetStmtAttrW(statement_, SQL_ATTR_QUERY_TIMEOUT,
                    reinterpret_cast<SQLPOINTER>(
                        static_cast<std::uintptr_t>(session.patience().statement.count())),
                    SQL_IS_UINTEGER);
}

OdbcStatement::~OdbcStatement()
{
    SQLFreeHandle(SQL_HANDLE_STMT, statement_);
}

void OdbcStatement::require(SQLRETURN result)
{
    if (!SQL_SUCCEEDED(result) && result != SQL_NO_DATA) session_.fail(statement_, asked_);
}

void OdbcStatement::bind(BoundValue& value)
{
    require(SQLBindParameter(statement_, ++bound_, SQL_PARAM_INPUT, value.valueType(),
                             value.parameterType(), value.columnSize(), value.decimalDigits(),
                             value.data(), value.bytes(), value.indicator()));
}

void OdbcStatement::run(const std::string& sql)
{
    WideText wide(sql);
    require(SQLExecDirectW(statement_, wide.data(), wide.longLength()));
}

void OdbcStatement::finish()
{
    // What a procedure refuses after it counted rows comes behind those counts.
    SQLRETURN result = SQL_SUCCESS;
    while (SQL_SUCCEEDED(result)) result = SQLMoreResults(statement_);
    require(result);
}

void OdbcStatement::listProcedures(const std::string& procedure)
{
    WideText wide(procedure);
    require(SQLProceduresW(statement_, nullptr, 0, nullptr, 0, wide.data(), wide.length()));
}

void OdbcStatement::listParameters(const std::string& procedure)
{
    WideText wide(procedure);
    require(SQLProcedureColumnsW(statement_, nullptr, 0, nullptr, 0, wide.data(), wide.length(),
                                 nullptr, 0));
}

void OdbcStatement::listColumns(const std::string& view)
{
    WideText wide(view);
    require(
        SQLColumnsW(statement_, nullptr, 0, nullptr, 0, wide.data(), wide.length(), nullptr, 0));
}

std::vector<OdbcColumn> OdbcStatement::columns() const
{
    SQLSMALLINT count = 0;
    SQLNumResultCols(statement_, &count);
    std::vector<OdbcColumn> columns;
    for (SQLUSMALLINT position = 1; position <= count; ++position) {
        std::array<SQLWCHAR, 256> name{};
        SQLSMALLINT length = 0;
        SQLSMALLINT type = SQL_UNKNOWN_TYPE;
        SQLULEN size = 0;
        SQLSMALLINT digits = 0;
        SQLSMALLINT nullable = 0;
        if (!SQL_SUCCEEDED(SQLDescribeColW(statement_, position, name.data(),
                                           static_cast<SQLSMALLINT>(name.size()), &length, &type,
                                           &size, &digits, &nullable)))
            session_.fail(statement_, asked_);
        const auto units =
            std::min(static_cast<std::size_t>(std::max<SQLSMALLINT>(length, 0)), name.size() - 1);
        columns.push_back({utf8OfWide(name.data(), units), type});
    }
    return columns;
}

bool OdbcStatement::fetch()
{
    const SQLRETURN result = SQLFetch(statement_);
    require(result);
    return result != SQL_NO_DATA;
}

Value OdbcStatement::value(SQLUSMALLINT position, SQLSMALLINT type)
{
    Value value = Null{};
    require(readColumn(statement_, position, type, value));
    return value;
}
