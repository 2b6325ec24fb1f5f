#pragma once

#include "backends/jet/pages/pages.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace jet {

enum class ColumnType : unsigned char {
    boolean = 1,
    byte = 2,
    integer = 3, ///< 16 bits
    longInteger = 4,
    currency = 5,
    single = 6,
    real = 7, ///< 64 bits
    dateTime = 8,
    binary = 9,
    text = 10,
    ole = 11,
    memo = 12,
    guid = 15,
    numeric = 16,
};

struct Column {
    std::string name;
    ColumnType type = ColumnType::text;
    std::uint16_t number = 0;        ///< from 0, its bit in a row's null mask
    std::uint16_t variableIndex = 0; ///< of a column that is not fixed
    std::uint16_t fixedOffset = 0;   ///< behind the column count of a row
    std::uint16_t length = 0;        ///< in bytes; 0 for long values
    bool fixed = false;
    bool automatic = false;  ///< its value is made by the engine
    bool compressed = false; ///< texts may have the compressed form
    RowPointer ownedPages;   ///< of long values; page 0 when there is no map
    RowPointer freePages;

    bool allowZeroLength = true; ///< from the table's properties
    bool required = false;       ///< likewise: the column takes no Null
    std::string defaultValue;    ///< an expression such as `0` or `"x"`; empty for none

    bool isText() const { return type == ColumnType::text || type == ColumnType::memo; }
    bool isLongValue() const { return type == ColumnType::memo || type == ColumnType::ole; }
};

/// A table, as its definition pages and its properties tell it.
struct TableDefinition {
    std::string name; ///< from the catalog
    std::uint32_t page = 0;
    std::uint32_t rowCount = 0; ///< as last noted; a killed writer may leave it one behind
    std::uint16_t columnsInRow = 0;
    std::uint16_t variableColumns = 0;
    std::uint32_t indexes = 0;
    RowPointer ownedPages;
    RowPointer freePages;
    std::vector<Column> columns; ///< by number

    /// The index in `columns` of a name, without regard to case; -1 for none.
    int find(std::string_view column) const;
};

/// Reads a definition. The name and the properties stay empty. Raises 3343.
TableDefinition readTableDefinition(const Pages& pages, std::uint32_t page);

} // namespace jet
