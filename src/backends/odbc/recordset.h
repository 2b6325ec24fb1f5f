#pragma once

#include "backends/odbc/statement.h"
#include "platform/database.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// The rows of a query on a server, all of which are fetched at the opening: most servers take no
/// further statement on a connection whose rows are still under way, and the tool writes while it
/// walks. A keyset asks the server for each row again when the cursor comes to it.
///
/// What tells the rows of a keyset apart is the first column that holds a text of its own for each.
class OdbcRecordset final : public DatabaseRecordset {
public:
    /// Raises as DatabaseConnection::openRecordset.
    OdbcRecordset(std::shared_ptr<OdbcSession> session, const std::string& query,
                  CursorKind cursor);

    bool atEnd() const override;
    Value field(const std::string& name) const override;
    void moveNext() override;
    int rowCount() const override;
    void close() override;

private:
    using Row = std::vector<Value>;

    void requireOpen() const;
    void fetchRows(const std::string& query);
    Row fetched(OdbcStatement& statement) const;
    void findKeys(const std::string& query);
    bool readAgain() const;

    std::shared_ptr<OdbcSession> session_;
    CursorKind cursor_;
    bool open_ = true;
    std::vector<OdbcColumn> columns_;
    mutable std::vector<Row> rows_; ///< a keyset's: those the cursor has come to as they were then
    std::size_t position_ = 0;

    // Of a keyset.
    std::optional<std::size_t> keyColumn_; ///< nothing where no column tells the rows apart
    std::string again_;                    ///< finds a row by its key
    mutable bool read_ = true;             ///< the row at hand is as it was when it was come to
};

/// A query without the order of its rows, as it may stand within another: on most servers a query
/// in brackets has none. An "ORDER BY" in a text, in a quoted name or in brackets stays.
std::string withoutOrder(const std::string& query);
