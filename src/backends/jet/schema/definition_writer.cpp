#include "backends/jet/schema/definition_writer.h"

#include "backends/jet/table/text_value.h"
#include "runtime/run_time_error.h"
#include "runtime/text.h"

#include <algorithm>
#include <numeric>

namespace jet {

namespace {

constexpr std::uint32_t definitionMark = 1625;
constexpr std::uint32_t indexMark = 1923;
constexpr std::uint16_t sortOrder = 0x0409;
constexpr unsigned columnsPerIndex = 10;

/// A definition's bytes as they grow.
class Stream {
public:
    explicit Stream(std::size_t size) : bytes_(size, '\0') {}

    /// Appends zeros and returns where they begin, which holds until the next call.
    char* add(std::size_t size)
    {
        bytes_.resize(bytes_.size() + size);
        return bytes_.data() + bytes_.size() - size;
    }
    void addName(std::string_view name)
    {
        const std::string stored = encodeName(name);
        store16(add(2), stored.size());
        bytes_ += stored;
    }
    std::string& bytes() { return bytes_; }

private:
    std::string bytes_;
};

void writeHead(char* page, const TableDefinition& table, const DefinitionMarks& marks)
{
    page[0] = static_cast<char>(PageType::tableDefinition);
    page[1] = 1;
    store32(page + 0x0C, definitionMark);
    store32(page + tableDefinition::rowCount, table.rowCount);
    store32(page + 0x18, 1);
    page[0x28] = marks.system ? 0x53 : 0x4E;
    store16(page + 0x29, table.columnsInRow);
    store16(page + 0x2B, table.variableColumns);
    store16(page + 0x2D, table.columns.size());
    store32(page + 0x2F, static_cast<std::uint32_t>(marks.indexes.size()));
    store32(page + 0x33, static_cast<std::uint32_t>(marks.indexes.size()));
    store32(page + 0x37, table.ownedPages.stored());
    store32(page + 0x3B, table.freePages.stored());
}

void addColumn(Stream& stream, const Column& column, unsigned char flags, bool system)
{
    char* at = stream.add(25);
    at[0] = static_cast<char>(column.type);
    store32(at + 1, definitionMark);
    store16(at + 5, column.number);
    store16(at + 7, column.variableIndex);
    store16(at + 9, system ? 0 : column.number);
    store16(at + 11, sortOrder);
    at[15] = static_cast<char>(flags);
    at[16] = column.compressed ? 1 : 0;
    store16(at + 21, column.fixedOffset);
    store16(at + 23, column.length);
}

void addPhysicalIndex(Stream& stream, const IndexDefinition& index)
{
    char* at = stream.add(52);
    store32(at, indexMark);
    for (std::size_t i = 0; i < columnsPerIndex; ++i) {
        const bool used = i < index.columns.size();
        store16(at + 4 + 3 * i, used ? index.columns[i] : 0xFFFF);
        at[6 + 3 * i] = used ? 1 : 0;
    }
    store32(at + 34, index.map.stored());
    store32(at + 38, index.rootPage);
    at[46] = static_cast<char>(index.flags);
}

void addLogicalIndexes(Stream& stream, const std::vector<IndexDefinition>& indexes)
{
    std::vector<std::uint32_t> order(indexes.size());
    std::iota(order.begin(), order.end(), 0u);
    std::sort(order.begin(), order.end(), [&](std::uint32_t a, std::uint32_t b) {
        return lowerCase(indexes[a].name) < lowerCase(indexes[b].name);
    });
    for (const std::uint32_t number : order) {
        char* at = stream.add(28);
        store32(at, definitionMark);
        store32(at + 4, number);
        store32(at + 8, number);
        store32(at + 13, 0xFFFF'FFFF);
        store16(at + 21, 0x0404);
        at[23] = indexes[number].primary ? 1 : 0;
    }
    for (const std::uint32_t number : order) stream.addName(indexes[number].name);
}

void addLongValueMaps(Stream& stream, const Column& column)
{
    char* at = stream.add(10);
    store16(at, column.number);
    store32(at + 2, column.ownedPages.stored());
    store32(at + 6, column.freePages.stored());
}

/// Indexes of the columns in the order of their definitions: system tables sort theirs by name.
std::vector<std::size_t> definitionOrder(const TableDefinition& table, bool system)
{
    std::vector<std::size_t> order(table.columns.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    if (system) {
        std::sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
            return lowerCase(table.columns[a].name) < lowerCase(table.columns[b].name);
        });
    }
    return order;
}

} // namespace

void layOutColumns(TableDefinition& table)
{
    std::uint16_t number = 0;
    std::uint16_t variables = 0;
    std::uint16_t offset = 0;
    for (auto& column : table.columns) {
        column.number = number++;
        column.variableIndex = variables;
        if (column.type == ColumnType::boolean) continue;
        if (!column.fixed) {
            ++variables;
            continue;
        }
        column.fixedOffset = offset;
        offset = static_cast<std::uint16_t>(offset + column.length);
    }
    table.columnsInRow = number;
    table.variableColumns = variables;
}

void writeTableDefinition(char* page, const TableDefinition& table, const DefinitionMarks& marks)
{
    Stream stream(tableDefinition::columns);
    writeHead(stream.bytes().data(), table, marks);
    for (const auto& index : marks.indexes) store32(stream.add(12) + 4, index.distinctKeys);
    const auto order = definitionOrder(table, marks.system);
    for (const std::size_t column : order)
        addColumn(stream, table.columns[column], marks.columnFlags[column], marks.system);
    for (const std::size_t column : order) stream.addName(table.columns[column].name);
    for (const auto& index : marks.indexes) addPhysicalIndex(stream, index);
    addLogicalIndexes(stream, marks.indexes);
    for (const std::size_t column : order) {
        if (table.columns[column].isLongValue()) addLongValueMaps(stream, table.columns[column]);
    }
    store16(stream.add(2), 0xFFFF);

    std::string& bytes = stream.bytes();
    if (bytes.size() > pageSize - 8)
        throw RunTimeError(runTimeErrors::invalidCall,
                           "The table '" + table.name + "' has too many columns.");
    store16(bytes.data() + 2, pageSize - 8 - bytes.size());
    store32(bytes.data() + tableDefinition::length, static_cast<std::uint32_t>(bytes.size()));
    std::memcpy(page, bytes.data(), bytes.size());
}

} // namespace jet
