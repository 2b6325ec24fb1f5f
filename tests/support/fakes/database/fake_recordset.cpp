#include "support/fakes/database/fake_recordset.h"

#include "runtime/run_time_error.h"
#include "runtime/text.h"

#include <algorithm>
#include <set>
#include <utility>

FakeRecordset::FakeRecordset(const FakeDatabaseViews& views, std::string query, CursorKind cursor,
                             std::shared_ptr<int> open)
    : views_(views), query_(std::move(query)), result_(queryResult(views_, query_)),
      cursor_(cursor), key_(keyColumn()), open_(std::move(open))
{
    ++*open_;
}

std::optional<std::size_t> FakeRecordset::keyColumn() const
{
    for (std::size_t column = 0; column < result_.columns.size(); ++column) {
        std::set<std::string> texts;
        for (const auto& row : result_.rows)
            if (const auto* text = std::get_if<std::string>(&row[column])) texts.insert(*text);
        if (texts.size() == result_.rows.size()) return column;
    }
    return std::nullopt;
}

bool FakeRecordset::atEnd() const
{
    requireOpen();
    return position_ >= result_.rows.size();
}

Value FakeRecordset::field(const std::string& name) const
{
    requireOpen();
    const auto found =
        std::find_if(result_.columns.begin(), result_.columns.end(),
                     [&](const auto& column) { return equalIgnoringCase(column, name); });
    if (found == result_.columns.end()) throw RunTimeError(runTimeErrors::itemNotInCollection);
    if (atEnd()) throw RunTimeError(databaseErrors::noCurrentRow);
    return result_.rows[position_][static_cast<std::size_t>(found - result_.columns.begin())];
}

void FakeRecordset::moveNext()
{
    if (atEnd()) throw RunTimeError(databaseErrors::noCurrentRow);
    do {
        ++position_;
    } while (cursor_ == CursorKind::keyset && !atEnd() && !readAgain());
}

/// Reads the row at hand as it is now. False when it has gone.
bool FakeRecordset::readAgain()
{
    if (!key_) return true;
    auto& row = result_.rows[position_];
    for (auto& present : queryResult(views_, query_).rows) {
        if (present[*key_] != row[*key_]) continue;
        row = std::move(present);
        return true;
    }
    return false;
}

int FakeRecordset::rowCount() const
{
    requireOpen();
    return cursor_ == CursorKind::keyset ? static_cast<int>(result_.rows.size()) : -1;
}

void FakeRecordset::close()
{
    requireOpen();
    closed_ = true;
    --*open_;
}

void FakeRecordset::requireOpen() const
{
    if (closed_) throw RunTimeError(databaseErrors::closedObject);
}
