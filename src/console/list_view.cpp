#include "console/list_view.h"

#include "runtime/run_time_error.h"
#include "runtime/text.h"

#include <algorithm>
#include <limits>
#include <numeric>

namespace {

std::size_t checkedPosition(int position, std::size_t count)
{
    if (position < 1 || static_cast<std::size_t>(position) > count) {
        throw RunTimeError(runTimeErrors::subscriptOutOfRange);
    }
    return static_cast<std::size_t>(position) - 1;
}

char lowered(char letter)
{
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

bool precedes(std::string_view left, std::string_view right)
{
    return std::lexicographical_compare(
        left.begin(), left.end(), right.begin(), right.end(), [](char a, char b) {
            return static_cast<unsigned char>(lowered(a)) < static_cast<unsigned char>(lowered(b));
        });
}

} // namespace

std::string_view ListItem::text() const
{
    return list_->view(list_->rows_[row_].text);
}

int ListItem::subItemCount() const
{
    return static_cast<int>(list_->rows_[row_].cellCount);
}

std::string_view ListItem::subItem(int index) const
{
    return list_->cell(row_, index);
}

void ListItem::addSubItem(int index, std::string_view text)
{
    list_->addCell(row_, index, text);
}

std::string_view ListItem::note() const
{
    return list_->view(list_->rows_[row_].note);
}

void ListItem::setNote(std::string_view note)
{
    list_->rows_[row_].note = list_->store(note);
}

ListView::ListView(const ListViewDefinition& definition) : definition_(definition)
{
    for (const auto& column : definition.columns)
        columns_.push_back({column.key, column.header, column.width});
}

ColumnHeader& ListView::column(int position)
{
    return columns_[checkedPosition(position, columns_.size())];
}

ColumnHeader& ListView::column(std::string_view key)
{
    for (auto& header : columns_)
        if (!key.empty() && header.key == key) return header;
    throw RunTimeError(runTimeErrors::keyNotFound);
}

ListItem ListView::addItem(int index, std::string_view text)
{
    const std::size_t position = checkedPosition(index, rows_.size() + 1);
    const Row row{store(text), static_cast<std::uint32_t>(cells_.size()), 0, {}};
    order_.clear();
    if (position == rows_.size()) {
        rows_.push_back(row);
    } else {
        rows_.insert(rows_.begin() + static_cast<std::ptrdiff_t>(position), row);
    }
    return {*this, position};
}

ListItem ListView::item(int index)
{
    return {*this, checkedPosition(index, rows_.size())};
}

void ListView::clear()
{
    bytes_ = {};
    rows_ = {};
    cells_ = {};
    order_ = {};
}

void ListView::sortOnLoad()
{
    const ListSort& sort = definition_.sort;
    if (!sort.onLoad) return;

    const auto before = [&](std::uint32_t left, std::uint32_t right) {
        const auto first = cell(left, sort.column);
        const auto second = cell(right, sort.column);
        return sort.ascending ? precedes(first, second) : precedes(second, first);
    };
    order_.resize(rows_.size());
    std::iota(order_.begin(), order_.end(), 0U);
    if (std::is_sorted(order_.begin(), order_.end(), before)) {
        order_.clear();
    } else {
        std::stable_sort(order_.begin(), order_.end(), before);
    }
}

ListItem ListView::shown(int row)
{
    const std::size_t position = checkedPosition(row, rows_.size());
    return {*this, order_.empty() ? position : order_[position]};
}

ListView::Text ListView::store(std::string_view text)
{
    constexpr std::size_t limit = std::numeric_limits<std::uint32_t>::max();
    if (text.size() > limit - bytes_.size()) throw RunTimeError(runTimeErrors::outOfStringSpace);
    const Text stored{static_cast<std::uint32_t>(bytes_.size()),
                      static_cast<std::uint32_t>(text.size())};
    bytes_.append(text);
    return stored;
}

std::string_view ListView::cell(std::size_t row, int index) const
{
    const Row& record = rows_[row];
    if (index < 1 || static_cast<std::uint32_t>(index) > record.cellCount) return {};
    return view(cells_[record.firstCell + static_cast<std::uint32_t>(index) - 1]);
}

void ListView::addCell(std::size_t row, int index, std::string_view text)
{
    Row& record = rows_[row];
    const std::size_t position = checkedPosition(index, std::size_t{record.cellCount} + 1);
    const Text stored = store(text);
    if (record.firstCell + record.cellCount != cells_.size()) {
        // Another row's cells follow: this row's move to the end, where there is room.
        const auto moved = static_cast<std::uint32_t>(cells_.size());
        for (std::uint32_t cellIndex = 0; cellIndex < record.cellCount; ++cellIndex) {
            const Text kept = cells_[record.firstCell + cellIndex];
            cells_.push_back(kept);
        }
        record.firstCell = moved;
    }
    cells_.insert(cells_.begin() + static_cast<std::ptrdiff_t>(record.firstCell + position),
                  stored);
    ++record.cellCount;
    order_.clear();
}
