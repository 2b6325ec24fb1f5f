#include "backends/jet/schema/blank_database.h"

#include "backends/jet/pages/data_page.h"
#include "backends/jet/pages/header_page.h"
#include "backends/jet/pages/index_page.h"
#include "backends/jet/schema/properties.h"
#include "backends/jet/schema/system_tables.h"
#include "backends/jet/table/row_writer.h"
#include "backends/jet/table/text_value.h"
#include "runtime/run_time_error.h"

#include <algorithm>
#include <map>
#include <optional>

namespace jet {

namespace {

/// The stored bytes of a row's cells by column name; a column that is missing is Null.
using Cells = std::map<std::string_view, std::string>;

template <typename Number>
std::string bytesOf(Number number)
{
    std::string bytes(sizeof number, '\0');
    std::memcpy(bytes.data(), &number, sizeof number);
    return bytes;
}

std::string encodeRow(const TableDefinition& table, const Cells& cells)
{
    RowShape shape{table.columnsInRow, 0, table.variableColumns};
    std::size_t variableBytes = 0;
    for (const auto& column : table.columns) {
        const auto cell = cells.find(column.name);
        if (column.fixed && column.type != ColumnType::boolean)
            shape.fixedBytes += column.length;
        else if (!column.fixed && cell != cells.end())
            variableBytes += cell->second.size();
    }
    std::string row(shape.rowBytes(variableBytes), '\0');
    RowWriter writer(row.data(), shape, variableBytes);
    for (const auto& column : table.columns) {
        const auto cell = cells.find(column.name);
        const std::string bytes = cell == cells.end() ? std::string() : cell->second;
        if (cell != cells.end()) writer.mark(column.number);
        if (!column.fixed)
            std::memcpy(writer.variable(bytes.size()), bytes.data(), bytes.size());
        else
            std::memcpy(writer.fixed(column.fixedOffset), bytes.data(), bytes.size());
    }
    return row;
}

/// A file as it is put together in memory.
class FileBuilder {
public:
    explicit FileBuilder(const Schema& schema) : schema_(schema) {}

    std::string build()
    {
        system_ = systemTables();
        image_.resize(systemPage::first * pageSize);
        for (const auto& table : schema_.tables) addTable(table);
        addProperties();
        addSystemRows();
        for (const auto& [table, marks] : system_)
            writeTableDefinition(page(table.page), table, marks);
        addSystemMaps();
        for (const std::uint32_t leaf : {10u, 11u, 12u, 13u})
            writeIndexLeaf(page(leaf), leaf == 10 ? systemPage::queries : systemPage::relationships,
                           {});
        addGlobalMap();
        writeHeaderPage(page(0));
        return std::move(image_);
    }

private:
    char* page(std::uint32_t number) { return image_.data() + number * pageSize; }

    std::uint32_t newPage()
    {
        image_.resize(image_.size() + pageSize);
        return static_cast<std::uint32_t>(image_.size() / pageSize - 1);
    }

    /// Adds a row, which must fit: a new file's system tables have one page each.
    std::uint8_t addRow(DataPage to, std::string_view row)
    {
        if (!to.hasRoom(row.size()))
            throw RunTimeError(runTimeErrors::invalidCall, "The schema is too large.");
        return to.add(row);
    }

    /// An inline map that holds one page, or none for 0.
    std::string mapOf(std::uint32_t page)
    {
        std::string map(usageMap::rowBytes, '\0');
        if (page != 0) map[usageMap::bits + page / 8] = static_cast<char>(1 << (page % 8));
        return map;
    }

    void addTable(const TableSchema& schema)
    {
        TableDefinition table;
        table.name = schema.name;
        table.columns = schema.columns;
        table.page = newPage();
        const std::uint32_t maps = newPage();
        auto rows = DataPage::begin(page(maps), 0);
        const auto nextMap = [&] { return RowPointer{maps, addRow(rows, mapOf(0))}; };
        table.ownedPages = nextMap();
        table.freePages = nextMap();
        for (auto& column : table.columns) {
            if (!column.isLongValue()) continue;
            column.ownedPages = nextMap();
            column.freePages = nextMap();
        }
        layOutColumns(table);
        DefinitionMarks marks;
        for (const auto& column : table.columns)
            marks.columnFlags.push_back(column.fixed ? 0x03 : 0x02);
        writeTableDefinition(page(table.page), table, marks);
        tables_.push_back(std::move(table));
    }

    /// Notes the cells of the tables' properties. Short ones lie in the cells themselves, the
    /// others on a page of long values.
    void addProperties()
    {
        for (const auto& table : tables_) {
            const std::string block = encodeProperties(table.columns);
            if (block.empty()) continue;
            const auto size = static_cast<std::uint32_t>(block.size());
            const bool isShort = block.size() <= longValue::longestInline;
            const RowPointer at = isShort ? RowPointer{} : addPropertyRow(block);
            propertyCells_[table.page] =
                bytesOf(size | (isShort ? longValue::inlineKind : longValue::oneRowKind)) +
                bytesOf(at.stored()) + bytesOf(std::uint32_t{0}) +
                (isShort ? block : std::string());
        }
    }

