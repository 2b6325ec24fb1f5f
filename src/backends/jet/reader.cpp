#include "backends/jet/reader.h"

#include "backends/jet/schema/catalog.h"
#include "backends/jet/table/text_value.h"
#include "runtime/run_time_error.h"
#include "runtime/text.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <optional>
#include <utility>

namespace jet {

namespace {

/// 0 for a cell that is empty, as that of a column without a value is.
template <typename Number>
Number numberIn(std::string_view cell)
{
    std::array<char, sizeof(Number)> bytes{};
    cell.copy(bytes.data(), bytes.size());
    return std::bit_cast<Number>(bytes);
}

std::string hexadecimal(std::string_view bytes)
{
    constexpr std::string_view digits = "0123456789abcdef";
    std::string text;
    for (const char byte : bytes) {
        text.push_back(digits[static_cast<unsigned char>(byte) >> 4]);
        text.push_back(digits[static_cast<unsigned char>(byte) & 15]);
    }
    return text;
}

std::string realText(double number)
{
    char text[32];
    const auto end = std::to_chars(text, text + sizeof text, number).ptr;
    return std::string(text, end);
}

/// Of a table whose map is damaged, the pages that say that they are its own.
std::vector<std::uint32_t> pagesOf(const Pages& pages, const TableDefinition& table, Damage damage)
{
    try {
        return pages.usageMap(table.ownedPages);
    } catch (const RunTimeError&) {
        if (damage == Damage::raised) throw;
        return pages.pagesOfOwner(table.page);
    }
}

/// The text of a long value that lies in the row, in its stored form.
std::optional<std::string_view> textInHead(std::string_view cell)
{
    if (cell.size() < longValue::head) return std::nullopt;
    const std::uint32_t head = load32(cell.data());
    const std::size_t size = head & longValue::lengthMask;
    if ((head & longValue::inlineKind) == 0 || size > cell.size() - longValue::head)
        return std::nullopt;
    return cell.substr(longValue::head, size);
}

} // namespace

Rows::Rows(const Pages& pages, const TableDefinition& table, Damage damage)
    : pages_(pages), table_(table), numbers_(pagesOf(pages, table, damage))
{}

bool Rows::next()
{
    for (;;) {
        if (page_ == 0) {
            if (nextPage_ == numbers_.size()) return false;
            page_ = numbers_[nextPage_++];
            nextRow_ = 0;
        }
        // While the page may be one that raises it is none to come back to.
        const std::uint32_t number = std::exchange(page_, 0);
        const char* page = pages_.dataOf(number, table_.page);
        const unsigned rows = rowsOn(page);
        while (nextRow_ < rows) {
            page_ = number;
            if (take(page, nextRow_++)) return true;
            page_ = 0;
            page = pages_.dataOf(number, table_.page);
        }
        page_ = 0;
    }
}

bool Rows::goTo(std::uint64_t place)
{
    const std::uint64_t number = place >> 16;
    page_ = 0;
    nextPage_ = static_cast<std::size_t>(
        std::upper_bound(numbers_.begin(), numbers_.end(), number) - numbers_.begin());
    if (nextPage_ == 0 || numbers_[nextPage_ - 1] != number) return false;
    const char* page = pages_.dataOf(numbers_[nextPage_ - 1], table_.page);
    nextRow_ = static_cast<unsigned>(place & 0xFFFF);
    if (nextRow_ >= rowsOn(page)) return false;
    page_ = numbers_[nextPage_ - 1];
    return take(page, nextRow_++);
}

/// Makes the row in a slot of a page the current one; false for a slot without one.
bool Rows::take(const char* page, unsigned slot)
{
    const std::string_view bytes = pages_.tableRow(page, slot);
    if (bytes.empty()) return false;
    row_ = {};
    bytes_ = bytes;
    row_ = RowView(table_, bytes_);
    return true;
}

bool Rows::isNull(std::size_t column) const
{
    return !row_.has(table_.columns[column]);
}

std::string Rows::text(std::size_t index) const
{
    const Column& column = table_.columns[index];
    if (column.type == ColumnType::boolean) return row_.bit(column) ? "1" : "0";
    const std::string_view cell = row_.cell(column);
    if (!row_.has(column)) return {};
    switch (column.type) {
    case ColumnType::byte:
    case ColumnType::integer:
    case ColumnType::longInteger:
        return std::to_string(number(index));
    case ColumnType::single:
        return realText(numberIn<float>(cell));
    case ColumnType::real:
    case ColumnType::dateTime:
        return realText(numberIn<double>(cell));
    case ColumnType::text:
        return decodeStoredText(cell);
    case ColumnType::memo:
        return decodeStoredText(readLongValue(pages_, cell));
    case ColumnType::ole:
        return hexadecimal(readLongValue(pages_, cell));
    default:
        return hexadecimal(cell);
    }
}

std::string_view Rows::textView(std::size_t index, std::string& room) const
{
    const Column& column = table_.columns[index];
    if (column.type == ColumnType::text) return storedTextView(row_.cell(column), room);
    if (column.type == ColumnType::memo) {
        const std::string_view cell = row_.cell(column);
        if (const auto text = textInHead(cell)) return storedTextView(*text, room);
    }
    room = text(index);
    return room;
}

std::string_view Rows::cell(std::size_t column) const
{
    return row_.cell(table_.columns[column]);
}

std::int64_t Rows::number(std::size_t index) const
{
    const Column& column = table_.columns[index];
    const std::string_view cell = row_.cell(column);
    switch (column.type) {
    case ColumnType::byte:
        return numberIn<std::uint8_t>(cell);
    case ColumnType::integer:
        return numberIn<std::int16_t>(cell);
    case ColumnType::longInteger:
        return numberIn<std::int32_t>(cell);
    default:
        return 0;
    }
}

Reader::Reader(const Pages& pages, Damage damage)
    : pages_(pages), damage_(damage),
      tables_(readCatalog(pages_, damage == Damage::raised ? nullptr : &passedOver_))
{}

const TableDefinition* Reader::find(std::string_view name) const
{
    const auto found = std::find_if(tables_.begin(), tables_.end(), [&](const auto& table) {
        return equalIgnoringCase(table.name, name);
    });
    return found == tables_.end() ? nullptr : &*found;
}

} // namespace jet
