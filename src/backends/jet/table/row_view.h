#pragma once

#include "backends/jet/table/table_definition.h"

#include <string>
#include <string_view>

namespace jet {

/// One row's bytes, cut into the cells of its columns.
class RowView {
public:
    RowView() = default;

    /// Raises 3343 for a row that is too short for what it says it holds.
    RowView(const TableDefinition& table, std::string_view row);

    /// Whether the row has a value for a column. Boolean columns always have one.
    bool has(const Column& column) const;

    /// The bytes of a value as they are stored; empty for Null and for booleans. Raises 3343.
    std::string_view cell(const Column& column) const;

    bool bit(const Column& column) const;

private:
    std::string_view row_;
    std::string_view mask_;
    std::size_t columns_ = 0;
    std::size_t variables_ = 0;
};

/// The text or bytes that a cell of a Memo or OLE column stands for, wherever they lie.
/// Raises 3343 when they are not all there.
std::string readLongValue(const Pages& pages, std::string_view cell);

} // namespace jet
