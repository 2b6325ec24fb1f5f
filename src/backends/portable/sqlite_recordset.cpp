#include "backends/portable/sqlite_recordset.h"

#include "runtime/run_time_error.h"
#include "runtime/text.h"

#include <algorithm>
#include <limits>
#include <utility>

#include <sqlite3.h>

namespace {

Value columnValue(sqlite3_stmt* statement, int column)
{
    switch (sqlite3_column_type(statement, column)) {
    case SQLITE_NULL:
        return Null{};
    case SQLITE_INTEGER: {
        const auto number = sqlite3_column_int64(statement, column);
        if (number >= std::numeric_limits<std::int32_t>::min() &&
            number <= std::numeric_limits<std::int32_t>::max())
            return static_cast<std::int32_t>(number);
        return static_cast<double>(number);
    }
    case SQLITE_FLOAT:
        return sqlite3_column_double(statement, column);
    default: {
        const auto* bytes = static_cast<const char*>(sqlite3_column_blob(statement, column));
        const int length = sqlite3_column_bytes(statement, column);
        return bytes ? std::string(bytes, static_cast<std::size_t>(length)) : std::string();
    }
    }
}

} // namespace

SqliteRecordset::SqliteRecordset(std::shared_ptr<SqliteHandle> handle, const std::string& query,
                                 CursorKind cursor)
    : handle_(std::move(handle)), statement_(handle_->prepare(query)), cursor_(cursor)
{
    const int count = statement_.get() ? sqlite3_column_count(statement_.get()) : 0;
    for (int column = 0; column < count; ++column)
        columns_.emplace_back(sqlite3_column_name(statement_.get(), column));
    row_ = step();
    if (cursor_ != CursorKind::keyset) return;
    for (; row_; row_ = step()) {
        auto& row = rows_.emplace_back();
        for (int column = 0; column < count; ++column)
            row.push_back(columnValue(statement_.get(), column));
    }
    statement_ = {};
}

bool SqliteRecordset::atEnd() const
{
    requireOpen();
    return cursor_ == CursorKind::keyset ? position_ >= rows_.size() : !row_;
}

Value SqliteRecordset::field(const std::string& name) const
{
    requireOpen();
    const auto found = std::find_if(columns_.begin(), columns_.end(), [&](const auto& column) {
        return equalIgnoringCase(column, name);
    });
    if (found == columns_.end()) throw RunTimeError(runTimeErrors::itemNotInCollection);
    if (atEnd()) throw RunTimeError(databaseErrors::noCurrentRow);
    const auto column = found - columns_.begin();
    return cursor_ == CursorKind::keyset ? rows_[position_][static_cast<std::size_t>(column)]
                                         : columnValue(statement_.get(), static_cast<int>(column));
}

void SqliteRecordset::moveNext()
{
    if (atEnd()) throw RunTimeError(databaseErrors::noCurrentRow);
    if (cursor_ == CursorKind::keyset)
        ++position_;
    else
        row_ = step();
}

int SqliteRecordset::rowCount() const
{
    requireOpen();
    return cursor_ == CursorKind::keyset ? static_cast<int>(rows_.size()) : -1;
}

void SqliteRecordset::close()
{
    requireOpen();
    open_ = false;
    statement_ = {};
    rows_.clear();
}

void SqliteRecordset::requireOpen() const
{
    if (!open_) throw RunTimeError(databaseErrors::closedObject);
}

bool SqliteRecordset::step()
{
    if (!statement_.get()) return false;
    const int result = sqlite3_step(statement_.get());
    if (result == SQLITE_ROW) return true;
    if (result != SQLITE_DONE) handle_->fail();
    statement_ = {}; // the next query of this text may use it from now on
    return false;
}
