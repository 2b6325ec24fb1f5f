#include "hosts/common/row_counts.h"

#include "backends/jet/file_pages.h"
#include "backends/jet/reader.h"
#include "runtime/run_time_error.h"

#include <map>

std::vector<std::pair<std::string, long long>> rowsByProcess(const std::string& database)
try {
    const jet::FilePages file(database);
    const jet::Reader reader(file.pages());
    const jet::TableDefinition* table = reader.find("tblTraces");
    const int process = table == nullptr ? -1 : table->find("Process");
    if (process < 0) return {};
    std::map<std::string, long long> counts;
    for (auto rows = reader.rows(*table); rows.next();)
        ++counts[rows.text(static_cast<std::size_t>(process))];
    return {counts.begin(), counts.end()};
} catch (const RunTimeError&) {
    return {};
}

bool hasRows(const std::string& database)
try {
    const jet::FilePages file(database);
    const jet::Reader reader(file.pages());
    const jet::TableDefinition* table = reader.find("tblTraces");
    return table != nullptr && reader.rows(*table).next();
} catch (const RunTimeError&) {
    return false;
}
