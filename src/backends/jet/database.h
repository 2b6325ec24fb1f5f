#pragma once

#include "backends/jet/page_file.h"
#include "backends/jet/table_definition.h"
#include "backends/jet/usage_maps.h"

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
    GlobalMap& globalMap() { return globalMap_; }

private:
    /// A file whose header was checked, before anything is made of it.
    static PageFile& checked(PageFile& file);
    void dropUnusedTail();

    PageFile file_;
    GlobalMap globalMap_;
    std::vector<TableDefinition> tables_;
};

} // namespace jet
