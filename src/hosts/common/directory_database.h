#pragma once

#include "backends/odbc/odbc_database.h"
#include "backends/site/site.h"
#include "platform/database.h"

#include <memory>
#include <string>

/// The directory database that the tool on a site works with: the site's own file, or the server's
/// that its `site.ini` names.
class DirectoryDatabase final : public DatabaseConnection {
public:
    /// `site` outlives this.
    explicit DirectoryDatabase(Site& site);

    /// What later calls of `open` open it for; at first for a look. The site itself says so to its
    /// own file.
    void openFor(SiteUse use);

    /// Another connection to the same database, closed yet, for a look.
    std::unique_ptr<DatabaseConnection> anotherToLook() const;

    /// As of `SiteDatabase`, for the site's own file. A server makes each call lasting by itself,
    /// and lets nobody wait for another's.
    void waitAsOneRun();
    void holdCalls();
    void letCallsGo();

    int state() const override { return inUse_.state(); }
    void open(const std::string& connectionString, const std::string& user,
              const std::string& password) override;
    int errorCount() const override { return inUse_.errorCount(); }
    std::unique_ptr<DatabaseRecordset> openRecordset(const std::string& query, CursorKind cursor,
                                                     LockKind lock) override;
    std::unique_ptr<DatabaseCommand> createCommand() override;

private:
    SiteDatabase& file_;
    std::unique_ptr<OdbcDatabase> server_; ///< none where the site's own file is in use
    DatabaseConnection& inUse_;
};
