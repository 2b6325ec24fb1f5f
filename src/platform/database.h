#pragma once

#include "runtime/value.h"

#include <cstddef>
#include <memory>
#include <string>

/// How a recordset moves through its rows; the numbers are the data provider's own. A keyset holds
/// which rows there were at its opening, and shows each as it is when the cursor comes to it; a row
/// that has gone by then is passed over. Rows that nothing tells apart it shows as they were.
enum class CursorKind { forwardOnly = 0, keyset = 1 };

/// Whether and when a recordset's rows are locked.
enum class LockKind { readOnly = 1, optimistic = 3 };

/// The rows of a query, on the row where it stands; on the first one after opening.
///
/// Any call may raise 3709 when the connection has gone, and raises 3704 once it is closed.
class DatabaseRecordset {
public:
    virtual ~DatabaseRecordset() = default;

    /// Whether there is no row, or none any more.
    virtual bool atEnd() const = 0;

    /// A column of the row, by name without regard to case. Raises 3265 for a name that the query
    /// lacks, at the end too, else 3021 at the end.
    virtual Value field(const std::string& name) const = 0;

    /// Goes on to the next row, or past the last one. Raises 3021 at the end.
    virtual void moveNext() = 0;

    /// The number of rows at the opening; -1 for a forward-only cursor, which can't tell.
    virtual int rowCount() const = 0;

    /// Lets the rows go.
    virtual void close() = 0;
};

/// A call of a stored procedure. Made anew for each use or set up again from the start.
class DatabaseCommand {
public:
    virtual ~DatabaseCommand() = default;

    /// Raises 3709 when the connection is closed.
    virtual void useActiveConnection() = 0;

    /// The name of the stored procedure that `execute` calls; nothing is assigned, nor any
    /// parameter known.
    virtual void setProcedure(const std::string& name) = 0;

    /// Asks the server for the procedure's parameters; assigned values are dropped. A failure
    /// leaves none.
    /// Raises 3709; -2147217900 when there is no such procedure.
    virtual void refreshParameters() = 0;

    /// Gives a parameter such as "@Name", in whatever case, its value. Raises 3265 when the
    /// server's list lacks it, as before it was asked for.
    virtual void assign(const std::string& parameter, const Value& value) = 0;

    /// Calls the procedure with what is assigned; the rest is Null. Raises 3709, -2147217900 when
    /// there is no such procedure, and what the server says when it refuses, with its number.
    virtual void execute() = 0;
};

/// The connection to the server's database.
class DatabaseConnection {
public:
    virtual ~DatabaseConnection() = default;

    /// 0 closed, 1 open. A connection that broke is closed.
    virtual int state() const = 0;

    /// Raises 3705 when it is open, -2147467259 when the server or the database is not there.
    virtual void open(const std::string& connectionString, const std::string& user,
                      const std::string& password) = 0;

    /// Errors that the provider reported for the latest `open` of a closed connection; none before
    /// the first.
    virtual int errorCount() const = 0;

    /// Runs a query. Raises 3709 when closed; -2147217900 for a query that the server refuses,
    /// such as one for a column that is not there, -2147217865 for a view that is not there. Names
    /// of views and columns match without regard to case.
    virtual std::unique_ptr<DatabaseRecordset> openRecordset(const std::string& query,
                                                             CursorKind cursor, LockKind lock) = 0;

    /// A command on this connection, which may still be closed.
    virtual std::unique_ptr<DatabaseCommand> createCommand() = 0;
};

/// The provider's numbers for what the server refuses.
namespace databaseErrors {
constexpr int closedObject = 3704;
constexpr int alreadyOpen = 3705;
constexpr int noCurrentRow = 3021;
constexpr int unspecified = -2147467259;
constexpr int statementRefused = -2147217900;
constexpr int noSuchTable = -2147217865;
} // namespace databaseErrors
