#pragma once

#include "backends/jet/pages/page_file.h"
#include "backends/jet/pages/usage_maps.h"
#include "backends/jet/table/table_definition.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace jet {

/// A database file that is open for adding rows. Other writers are kept out until it goes.
class Database {
public:
    /// Opens a file and tidies what a killed writer left at its end.
    /// Raises 3024, 3045, 3051, 3343.
    explicit Database(const std::string& path);

    const std::vector<TableDefinition>& tables() const { return tables_; }

    /// A table by name, without regard to case; null for none.
    const TableDefinition* find(std::string_view name) const;

    PageFile& file() { return file_; }
    GlobalMap& globalMap() { return *globalMap_; }

    /// Gives back the empty pages at the end of the file that nothing leads to.
    void dropUnusedTail();

private:
    PageFile file_;
    std::optional<GlobalMap> globalMap_; ///< none until the header was checked
    std::vector<TableDefinition> tables_;
};

} // namespace jet
