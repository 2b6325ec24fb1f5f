#pragma once

#include "backends/portable/sqlite_handle.h"
#include "platform/database.h"

#include <memory>
#include <string>
#include <vector>

/// The rows of a query on an SQLite database. A keyset cursor reads all rows at once, so that the
/// table may be written to while it is walked; a forward-only one reads them one by one.
class SqliteRecordset final : public DatabaseRecordset {
public:
    /// Raises as DatabaseConnection::openRecordset.
    SqliteRecordset(std::shared_ptr<SqliteHandle> handle, const std::string& query,
                    CursorKind cursor);

    bool atEnd() const override;
    Value field(const std::string& name) const override;
    void moveNext() override;
    int rowCount() const override;
    void close() override;

private:
    void requireOpen() const;

    /// Moves the statement on. True for a row.
    bool step();

    std::shared_ptr<SqliteHandle> handle_;
    SqliteStatement statement_;
    CursorKind cursor_;
    bool open_ = true;
    bool row_ = false; ///< the statement stands on a row
    std::vector<std::string> columns_;
    std::vector<std::vector<Value>> rows_; ///< of a keyset
    std::size_t position_ = 0;
};
