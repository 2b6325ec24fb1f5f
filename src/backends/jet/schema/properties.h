#pragma once

#include "backends/jet/table/table_definition.h"

#include <string>
#include <string_view>
#include <vector>

namespace jet {

/// The property block of a table: which columns take a zero-length text, and default values.
std::string encodeProperties(const std::vector<Column>& columns);

/// Sets in `table` what a property block tells of its columns. A block that is damaged is read as
/// far as it makes sense: properties are no reason to refuse a table.
void applyProperties(std::string_view block, TableDefinition& table);

} // namespace jet
