#pragma once

#include "backends/odbc/odbc_api.h"
#include "backends/odbc/session.h"
#include "runtime/value.h"

#include <string>
#include <vector>

class BoundValue;

/// A column of a statement's rows.
struct OdbcColumn {
    std::string name;
    SQLSMALLINT type; ///< of ODBC's numbers, or one of the driver's own
};

/// A statement of a session that outlives it. Every call raises as `OdbcSession::fail`.
class OdbcStatement {
public:
    explicit OdbcStatement(OdbcSession& session, Asked asked = Asked::query);
    ~OdbcStatement();
    OdbcStatement(const OdbcStatement&) = delete;
    OdbcStatement& operator=(const OdbcStatement&) = delete;

    SQLHSTMT handle() const { return statement_; }

    /// Gives the next "?" its value, which stays where it is until the statement has run.
    void bind(BoundValue& value);

    void run(const std::string& sql);

    /// Runs what is behind all results of the statement; what fails among them is raised, too.
    void finish();

    /// The catalogue's lists of procedures, of a procedure's parameters, of a view's columns.
    /// `name` may be taken for a pattern, so that others may be in the list.
    void listProcedures(const std::string& procedure);
    void listParameters(const std::string& procedure);
    void listColumns(const std::string& view);

    /// None for a statement that gives no rows.
    std::vector<OdbcColumn> columns() const;

    /// Goes to the first row, or to the next one; false behind the last.
    bool fetch();

    /// A value of the row, counted from 1. Values are to be read from left to right.
    Value value(SQLUSMALLINT position, SQLSMALLINT type);

private:
    void require(SQLRETURN result);

    OdbcSession& session_;
    Asked asked_;
    SQLHSTMT statement_ = SQL_NULL_HSTMT;
    SQLUSMALLINT bound_ = 0;
};
