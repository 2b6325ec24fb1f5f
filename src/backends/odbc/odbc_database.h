#pragma once

#include "platform/database.h"

#include <chrono>
#include <memory>
#include <optional>
#include <string>

class OdbcSession;
enum class OdbcUse;
struct OdbcPatience;

/// The directory database of a server, over ODBC.
class OdbcDatabase final : public DatabaseConnection {
public:
    /// `source` is what a site says of it (`connectionStringOfSource`); the tool's own connection
    /// string is passed over then. Without it, `open` takes that string, and
    /// the newest of the drivers that are installed for such a server.
    explicit OdbcDatabase(std::optional<std::string> source = std::nullopt);
    OdbcDatabase(std::optional<std::string> source, const OdbcPatience& patience);
    ~OdbcDatabase() override;
    OdbcDatabase(const OdbcDatabase&) = delete;
    OdbcDatabase& operator=(const OdbcDatabase&) = delete;

    /// What later calls of `open` are for; at first to change it. One that looks runs no procedure:
    /// it raises -2147217900.
    void openFor(OdbcUse use);

    /// Another connection to the same server, closed yet.
    std::unique_ptr<OdbcDatabase> another() const;

    int state() const override;
    void open(const std::string& connectionString, const std::string& user,
              const std::string& password) override;
    int errorCount() const override { return errors_; }
    std::unique_ptr<DatabaseRecordset> openRecordset(const std::string& query, CursorKind cursor,
                                                     LockKind lock) override;
    std::unique_ptr<DatabaseCommand> createCommand() override;

    /// The open connection. Raises 3709.
    std::shared_ptr<OdbcSession> session() const;

private:
    std::optional<std::string> source_;
    std::unique_ptr<OdbcPatience> patience_;
    OdbcUse use_;
    std::shared_ptr<OdbcSession> session_;
    int errors_ = 0;
};
