#pragma once

#include "backends/jet/database.h"
#include "backends/jet/table/long_value_writer.h"
#include "backends/jet/table/row_writer.h"

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace jet {

/// A value on its way into a column. A text column takes a text, a numeric one a number.
struct Cell {
    enum class Kind : unsigned char { null, number, text };

    Kind kind = Kind::null;
    std::int32_t number = 0;
    TextValue text;
};

/// Adds rows to one table.
///
/// The row is in the file when `append` returns; what the file holds at any moment before is
/// complete too, so a program may be killed at any line of it.
class TableAppender {
public:
    /// Raises 3027 for a table with indexes or with columns of types other than numbers of up to
    /// 32 bits, texts and memos; 3343 for one whose maps are damaged.
    TableAppender(Database& database, const TableDefinition& table);

    /// Adds a row of one cell for each of the table's columns, in their order.
    /// Raises 3026, 3183, 3047 (the row is too large), 3343 (another program has cut the file);
    /// then no row was added.
    void append(std::span<const Cell> cells);

private:
    void checkColumns() const;
    void planColumns();
    void store(std::span<const Cell> cells);
    void findRoom();
    bool isStored();
    std::size_t planValues(std::span<const Cell> cells);
    void storeLongValues(std::span<const Cell> cells);
    void writeRow(char* at, std::span<const Cell> cells, std::size_t variableBytes);
    void addNewPage(std::span<const Cell> cells, std::size_t variableBytes);
    void countRow();
    void correctRowCount();

    struct Slot {
        const Column* column = nullptr; ///< null for a variable index that no column has
        std::size_t index = 0;          ///< of the column and its cell
        std::optional<LongValueWriter> memos;
        StoredForm form;
        RowPointer stored; ///< of a memo that is not in the row
    };

    Database& database_;
    PageFile& file_;
    GlobalMap& global_;
    const TableDefinition& table_;
    RowShape shape_;
    std::vector<Slot> fixed_;
    std::vector<Slot> variable_; ///< by variable index
    OwnedMap owned_;
    OwnedMap free_;
    std::uint32_t current_ = 0; ///< the data page with room; 0 for none
    RowPointer target_;         ///< where the row that is being added goes
};

} // namespace jet
