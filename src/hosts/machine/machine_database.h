#pragma once

#include "backends/odbc/odbc_database.h"
#include "hosts/common/server_database.h"

/// The directory database of the server that this machine is, by the newest driver that is
/// installed for it. The server makes each call lasting by itself, and lets nobody wait.
class MachineDatabase final : public ServerDatabase {
public:
    void openFor(ServerUse use) override;
    std::unique_ptr<DatabaseConnection> anotherToLook() const override;

    int state() const override { return connection_.state(); }
    void open(const std::string& connectionString, const std::string& user,
              const std::string& password) override;
    int errorCount() const override { return connection_.errorCount(); }
    std::unique_ptr<DatabaseRecordset> openRecordset(const std::string& query, CursorKind cursor,
                                                     LockKind lock) override;
    std::unique_ptr<DatabaseCommand> createCommand() override;

private:
    OdbcDatabase connection_;
};
