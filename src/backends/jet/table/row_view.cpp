#include "backends/jet/table/row_view.h"

#include "backends/jet/errors.h"

namespace jet {

namespace {

[[noreturn]] void raiseBrokenRow()
{
    raiseUnknownFormat("a row's parts");
}

std::string readChain(const Pages& pages, RowPointer at, std::size_t size)
{
    // A chain that leads in a circle never gets past the size of the file.
    if (size > std::size_t{pages.count()} * pageSize) raiseUnknownFormat("a long value's size");
    std::string value;
    while (value.size() < size) {
        const std::string_view piece = pages.row(at);
        if (piece.size() <= 4) raiseUnknownFormat("a piece of a long value");
        value.append(piece.substr(4, size - value.size()));
        at = RowPointer::load(piece.data());
    }
    return value;
}

} // namespace

RowView::RowView(const TableDefinition& table, std::string_view row) : row_(row)
{
    if (row.size() < 2) raiseBrokenRow();
    columns_ = load16(row.data());
    const std::size_t maskBytes = (columns_ + 7) / 8;
    if (row.size() < 2 + maskBytes) raiseBrokenRow();
    mask_ = row.substr(row.size() - maskBytes);
    if (table.variableColumns == 0) return;
    if (row.size() < 2 + maskBytes + 4) raiseBrokenRow();
    variables_ = load16(mask_.data() - 2);
    if (row.size() < 2 + maskBytes + 4 + variables_ * 2) raiseBrokenRow();
}

bool RowView::bit(const Column& column) const
{
    if (column.number >= columns_) return false;
    return (static_cast<unsigned char>(mask_[column.number / 8]) >> (column.number % 8) & 1) != 0;
}

bool RowView::has(const Column& column) const
{
    return column.type == ColumnType::boolean || bit(column);
}

std::string_view RowView::cell(const Column& column) const
{
    if (column.type == ColumnType::boolean || !bit(column)) return {};
    if (column.fixed) {
        const std::size_t start = 2 + std::size_t{column.fixedOffset};
        if (start + column.length > row_.size()) raiseBrokenRow();
        return row_.substr(start, column.length);
    }
    if (column.variableIndex >= variables_) return {};
    const char* count = mask_.data() - 2;
    const char* offset = count - 2 - 2 * std::size_t{column.variableIndex};
    const std::size_t start = load16(offset);
    const std::size_t end = load16(offset - 2);
    if (start > end || end > row_.size()) raiseBrokenRow();
    return row_.substr(start, end - start);
}

std::string readLongValue(const Pages& pages, std::string_view cell)
{
    if (cell.empty()) return {};
    if (cell.size() < longValue::head) raiseUnknownFormat("a long value's head");
    const std::uint32_t head = load32(cell.data());
    const std::size_t size = head & longValue::lengthMask;
    const RowPointer at = RowPointer::load(cell.data() + 4);
    if ((head & longValue::inlineKind) != 0) {
        if (size > cell.size() - longValue::head) raiseUnknownFormat("a long value's size");
        return std::string(cell.substr(longValue::head, size));
    }
    if ((head & longValue::oneRowKind) != 0) {
        const std::string_view row = pages.row(at);
        if (size > row.size()) raiseUnknownFormat("a long value's size");
        return std::string(row.substr(0, size));
    }
    return readChain(pages, at, size);
}

} // namespace jet
