#pragma once

#include "backends/odbc/odbc_database.h"
#include "backends/site/site.h"
#include "hosts/common/server_database.h"

#include <memory>
#include <string>

/// The directory database that the tool on a site works with: the site's own file, or the server's
/// that its `site.ini` names.
class DirectoryDatabase final : public ServerDatabase {
public:
    /// `site` outlives this.
    explicit DirectoryDatabase(Site& site);

    /// The site itself says so to its own file.
    void openFor(ServerUse use) override;

    std::unique_ptr<DatabaseConnection> anotherToLook() const override;

    std::string file() const override { return server_ ? std::string() : path_; }

    /// As of `SiteDatabase`, for the site's own file.
    void waitAsOneRun() override;
    void holdCalls() override;
    void letCallsGo() override;

    int state() const override { return inUse_.state(); }
    void open(const std::string& connectionString, const std::string& user,
              const std::string& password) override;
    int errorCount() const override { return inUse_.errorCount(); }
    std::unique_ptr<DatabaseRecordset> openRecordset(const std::string& query, CursorKind cursor,
                                                     LockKind lock) override;
    std::unique_ptr<DatabaseCommand> createCommand() override;

private:
    SiteDatabase& file_;
    std::string path_;                     ///< of the site's own file
    std::unique_ptr<OdbcDatabase> server_; ///< none where the site's own file is in use
    DatabaseConnection& inUse_;
};
