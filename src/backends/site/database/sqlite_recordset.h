#pragma once

#include "backends/site/database/sqlite_handle.h"
#include "platform/database.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// The rows of a query on an SQLite database. A keyset cursor finds all rows at once, so that the
/// table may be written to while it is walked, and reads each again when it comes to it; a
/// forward-only one reads them one by one.
///
/// What is changed while the rows of a keyset are walked is one change (SqliteHandle::beginWalk)
/// until the cursor is past the last row, or the recordset is closed or gone.
///
/// What tells the rows of a keyset apart is the first column that holds a text of its own for each.
class SqliteRecordset final : public DatabaseRecordset {
public:
    /// Raises as DatabaseConnection::openRecordset.
    SqliteRecordset(std::shared_ptr<SqliteHandle> handle, const std::string& query,
                    CursorKind cursor);
    ~SqliteRecordset() override;

    bool atEnd() const override;
    Value field(const std::string& name) const override;
    void moveNext() override;
    int rowCount() const override;
    void close() override;

private:
    using Row = std::vector<Value>;

    void requireOpen() const;
    Row rowAtHand(sqlite3_stmt* statement) const;
    void findKeys(const std::string& query);
    const Row& present() const;
    bool readAgain() const;
    void endWalk();

    /// Moves the statement on. True for a row. Raises for one too many of them, or what the
    /// statement fails with, and there is no row then.
    bool step();

    std::shared_ptr<SqliteHandle> handle_;
    SqliteStatement statement_;
    CursorKind cursor_;
    bool open_ = true;
    bool row_ = false; ///< the statement stands on a row
    int steps_ = 0;    ///< rows that the statement gave
    std::vector<std::string> columns_;
    std::size_t position_ = 0;

    // Of a keyset.
    mutable std::vector<Row> rows_;        ///< those the cursor has come to as they were then
    std::optional<std::size_t> keyColumn_; ///< nothing where no column tells the rows apart
    SqliteStatement again_;                ///< finds a row by its key
    mutable bool read_ = true;             ///< the row at hand is as it was when it was come to
    mutable unsigned readIn_ = 0;          ///< the handle's change at that time
    bool walking_ = false;
};