    RowPointer addPropertyRow(const std::string& block)
    {
        if (block.size() > longValue::longestRow)
            throw RunTimeError(runTimeErrors::invalidCall, "The schema is too large.");
        if (propertyPage_ == 0) {
            propertyPage_ = newPage();
            DataPage::begin(page(propertyPage_), dataPage::longValueOwner);
        }
        return {propertyPage_, addRow(DataPage(page(propertyPage_)), block)};
    }

    void addSystemRows()
    {
        objects_ = DataPage::begin(page(systemPage::objectRows), systemPage::objects);
        permissions_ = DataPage::begin(page(systemPage::permissionRows), systemPage::permissions);
        for (const auto& object : systemObjects()) addObject(object);
        for (const auto& permission : systemPermissions()) addPermission(permission);
        for (const auto& table : tables_) {
            addObject({table.page, tablesContainer, table.name, 1, identity::admin, 0});
            addPermission({table.page, identity::admin, 0xFFFFF, false});
            addPermission({table.page, identity::users, 0xFFFFF, false});
        }
        writeIndexLeaf(page(systemPage::objectsByName), systemPage::objects, namesIndex_);
        writeIndexLeaf(page(systemPage::objectsById), systemPage::objects, idsIndex_);
        writeIndexLeaf(page(systemPage::permissionsById), systemPage::permissions, rightsIndex_);
        auto& objects = system_[0];
        objects.table.rowCount = static_cast<std::uint32_t>(idsIndex_.size());
        for (auto& index : objects.marks.indexes) index.distinctKeys = objects.table.rowCount;
        auto& permissions = system_[1];
        permissions.table.rowCount = static_cast<std::uint32_t>(rightsIndex_.size());
        permissions.marks.indexes[0].distinctKeys = distinctObjects_;
    }

    void addObject(const CatalogObject& object)
    {
        Cells cells = {{"Id", bytesOf(object.id)},
                       {"ParentId", bytesOf(object.parent)},
                       {"Name", encodeName(object.name)},
                       {"Type", bytesOf(object.type)},
                       {"DateCreate", bytesOf(schema_.created.days)},
                       {"DateUpdate", bytesOf(schema_.created.days)},
                       {"Owner", std::string(object.owner)},
                       {"Flags", bytesOf(object.flags)}};
        if (const auto found = propertyCells_.find(object.id); found != propertyCells_.end())
            cells["LvProp"] = found->second;
        const auto row = addRow(objects_, encodeRow(system_[0].table, cells));
        const std::string pointer = indexKey(RowPointer{systemPage::objectRows, row});
        namesIndex_.push_back(indexKey(object.parent) + indexKey(object.name) + pointer);
        idsIndex_.push_back(indexKey(object.id) + pointer);
    }

    void addPermission(const Permission& permission)
    {
        Cells cells = {{"ObjectId", bytesOf(permission.object)},
                       {"SID", std::string(permission.identity)},
                       {"ACM", bytesOf(permission.rights)}};
        if (permission.inherited) cells["FInheritable"] = {};
        const auto row = addRow(permissions_, encodeRow(system_[1].table, cells));
        const std::string key = indexKey(permission.object);
        const bool known =
            std::any_of(rightsIndex_.begin(), rightsIndex_.end(),
                        [&](const auto& e) { return e.compare(0, key.size(), key) == 0; });
        if (!known) ++distinctObjects_;
        rightsIndex_.push_back(key + indexKey(RowPointer{systemPage::permissionRows, row}));
    }

    void addSystemMaps()
    {
        std::map<unsigned, std::uint32_t> pages = {{0, systemPage::objectRows},
                                                   {1, systemPage::objectRows},
                                                   {18, systemPage::permissionRows},
                                                   {19, systemPage::permissionRows},
                                                   {systemMap::properties, propertyPage_},
                                                   {systemMap::properties + 1u, propertyPage_}};
        for (const auto& [table, marks] : system_) {
            for (const auto& index : marks.indexes) pages[index.map.row] = index.rootPage;
        }
        auto rows = DataPage::begin(page(systemPage::maps), 0);
        for (unsigned map = 0; map < systemMap::count; ++map) addRow(rows, mapOf(pages[map]));
    }

    /// All pages of the file are used; those that are still to come are free.
    void addGlobalMap()
    {
        std::string map = mapOf(0);
        const std::size_t used = image_.size() / pageSize;
        for (std::size_t number = used; number < (map.size() - usageMap::bits) * 8; ++number) {
            char& byte = map[usageMap::bits + number / 8];
            byte = static_cast<char>(byte | 1 << (number % 8));
        }
        auto rows = DataPage::begin(page(globalMapPage), globalMapPage);
        addRow(rows, map);
        addRow(rows, mapOf(0));
    }

    const Schema& schema_;
    std::string image_;
    std::vector<SystemTable> system_;
    std::vector<TableDefinition> tables_;
    std::uint32_t propertyPage_ = 0;
    std::map<std::uint32_t, std::string> propertyCells_;
    DataPage objects_;
    DataPage permissions_;
    std::vector<std::string> namesIndex_;
    std::vector<std::string> idsIndex_;
    std::vector<std::string> rightsIndex_;
    std::uint32_t distinctObjects_ = 0;
};

} // namespace

std::string blankDatabase(const Schema& schema)
{
    return FileBuilder(schema).build();
}

} // namespace jet
