#include "backends/jet/database.h"

#include "backends/jet/schema/catalog.h"
#include "runtime/text.h"

#include <algorithm>

namespace jet {

Database::Database(const std::string& path) : file_(path)
{
    const PageWindows::Use use(file_.windows());
    checkHeader(file_.pages());
    globalMap_.emplace(file_);
    tables_ = readCatalog(file_.pages());
    dropUnusedTail();
    if (file_.failed()) file_.raiseFailure();
    file_.trim();
}

const TableDefinition* Database::find(std::string_view name) const
{
    const auto found = std::find_if(tables_.begin(), tables_.end(), [&](const auto& table) {
        return equalIgnoringCase(table.name, name);
    });
    return found == tables_.end() ? nullptr : &*found;
}

void Database::dropUnusedTail()
{
    const auto isUnused = [&](std::uint32_t number) {
        return file_.isEmpty(number) && !globalMap_->isUsed(number);
    };
    while (file_.count() > 1 && isUnused(file_.count() - 1)) file_.giveBack(1);
}

} // namespace jet
