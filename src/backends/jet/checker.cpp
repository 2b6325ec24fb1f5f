#include "backends/jet/reader.h"

#include "backends/jet/errors.h"
#include "runtime/run_time_error.h"

#include <map>
#include <set>

namespace jet {

namespace {

/// Walks a file's tables and writes down what does not agree.
class Checker {
public:
    explicit Checker(const Pages& pages) : pages_(pages)
    {
        const auto free = pages.usageMap({globalMapPage, 0});
        free_.insert(free.begin(), free.end());
    }

    std::vector<std::string> check(const std::vector<TableDefinition>& tables)
    {
        checkMap("the file", {globalMapPage, 0});
        for (const auto& table : tables) {
            try {
                checkTable(table);
            } catch (const RunTimeError& error) {
                report(table.name + ": " + error.description());
            }
        }
        return std::move(problems_);
    }

private:
    void report(const std::string& problem) { problems_.push_back(problem); }

    void checkTable(const TableDefinition& table)
    {
        claim(table.page, table.name);
        checkMaps(table.name, table.ownedPages, table.freePages, table.page);
        for (const auto& column : table.columns) {
            if (column.isLongValue() && column.ownedPages.page != 0)
                checkMaps(table.name + "." + column.name, column.ownedPages, column.freePages,
                          dataPage::longValueOwner);
        }
        std::uint32_t found = 0;
        Rows rows(pages_, table);
        for (; rows.next(); ++found) {
            for (std::size_t index = 0; index < table.columns.size(); ++index) {
                rows.text(index);
                const Column& column = table.columns[index];
                if (column.isLongValue() && !rows.isNull(index))
                    checkLongValue(table.name + "." + column.name, rows.cell(index));
            }
        }
        if (found != table.rowCount)
            report(table.name + ": " + std::to_string(found) + " rows, counted as " +
                   std::to_string(table.rowCount));
    }

    /// The pages that a map lies on, and where it begins.
    void checkMap(const std::string& name, RowPointer map)
    {
        const std::string maps = "the maps of " + name;
        requireUsed(map.page, maps);
        const std::string_view row = pages_.row(map);
        if (row[0] == 0) {
            const std::uint32_t first = load32(row.data() + 1);
            if (first % 8 != 0) report(maps + ": one begins at page " + std::to_string(first));
            return;
        }
        for (std::size_t at = usageMap::pointers; at + 4 <= row.size(); at += 4)
            if (const std::uint32_t bitmap = load32(row.data() + at); bitmap != 0)
                claim(bitmap, maps);
    }

    void checkMaps(const std::string& name, RowPointer owned, RowPointer free, std::uint32_t owner)
    {
        std::set<std::uint32_t> members;
        for (const std::uint32_t page : pages_.usageMap(owned)) {
            members.insert(page);
            claim(page, name);
            checkPage(page, pages_.dataOf(page, owner));
        }
        for (const std::uint32_t page : pages_.usageMap(free)) {
            if (members.count(page) == 0)
                report(name + ": page " + std::to_string(page) + " has room but no owner");
        }
        checkMap(name, owned);
        checkMap(name, free);
    }

    /// A long value of its own pages lies on those of its column and takes as many bytes as its
    /// head says; a chain begins on a page that carries the head's stamp. It has been read before.
    void checkLongValue(const std::string& name, std::string_view cell)
    {
        if (cell.empty()) return;
        const std::uint32_t head = load32(cell.data());
        const std::size_t size = head & longValue::lengthMask;
        const RowPointer first = RowPointer::load(cell.data() + 4);
        std::size_t found = 0;
        if ((head & longValue::inlineKind) != 0) {
            found = cell.size() - longValue::head;
            if (found > longValue::longestInline)
                report(name + ": " + std::to_string(found) + " bytes lie in a row");
        } else if ((head & longValue::oneRowKind) != 0) {
            requireOwner(first.page, name);
            found = pages_.row(first).size();
        } else {
            if (load32(pages_.at(first.page) + dataPage::stamp) != load32(cell.data() + 8))
                report(name + ": another stamp on page " + std::to_string(first.page));
            found = chainBytes(first, size, name);
        }
        if (found != size)
            report(name + ": a long value of " + std::to_string(size) + " bytes has " +
                   std::to_string(found));
    }

    /// The bytes of a chain, counted no further than past `size`.
    std::size_t chainBytes(RowPointer at, std::size_t size, const std::string& name)
    {
        std::size_t found = 0;
        while (at.page != 0 && found <= size) {
            requireOwner(at.page, name);
            const std::string_view piece = pages_.row(at);
            if (piece.size() <= 4) break;
            found += piece.size() - 4;
            at = RowPointer::load(piece.data());
        }
        return found;
    }

    void requireOwner(std::uint32_t page, const std::string& name)
    {
        const auto owner = owners_.find(page);
        if (owner == owners_.end() || owner->second != name)
            report("page " + std::to_string(page) + " holds long values of " + name +
                   " and does not belong to it");
    }

    void claim(std::uint32_t page, const std::string& name)
    {
        const auto [owner, first] = owners_.emplace(page, name);
        if (!first)
            report("page " + std::to_string(page) + " belongs to " + owner->second + " and " +
                   name);
        requireUsed(page, name);
    }

    void requireUsed(std::uint32_t page, const std::string& name)
    {
        if (free_.count(page) != 0)
            report("page " + std::to_string(page) + " of " + name + " counts as free");
    }

    void checkPage(std::uint32_t number, const char* page)
    {
        const unsigned rows = rowsOn(page);
        std::size_t lowest = pageSize;
        for (unsigned row = 0; row < rows; ++row) {
            const std::size_t start =
                load16(page + dataPage::slots + 2 * std::size_t{row}) & dataPage::offsetMask;
            if (start > lowest) report("page " + std::to_string(number) + ": rows overlap");
            lowest = start;
        }
        const std::size_t used = dataPage::slots + 2 * std::size_t{rows};
        if (rows > dataPage::mostRows || lowest < used ||
            lowest - used != load16(page + dataPage::freeBytes))
            report("page " + std::to_string(number) + ": free bytes or rows");
    }

    const Pages& pages_;
    std::set<std::uint32_t> free_;
    std::map<std::uint32_t, std::string> owners_;
    std::vector<std::string> problems_;
};

} // namespace

std::vector<std::string> Reader::problems() const
{
    return Checker(pages_).check(tables_);
}

} // namespace jet
