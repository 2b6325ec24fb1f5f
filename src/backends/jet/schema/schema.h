#pragma once

#include "backends/jet/table/table_definition.h"
#include "runtime/dates.h"

#include <string>
#include <string_view>
#include <vector>

namespace jet {

struct TableSchema {
    std::string name;
    std::vector<Column> columns; ///< name, type, length, texts' rules and default values
};

/// What a new database holds.
struct Schema {
    Date created; ///< of the database's tables
    std::vector<TableSchema> tables;
};

/// Reads a schema's text: a line an item, words between blanks, `#` begins a remark.
///
///     created 2024-01-02 03:04:05
///     table tblSample
///     column Name text 255
///     column Note memo no-zero-length
///     column Count long required default 0
///
/// Types are `text` with its characters (1 to 255), `memo`, `integer` (16 bits) and `long` (32).
/// A `required` column takes no Null, a `no-zero-length` one no empty text. Names are letters,
/// digits and `_`. Raises 5 with the number of a line that says something else.
Schema parseSchema(std::string_view text);

} // namespace jet
