#include "backends/jet/schema/catalog.h"

#include "backends/jet/errors.h"
#include "backends/jet/pages/header_page.h"
#include "backends/jet/schema/properties.h"
#include "backends/jet/table/row_view.h"
#include "backends/jet/table/text_value.h"
#include "runtime/run_time_error.h"

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

/// Reads the catalog row by row, so that what is damaged can be passed over.
class CatalogReading {
public:
    CatalogReading(const Pages& pages, std::vector<std::string>* passedOver)
        : pages_(pages), passedOver_(passedOver), catalog_(readTableDefinition(pages, catalogPage)),
          columns_(catalog_)
    {}

    std::vector<TableDefinition> tables()
    {
        std::vector<std::uint32_t> numbers;
        orPass([&] { numbers = pages_.usageMap(catalog_.ownedPages); },
               [&] { numbers = pages_.pagesOfOwner(catalogPage); });
        for (const std::uint32_t number : numbers) orPass([&] { readPage(number); });
        return std::move(tables_);
    }

private:
    /// Does a step, and notes what it raises where damage is passed over; then another may help.
    template <typename Step, typename Instead = void (*)()>
    void orPass(
        const Step& step, const Instead& instead = [] {})
    {
        try {
            step();
        } catch (const RunTimeError& error) {
            if (passedOver_ == nullptr) throw;
            passedOver_->push_back(error.description());
            instead();
        }
    }

    void readPage(std::uint32_t number)
    {
        const unsigned slots = rowsOn(pages_.dataOf(number, catalogPage));
        for (unsigned slot = 0; slot < slots; ++slot) orPass([&] { readRow(number, slot); });
    }

    void readRow(std::uint32_t number, unsigned slot)
    {
        // Of its own, as other pages are looked at for it.
        const std::string bytes(pages_.tableRow(pages_.at(number), slot));
        if (bytes.empty()) return;
        const RowView row(catalog_, bytes);
        if (numberIn(row.cell(columns_.type)) != tableType) return;
        if ((numberIn(row.cell(columns_.flags)) & systemFlags) != 0) return;
        auto table = readTableDefinition(pages_, numberIn(row.cell(columns_.id)) & pageOfId);
        table.name = decodeStoredText(row.cell(columns_.name));
        orPass(
            [&] { applyProperties(readLongValue(pages_, row.cell(columns_.properties)), table); });
        tables_.push_back(std::move(table));
    }

    const Pages& pages_;
    std::vector<std::string>* passedOver_;
    TableDefinition catalog_;
    CatalogColumns columns_;
    std::vector<TableDefinition> tables_;
};

} // namespace

void checkHeader(const Pages& pages)
{
    if (pages.count() == 0 || !isHeaderPage(pages.at(0))) raiseUnknownFormat("the first page");
}

std::vector<TableDefinition> readCatalog(const Pages& pages, std::vector<std::string>* passedOver)
{
    checkHeader(pages);
    return CatalogReading(pages, passedOver).tables();
}

} // namespace jet
