#include "backends/jet/reader.h"

#include "backends/jet/schema/catalog.h"
#include "backends/jet/table/text_value.h"
#include "runtime/text.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>

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

} // namespace

Rows::Rows(const Pages& pages, const TableDefinition& table)
    : pages_(pages), table_(table), numbers_(pages.usageMap(table.ownedPages))
{}

bool Rows::next()
{
    for (;;) {
        if (page_ == 0) {
            if (nextPage_ == numbers_.size()) return false;
            page_ = numbers_[nextPage_++];
            nextRow_ = 0;
        }
        const char* page = pages_.dataOf(page_, table_.page);
        while (nextRow_ < rowsOn(page)) {
            const std::string_view bytes = pages_.tableRow(page, nextRow_++);
            if (bytes.empty()) {
                page = pages_.dataOf(page_, table_.page);
                continue;
            }
            bytes_ = bytes;
            row_ = RowView(table_, bytes_);
            return true;
        }
        page_ = 0;
    }
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

Reader::Reader(const Pages& pages) : pages_(pages), tables_(readCatalog(pages_)) {}

const TableDefinition* Reader::find(std::string_view name) const
{
    const auto found = std::find_if(tables_.begin(), tables_.end(), [&](const auto& table) {
        return equalIgnoringCase(table.name, name);
    });
    return found == tables_.end() ? nullptr : &*found;
}

} // namespace jet
