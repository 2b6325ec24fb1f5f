#include "backends/jet/table/table_definition.h"

#include "backends/jet/errors.h"
#include "backends/jet/table/text_value.h"
#include "runtime/text.h"

#include <algorithm>

namespace jet {

namespace {

constexpr std::size_t columnBytes = 25;
constexpr std::size_t physicalIndexBytes = 52;
constexpr std::size_t logicalIndexBytes = 28;
constexpr std::size_t counterBytes = 12;
constexpr std::size_t continuedHead = 8;
constexpr unsigned mostColumns = 255;
constexpr unsigned mostIndexes = 4096; // far beyond any real table
constexpr unsigned mostPages = 256;
constexpr std::uint16_t endOfLongValues = 0xFFFF;

/// A definition's bytes, read in order; raises 3343 where they end too soon.
class Stream {
public:
    explicit Stream(std::string_view bytes) : bytes_(bytes) {}

    const char* take(std::size_t size)
    {
        if (bytes_.size() - at_ < size) raiseUnknownFormat("a table's definition ends too soon");
        at_ += size;
        return bytes_.data() + at_ - size;
    }
    std::uint16_t take16() { return load16(take(2)); }

    std::string takeName()
    {
        const std::size_t size = take16();
        return decodeStoredText({take(size), size});
    }

private:
    std::string_view bytes_;
    std::size_t at_ = 0;
};

/// The definition's pages as one run of bytes.
std::string gatherPages(const Pages& pages, std::uint32_t first)
{
    const char* page = pages.at(first, PageType::tableDefinition);
    std::string bytes(page, pageSize);
    for (unsigned count = 1; load32(page + tableDefinition::nextPage) != 0; ++count) {
        if (count >= mostPages) raiseUnknownFormat("a table's definition never ends");
        page = pages.at(load32(page + tableDefinition::nextPage), PageType::tableDefinition);
        bytes.append(page + continuedHead, pageSize - continuedHead);
    }
    return bytes;
}

Column takeColumn(Stream& stream)
{
    const char* at = stream.take(columnBytes);
    const auto flags = static_cast<unsigned char>(at[15]);
    Column column;
    column.type = static_cast<ColumnType>(at[0]);
    column.number = load16(at + 5);
    column.variableIndex = load16(at + 7);
    column.fixed = (flags & 0x01) != 0;
    column.automatic = (flags & 0x44) != 0;
    column.compressed = (at[16] & 0x01) != 0;
    column.fixedOffset = load16(at + 21);
    column.length = load16(at + 23);
    return column;
}

void takeLongValueMaps(Stream& stream, std::vector<Column>& columns)
{
    for (;;) {
        const std::uint16_t number = stream.take16();
        if (number == endOfLongValues) return;
        const char* pointers = stream.take(8);
        for (auto& column : columns) {
            if (column.number != number) continue;
            column.ownedPages = RowPointer::load(pointers);
            column.freePages = RowPointer::load(pointers + 4);
        }
    }
}

} // namespace

int TableDefinition::find(std::string_view column) const
{
    const auto found = std::find_if(columns.begin(), columns.end(), [&](const Column& candidate) {
        return equalIgnoringCase(candidate.name, column);
    });
    return found == columns.end() ? -1 : static_cast<int>(found - columns.begin());
}

TableDefinition readTableDefinition(const Pages& pages, std::uint32_t page)
{
    const std::string bytes = gatherPages(pages, page);
    TableDefinition table;
    table.page = page;
    table.rowCount = load32(&bytes[tableDefinition::rowCount]);
    table.columnsInRow = load16(&bytes[0x29]);
    table.variableColumns = load16(&bytes[0x2B]);
    const unsigned columns = load16(&bytes[0x2D]);
    const std::uint32_t logicalIndexes = load32(&bytes[0x2F]);
    table.indexes = load32(&bytes[0x33]);
    table.ownedPages = RowPointer::load(&bytes[0x37]);
    table.freePages = RowPointer::load(&bytes[0x3B]);
    if (columns > mostColumns || table.indexes > mostIndexes || logicalIndexes > mostIndexes)
        raiseUnknownFormat("a table's counts");

    Stream stream(bytes);
    stream.take(tableDefinition::columns + table.indexes * counterBytes);
    for (unsigned count = 0; count < columns; ++count) table.columns.push_back(takeColumn(stream));
    for (auto& column : table.columns) column.name = stream.takeName();
    stream.take(table.indexes * physicalIndexBytes + logicalIndexes * logicalIndexBytes);
    for (std::uint32_t count = 0; count < logicalIndexes; ++count) stream.takeName();
    takeLongValueMaps(stream, table.columns);
    std::stable_sort(table.columns.begin(), table.columns.end(),
                     [](const Column& a, const Column& b) { return a.number < b.number; });
    return table;
}

} // namespace jet
