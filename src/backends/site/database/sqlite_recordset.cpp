#include "backends/site/database/sqlite_recordset.h"

#include "runtime/run_time_error.h"
#include "runtime/text.h"

#include <algorithm>
#include <limits>
#include <unordered_set>
#include <utility>

#include <sqlite3.h>

namespace {

/// A server has some hundred components and some thousand settings; a view can be written so that
/// it has no end.
constexpr int mostRows = 100'000;

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
    if (!statement_.get())
        throw RunTimeError(databaseErrors::statementRefused, "The query is empty.");
    const int count = sqlite3_column_count(statement_.get());
    for (int column = 0; column < count; ++column)
        columns_.emplace_back(sqlite3_column_name(statement_.get(), column));
    row_ = step();
    if (cursor_ != CursorKind::keyset) return;
    findKeys(query);
    readIn_ = handle_->change();
    walking_ = !rows_.empty();
    if (walking_) handle_->beginWalk();
}

SqliteRecordset::~SqliteRecordset()
{
    try {
        endWalk();
    } catch (const RunTimeError&) {
        // Who left the walk before its end has met with trouble already.
    }
}

void SqliteRecordset::endWalk()
{
    if (std::exchange(walking_, false)) handle_->endWalk();
}

/// Reads all rows, and finds out what tells them apart.
void SqliteRecordset::findKeys(const std::string& query)
{
    std::vector<bool> texts(columns_.size(), true);
    for (; row_; row_ = step()) {
        for (std::size_t column = 0; column < columns_.size(); ++column)
            if (sqlite3_column_type(statement_.get(), static_cast<int>(column)) != SQLITE_TEXT)
                texts[column] = false;
        rows_.push_back(rowAtHand(statement_.get()));
    }
    statement_ = {};
    for (std::size_t column = 0; column < columns_.size() && !keyColumn_; ++column) {
        std::unordered_set<std::string> different;
        for (const Row& row : rows_)
            if (texts[column]) different.insert(std::get<std::string>(row[column]));
        if (different.size() == rows_.size()) keyColumn_ = column;
    }
    if (rows_.empty() || !keyColumn_) return;
    again_ = handle_->prepare("SELECT * FROM (" + query + ") WHERE \"" +
                              replaceAll(columns_[*keyColumn_], "\"", "\"\"") + "\" IS ?");
}

SqliteRecordset::Row SqliteRecordset::rowAtHand(sqlite3_stmt* statement) const
{
    Row row;
    for (std::size_t column = 0; column < columns_.size(); ++column)
        row.push_back(columnValue(statement, static_cast<int>(column)));
    return row;
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
    return cursor_ == CursorKind::keyset ? present()[static_cast<std::size_t>(column)]
                                         : columnValue(statement_.get(), static_cast<int>(column));
}

/// The row at hand of a keyset. One that could not be read when it was come to is read now: what
/// it was at the opening may be long out of date. So is one that was read before others were kept
/// from changing it.
const SqliteRecordset::Row& SqliteRecordset::present() const
{
    if (readIn_ != handle_->change()) read_ = false;
    if (!read_ && !readAgain()) throw RunTimeError(databaseErrors::noCurrentRow);
    return rows_[position_];
}

/// Reads the row at hand as it is now. False when it has gone.
bool SqliteRecordset::readAgain() const
{
    readIn_ = handle_->change();
    if (!again_.get()) return read_ = true;
    const auto& key = std::get<std::string>(rows_[position_][*keyColumn_]);
    sqlite3_bind_text(again_.get(), 1, key.data(), static_cast<int>(key.size()), SQLITE_TRANSIENT);
    const int result = sqlite3_step(again_.get());
    if (result == SQLITE_ROW) {
        rows_[position_] = rowAtHand(again_.get());
        read_ = true;
    }
    sqlite3_reset(again_.get());
    if (result != SQLITE_ROW && result != SQLITE_DONE) handle_->fail();
    return read_;
}

void SqliteRecordset::moveNext()
{
    if (atEnd()) throw RunTimeError(databaseErrors::noCurrentRow);
    if (cursor_ == CursorKind::forwardOnly) {
        row_ = step();
        return;
    }
    do {
        ++position_;
        read_ = false;
    } while (position_ < rows_.size() && !readAgain());
    if (position_ >= rows_.size()) endWalk();
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
    again_ = {};
    rows_.clear();
    endWalk();
}

void SqliteRecordset::requireOpen() const
{
    if (!open_) throw RunTimeError(databaseErrors::closedObject);
}

bool SqliteRecordset::step()
{
    if (!statement_.get()) return false;
    const int result = sqlite3_step(statement_.get());
    if (result == SQLITE_ROW && ++steps_ <= mostRows) return true;
    row_ = false; // who goes on after the failure is past the last row
    if (result == SQLITE_ROW)
        throw RunTimeError(databaseErrors::statementRefused,
                           "The query gives more than 100,000 rows.");
    if (result != SQLITE_DONE) handle_->fail();
    statement_ = {}; // the next query of this text may use it from now on
    return false;
}
