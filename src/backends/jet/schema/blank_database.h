#pragma once

#include "backends/jet/schema/schema.h"

#include <string>

namespace jet {

/// A whole database file with the tables of a schema, none of which has a row.
///
/// It is the file that the engine itself would make: with the four system tables, their indexes,
/// the identities that own things and the tables' properties. One schema always gives the same
/// bytes. Raises 5 for a schema too large: some thirty tables, or a table past one page.
std::string blankDatabase(const Schema& schema);

} // namespace jet
