#include "hosts/common/health/examined_database.h"

#include "runtime/run_time_error.h"
#include "server/configuration_database.h"

void ExaminedDatabase::open()
{
    auto connection = database_.anotherToLook();
    connection->open(mdlOrvanDatabase::connectionStringOf("(local)"), "", "");
    connection_ = std::move(connection);
}

std::vector<ExaminedDatabase::Row> ExaminedDatabase::rows(const std::string& query,
                                                          const std::vector<std::string>& columns)
{
    std::vector<Row> found;
    asked([&] {
        const auto rows =
            connection_->openRecordset(query, CursorKind::forwardOnly, LockKind::readOnly);
        for (; !rows->atEnd(); rows->moveNext()) {
            Row row;
            for (const std::string& column : columns) row.push_back(rows->field(column));
            found.push_back(std::move(row));
        }
        rows->close();
    });
    return found;
}

std::string ExaminedDatabase::missingParameter(const std::string& procedure,
                                               const std::vector<std::string>& names)
{
    std::string missing;
    asked([&] {
        const auto command = connection_->createCommand();
        command->useActiveConnection();
        command->setProcedure(procedure);
        command->refreshParameters();
        for (const std::string& name : names) {
            try {
                command->assign(name, Empty{});
            } catch (const RunTimeError& error) {
                if (error.number() != runTimeErrors::itemNotInCollection) throw;
                missing = name;
                return;
            }
        }
    });
    return missing;
}

/// What fails after a long wait, or with the connection, would fail so again.
void ExaminedDatabase::asked(const std::function<void()>& ask)
{
    const auto begin = std::chrono::steady_clock::now();
    try {
        ask();
    } catch (const RunTimeError&) {
        silent_ = connection_->state() == 0 || std::chrono::steady_clock::now() - begin > patience;
        throw;
    }
}
