#include "server/memory_recordset.h"

#include "platform/database.h"
#include "runtime/run_time_error.h"
#include "runtime/text.h"
#include "text/utf8.h"

#include <algorithm>
#include <numeric>

using runTimeErrors::itemNotInCollection;

namespace {

/// A UTF-8 text cut or filled with blanks to `size` characters.
std::string fitted(const std::string& text, std::size_t size)
{
    const std::string_view cut = firstCharacters(text, size);
    return std::string(cut).append(size - characterCount(cut), ' ');
}

} // namespace

void MemoryRecordset::append(const std::string& name, std::size_t size)
{
    if (open_) throw RunTimeError(databaseErrors::alreadyOpen);
    columns_.push_back({name, size});
}

void MemoryRecordset::open()
{
    if (open_) throw RunTimeError(databaseErrors::alreadyOpen);
    open_ = true;
}

void MemoryRecordset::addNew()
{
    if (!open_) throw RunTimeError(databaseErrors::closedObject);
    added_.clear();
    for (const auto& column : columns_) added_.emplace_back(column.size, ' ');
}

void MemoryRecordset::set(const std::string& name, const std::string& text)
{
    const std::size_t column = columnOf(name);
    if (added_.empty() && atEnd()) throw RunTimeError(databaseErrors::noCurrentRow);
    auto& row = added_.empty() ? rows_[position_] : added_;
    row[column] = fitted(text, columns_[column].size);
}

void MemoryRecordset::update()
{
    if (added_.empty()) throw RunTimeError(databaseErrors::noCurrentRow);
    rows_.push_back(std::move(added_));
    added_.clear();
    position_ = rows_.size() - 1;
}

void MemoryRecordset::sort(const std::string& name)
{
    const std::size_t column = columnOf(name);
    std::vector<std::string> folded;
    folded.reserve(rows_.size());
    for (const auto& row : rows_) folded.push_back(lowerCase(row[column]));
    std::vector<std::size_t> order(rows_.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(), [&](std::size_t left, std::size_t right) {
        return folded[left] < folded[right];
    });
    std::vector<std::vector<std::string>> sorted;
    sorted.reserve(rows_.size());
    for (const std::size_t row : order) sorted.push_back(std::move(rows_[row]));
    rows_ = std::move(sorted);
    position_ = 0;
}

void MemoryRecordset::moveFirst()
{
    position_ = 0;
}

void MemoryRecordset::moveNext()
{
    if (atEnd()) throw RunTimeError(databaseErrors::noCurrentRow);
    ++position_;
}

const std::string& MemoryRecordset::field(const std::string& name) const
{
    const std::size_t column = columnOf(name);
    if (atEnd()) throw RunTimeError(databaseErrors::noCurrentRow);
    return rows_[position_][column];
}

std::size_t MemoryRecordset::columnOf(const std::string& name) const
{
    const auto found = std::find_if(columns_.begin(), columns_.end(), [&](const Column& column) {
        return equalIgnoringCase(column.name, name);
    });
    if (found == columns_.end()) throw RunTimeError(itemNotInCollection);
    return static_cast<std::size_t>(found - columns_.begin());
}
