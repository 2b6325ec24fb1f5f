#include "hosts/machine/machine_database.h"

#include "backends/odbc/odbc_use.h"

void MachineDatabase::openFor(ServerUse use)
{
    connection_.openFor(use == ServerUse::look ? OdbcUse::look : OdbcUse::change);
}

std::unique_ptr<DatabaseConnection> MachineDatabase::anotherToLook() const
{
    auto another = connection_.another();
    another->openFor(OdbcUse::look);
    return another;
}

void MachineDatabase::open(const std::string& connectionString, const std::string& user,
                           const std::string& password)
{
    connection_.open(connectionString, user, password);
}

std::unique_ptr<DatabaseRecordset> MachineDatabase::openRecordset(const std::string& query,
                                                                  CursorKind cursor, LockKind lock)
{
    return connection_.openRecordset(query, cursor, lock);
}

std::unique_ptr<DatabaseCommand> MachineDatabase::createCommand()
{
    return connection_.createCommand();
}
