#include "backends/odbc/recordset.h"

#include "backends/odbc/bound_value.h"
#include "runtime/run_time_error.h"
#include "runtime/text.h"

#include <algorithm>
#include <cctype>
#include <unordered_set>
#include <utility>

namespace {

/// A server has some hundred components and some thousand settings; a view can be written so that
/// it has no end.
constexpr std::size_t mostRows = 100'000;

bool isWordCharacter(char c)
{
    return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_' ||
           static_cast<unsigned char>(c) >= 0x80;
}

/// Whether the words "ORDER BY" begin at a place of a query.
bool isOrderAt(std::string_view query, std::size_t place)
{
    constexpr std::size_t orderLength = 5;
    if (place > 0 && isWordCharacter(query[place - 1])) return false;
    if (!equalIgnoringCase(query.substr(place, orderLength), "ORDER")) return false;
    const auto by = query.find_first_not_of(" \t\r\n", place + orderLength);
    return by != std::string_view::npos && by > place + orderLength &&
           equalIgnoringCase(query.substr(by, 2), "BY") &&
           (by + 2 == query.size() || !isWordCharacter(query[by + 2]));
}

} // namespace

std::string withoutOrder(const std::string& query)
{
    int depth = 0;
    char quote = '\0';
    for (std::size_t i = 0; i < query.size(); ++i) {
        const char c = query[i];
        if (quote != '\0') {
            if (c == quote) quote = '\0';
        } else if (c == '\'' || c == '"') {
            quote = c;
        } else if (c == '(') {
            ++depth;
        } else if (c == ')') {
            --depth;
        } else if (depth == 0 && isOrderAt(query, i)) {
            return std::string(trimEnd(query.substr(0, i)));
        }
    }
    return query;
}

OdbcRecordset::OdbcRecordset(std::shared_ptr<OdbcSession> session, const std::string& query,
                             CursorKind cursor)
    : session_(std::move(session)), cursor_(cursor)
{
    if (trim(query).empty())
        throw RunTimeError(databaseErrors::statementRefused, "The query is empty.");
    fetchRows(query);
    if (cursor_ == CursorKind::keyset) findKeys(query);
}

void OdbcRecordset::fetchRows(const std::string& query)
{
    OdbcStatement statement(*session_);
    statement.run(query);
    columns_ = statement.columns();
    if (columns_.empty())
        throw RunTimeError(databaseErrors::statementRefused, "The query gives no columns.");
    while (statement.fetch()) {
        if (rows_.size() >= mostRows)
            throw RunTimeError(databaseErrors::statementRefused,
                               "The query gives more than 100,000 rows.");
        rows_.push_back(fetched(statement));
    }
}

OdbcRecordset::Row OdbcRecordset::fetched(OdbcStatement& statement) const
{
    Row row;
    for (std::size_t column = 0; column < columns_.size(); ++column)
        row.push_back(
            statement.value(static_cast<SQLUSMALLINT>(column + 1), columns_[column].type));
    return row;
}

/// Finds out what tells the rows apart.
void OdbcRecordset::findKeys(const std::string& query)
{
    for (std::size_t column = 0; column < columns_.size() && !keyColumn_; ++column) {
        std::unordered_set<std::string> different;
        for (const Row& row : rows_)
            if (const auto* text = std::get_if<std::string>(&row[column])) different.insert(*text);
        if (different.size() == rows_.size()) keyColumn_ = column;
    }
    if (!keyColumn_) return;
    again_ = "SELECT * FROM (" + withoutOrder(query) + ") AS again WHERE again.\"" +
             replaceAll(columns_[*keyColumn_].name, "\"", "\"\"") + "\" = ?";
}

bool OdbcRecordset::atEnd() const
{
    requireOpen();
    return position_ >= rows_.size();
}

Value OdbcRecordset::field(const std::string& name) const
{
    requireOpen();
    const auto found = std::find_if(columns_.begin(), columns_.end(), [&](const auto& column) {
        return equalIgnoringCase(column.name, name);
    });
    if (found == columns_.end()) throw RunTimeError(runTimeErrors::itemNotInCollection);
    // One that could not be read when it was come to is read now: what it was at the opening may be
    // long out of date.
    if (atEnd() || (!read_ && !readAgain())) throw RunTimeError(databaseErrors::noCurrentRow);
    return rows_[position_][static_cast<std::size_t>(found - columns_.begin())];
}

/// Reads the row at hand as it is now. False when it has gone.
bool OdbcRecordset::readAgain() const
{
    if (!keyColumn_) return read_ = true;
    if (session_->isBroken()) throw RunTimeError(runTimeErrors::connectionClosed);
    BoundValue key(rows_[position_][*keyColumn_], std::nullopt);
    OdbcStatement statement(*session_);
    statement.bind(key);
    statement.run(again_);
    if (!statement.fetch()) return false;
    rows_[position_] = fetched(statement);
    return read_ = true;
}

void OdbcRecordset::moveNext()
{
    if (atEnd()) throw RunTimeError(databaseErrors::noCurrentRow);
    do {
        ++position_;
        read_ = cursor_ == CursorKind::forwardOnly;
    } while (position_ < rows_.size() && !read_ && !readAgain());
}

int OdbcRecordset::rowCount() const
{
    requireOpen();
    return cursor_ == CursorKind::keyset ? static_cast<int>(rows_.size()) : -1;
}

void OdbcRecordset::close()
{
    requireOpen();
    open_ = false;
    rows_.clear();
}

void OdbcRecordset::requireOpen() const
{
    if (!open_) throw RunTimeError(databaseErrors::closedObject);
}
