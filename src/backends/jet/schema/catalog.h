#pragma once

#include "backends/jet/table/table_definition.h"

#include <string>
#include <vector>

namespace jet {

/// Raises 3343 unless the first page is that of a Jet 4 file that is not encrypted.
void checkHeader(const Pages& pages);

/// The tables that people made, in the catalog's order, with their properties. Raises 3343; with
/// `passedOver` only for a catalog nothing of which can be read, as sentences are added there for
/// the rest.
std::vector<TableDefinition> readCatalog(const Pages& pages,
                                         std::vector<std::string>* passedOver = nullptr);

} // namespace jet
