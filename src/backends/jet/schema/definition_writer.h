#pragma once

#include "backends/jet/table/table_definition.h"

#include <cstdint>
#include <string>
#include <vector>

namespace jet {

/// An index of a system table, as its definition names it.
struct IndexDefinition {
    std::string name;
    std::vector<std::uint16_t> columns; ///< by number
    unsigned char flags = 0; ///< 0x80 always, 0x01 unique, 0x02 skips Null, 0x08 required
    bool primary = false;
    std::uint32_t rootPage = 0;
    std::uint32_t distinctKeys = 0;
    RowPointer map;
};

/// What a definition page says beside the table's columns.
struct DefinitionMarks {
    bool system = false;
    /// Of each column, in the order of the table's.
    std::vector<unsigned char> columnFlags;
    std::vector<IndexDefinition> indexes;
};

/// Gives columns their numbers, variable indexes and offsets, in the order in which they stand.
void layOutColumns(TableDefinition& table);

/// Writes a definition onto one page of zeros. Raises 5 for a table that needs more.
void writeTableDefinition(char* page, const TableDefinition& table, const DefinitionMarks& marks);

} // namespace jet
