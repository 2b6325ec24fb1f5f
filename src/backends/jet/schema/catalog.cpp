#include "backends/jet/schema/catalog.h"

#include "backends/jet/errors.h"
#include "backends/jet/pages/header_page.h"
#include "backends/jet/schema/properties.h"
#include "backends/jet/table/row_view.h"
#include "backends/jet/table/text_value.h"

namespace jet {

namespace {

constexpr std::uint32_t tableType = 1;
constexpr std::uint32_t systemFlags = 0x8000'0002;
constexpr std::uint32_t pageOfId = 0x00FF'FFFF;

/// The columns of the catalog that matter here.
struct CatalogColumns {
    explicit CatalogColumns(const TableDefinition& catalog)
        : id(find(catalog, "Id", 4)), type(find(catalog, "Type", 2)),
          flags(find(catalog, "Flags", 4)), name(find(catalog, "Name", 0)),
          properties(find(catalog, "LvProp", 0))
    {}

    const Column& id;
    const Column& type;
    const Column& flags;
    const Column& name;
    const Column& properties;

private:
    /// `bytes` is the length that a number must have, 0 for a variable column.
    static const Column& find(const TableDefinition& catalog, const char* name, unsigned bytes)
    {
        const int index = catalog.find(name);
        if (index < 0) raiseUnknownFormat("the catalog's columns");
        const Column& column = catalog.columns[static_cast<std::size_t>(index)];
        if (column.fixed != (bytes > 0) || (bytes > 0 && column.length != bytes))
            raiseUnknownFormat("the catalog's columns");
        return column;
    }
};

/// A number of two or four bytes; 0 for Null.
std::uint32_t numberIn(std::string_view cell)
{
    if (cell.size() == 4) return load32(cell.data());
    return cell.size() == 2 ? load16(cell.data()) : 0;
}

} // namespace

void checkHeader(const Pages& pages)
{
    if (pages.count() == 0 || !isHeaderPage(pages.at(0))) raiseUnknownFormat("the first page");
}

std::vector<TableDefinition> readCatalog(const Pages& pages)
{
    checkHeader(pages);
    const TableDefinition catalog = readTableDefinition(pages, catalogPage);
    const CatalogColumns columns(catalog);
    std::vector<TableDefinition> tables;
    for (const std::uint32_t number : pages.usageMap(catalog.ownedPages)) {
        const unsigned slots = rowsOn(pages.dataOf(number, catalogPage));
        for (unsigned slot = 0; slot < slots; ++slot) {
            // Of its own, as other pages are looked at for it.
            const std::string bytes(pages.tableRow(pages.at(number), slot));
            if (bytes.empty()) continue;
            const RowView row(catalog, bytes);
            if (numberIn(row.cell(columns.type)) != tableType) continue;
            if ((numberIn(row.cell(columns.flags)) & systemFlags) != 0) continue;
            auto table = readTableDefinition(pages, numberIn(row.cell(columns.id)) & pageOfId);
            table.name = decodeStoredText(row.cell(columns.name));
            applyProperties(readLongValue(pages, row.cell(columns.properties)), table);
            tables.push_back(std::move(table));
        }
    }
    return tables;
}

} // namespace jet
