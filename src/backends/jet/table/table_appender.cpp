#include "backends/jet/table/table_appender.h"

#include "backends/jet/errors.h"
#include "runtime/run_time_error.h"

#include <algorithm>

namespace jet {

namespace {

/// Whether a column's values are whole numbers that a cell's number holds.
bool isNumber(const Column& column)
{
    switch (column.type) {
    case ColumnType::byte:
        return column.fixed && column.length == 1;
    case ColumnType::integer:
        return column.fixed && column.length == 2;
    case ColumnType::longInteger:
        return column.fixed && column.length == 4;
    default:
        return false;
    }
}

} // namespace

TableAppender::TableAppender(Database& database, const TableDefinition& table)
    : database_(database), file_(database.file()), global_(database.globalMap()), table_(table),
      owned_(file_, global_, table.ownedPages), free_(file_, global_, table.freePages)
{
    const PageWindows::Use use(file_.windows());
    checkColumns();
    planColumns();
    findRoom();
    correctRowCount();
    if (file_.failed()) file_.raiseFailure();
}

void TableAppender::findRoom()
{
    current_ = pageWithRoom(file_, table_.ownedPages, table_.freePages, table_.page);
    for (auto& slot : variable_)
        if (slot.memos) slot.memos->findRoom();
}

void TableAppender::checkColumns() const
{
    if (table_.indexes > 0) raiseReadOnly(table_.name);
    for (const auto& column : table_.columns) {
        const bool known = isNumber(column) || (column.isText() && !column.fixed);
        if (!known || column.automatic) raiseReadOnly(table_.name);
        const bool placed = column.fixed
                                ? column.fixedOffset + column.length <= int{dataPage::longestRow}
                                : column.variableIndex < table_.variableColumns;
        if (!placed || column.number >= table_.columnsInRow)
            raiseUnknownFormat("the columns of " + table_.name);
    }
}

void TableAppender::planColumns()
{
    shape_ = {table_.columnsInRow, 0, table_.variableColumns};
    variable_.resize(table_.variableColumns);
    for (std::size_t index = 0; index < table_.columns.size(); ++index) {
        const Column& column = table_.columns[index];
        Slot* slot = column.fixed ? &fixed_.emplace_back() : &variable_[column.variableIndex];
        slot->column = &column;
        slot->index = index;
        if (column.fixed)
            shape_.fixedBytes =
                std::max<std::size_t>(shape_.fixedBytes, column.fixedOffset + column.length);
        if (column.type == ColumnType::memo)
            slot->memos.emplace(file_, global_, column.ownedPages, column.freePages);
    }
}

/// Where a store fails, the file is taken up again as by a writer that comes after a kill. The row
/// may be in it already, when what failed came behind it.
void TableAppender::append(std::span<const Cell> cells)
{
    const PageWindows::Use use(file_.windows());
    if (file_.failed()) file_.goOn();
    try {
        store(cells);
    } catch (const RunTimeError&) {
        if (!file_.failed()) throw;
    }
    if (!file_.failed()) return;
    file_.goOn();
    database_.dropUnusedTail();
    findRoom();
    const bool stored = isStored();
    if (!stored || file_.failed()) file_.raiseFailure();
}

/// Whether readers find the row that was last being added.
bool TableAppender::isStored()
{
    const auto owned = file_.pages().usageMap(table_.ownedPages);
    return std::binary_search(owned.begin(), owned.end(), target_.page) &&
           DataPage(file_.page(target_.page)).rows() > target_.row;
}

void TableAppender::store(std::span<const Cell> cells)
{
    target_ = {};
    const std::size_t variableBytes = planValues(cells);
    const std::size_t rowBytes = shape_.rowBytes(variableBytes);
    if (rowBytes > dataPage::longestRow) raiseRowTooLarge();

    DataPage page(current_ == 0 ? nullptr : file_.page(current_));
    const bool fits = current_ != 0 && page.hasRoom(rowBytes);
    std::uint32_t pages = fits ? 0 : 1;
    for (const auto& slot : variable_) {
        if (slot.memos) pages += slot.memos->pagesFor(slot.form);
    }
    if (pages > 0) file_.reserve(pages);

    storeLongValues(cells);
    if (fits) {
        if (pages > 0) page = DataPage(file_.page(current_)); // a long text may be in its place
        target_ = {current_, static_cast<std::uint8_t>(page.rows())};
        writeRow(page.place(rowBytes), cells, variableBytes);
        page.publish(rowBytes);
    } else {
        addNewPage(cells, variableBytes);
    }
    inThisOrder();
    countRow();
}

/// Chooses the form of every text. Returns the bytes that the variable columns take in the row.
std::size_t TableAppender::planValues(std::span<const Cell> cells)
{
    std::size_t bytes = 0;
    for (auto& slot : variable_) {
        slot.form = {};
        if (slot.column == nullptr || cells[slot.index].kind == Cell::Kind::null) continue;
        const TextValue& text = cells[slot.index].text;
        if (slot.memos) {
            slot.form = formOfMemo(text, slot.column->compressed);
            bytes += slot.form.memoCellBytes();
        } else {
            slot.form = formOfText(text, slot.column->compressed);
            bytes += slot.form.bytes;
        }
    }
    return bytes;
}

void TableAppender::storeLongValues(std::span<const Cell> cells)
{
    for (auto& slot : variable_) {
        if (slot.form.place != StoredForm::Place::inRow)
            slot.stored = slot.memos->store(cells[slot.index].text, slot.form);
    }
}

void TableAppender::writeRow(char* at, std::span<const Cell> cells, std::size_t variableBytes)
{
    RowWriter row(at, shape_, variableBytes);
    for (const auto& slot : fixed_) {
        const Cell& cell = cells[slot.index];
        if (cell.kind == Cell::Kind::null) continue;
        std::memcpy(row.fixed(slot.column->fixedOffset), &cell.number, slot.column->length);
        row.mark(slot.column->number);
    }
    for (const auto& slot : variable_) {
        if (slot.column == nullptr || cells[slot.index].kind == Cell::Kind::null) {
            row.variable(0);
            continue;
        }
        row.mark(slot.column->number);
        const TextValue& text = cells[slot.index].text;
        if (!slot.memos) {
            writeText(row.variable(slot.form.bytes), text, slot.form.compressed);
            continue;
        }
        using Place = StoredForm::Place;
        const auto size = static_cast<std::uint32_t>(slot.form.bytes);
        const std::uint32_t kind = slot.form.place == Place::inRow    ? longValue::inlineKind
                                   : slot.form.place == Place::oneRow ? longValue::oneRowKind
                                                                      : 0;
        char* head = row.variable(slot.form.memoCellBytes());
        store32(head, size | kind);
        store32(head + 4, slot.form.place == Place::inRow ? 0 : slot.stored.stored());
        store32(head + 8, slot.form.place == Place::chain ? chainStamp(slot.stored) : 0);
        if (slot.form.place == Place::inRow)
            writeText(head + longValue::head, text, slot.form.compressed);
    }
}

/// Puts the row on a page of its own, which the table owns only when all of it is there.
void TableAppender::addNewPage(std::span<const Cell> cells, std::size_t variableBytes)
{
    const std::uint32_t number = file_.take();
    target_ = {number, 0};
    auto page = DataPage::begin(file_.page(number), table_.page);
    const std::size_t rowBytes = shape_.rowBytes(variableBytes);
    writeRow(page.place(rowBytes), cells, variableBytes);
    page.publish(rowBytes);
    inThisOrder();
    global_.markUsed(number);
    inThisOrder();
    owned_.add(number);
    inThisOrder();
    free_.moveTo(number);
    current_ = number;
}

void TableAppender::countRow()
{
    char* count = file_.page(table_.page) + tableDefinition::rowCount;
    store32(count, load32(count) + 1);
}

/// A writer that was killed may have left the count one behind its rows.
void TableAppender::correctRowCount()
{
    const Pages pages = file_.pages();
    std::uint32_t rows = 0;
    for (const std::uint32_t number : pages.usageMap(table_.ownedPages)) {
        const unsigned slots = rowsOn(pages.dataOf(number, table_.page));
        for (unsigned slot = 0; slot < slots; ++slot)
            rows += pages.tableRow(pages.at(number), slot).empty() ? 0 : 1;
    }
    char* count = file_.page(table_.page) + tableDefinition::rowCount;
    if (load32(count) != rows) store32(count, rows);
}

} // namespace jet
