#pragma once

#include "platform/database.h"

#include <memory>
#include <string>

class SqliteHandle;

/// The directory database of a site: an SQLite file.
///
/// A stored procedure is a view of its name: its columns are the parameters, and inserting a row
/// calls it. A file that has been removed, replaced or damaged is a broken connection.
class SiteDatabase final : public DatabaseConnection {
public:
    /// Milliseconds that a statement waits while another program holds the database.
    static constexpr int usualPatience = 10000;

    /// `file` is a path of this machine; it is opened by `open` alone.
    explicit SiteDatabase(std::string file, int patience = usualPatience);
    ~SiteDatabase() override;

    int state() const override;
    void open(const std::string& connectionString, const std::string& user,
              const std::string& password) override;
    int errorCount() const override { return errors_; }
    std::unique_ptr<DatabaseRecordset> openRecordset(const std::string& query, CursorKind cursor,
                                                     LockKind lock) override;
    std::unique_ptr<DatabaseCommand> createCommand() override;

    /// The open database. Raises 3709; a broken connection is closed by that.
    std::shared_ptr<SqliteHandle> handle();

private:
    std::string file_;
    int patience_;
    std::shared_ptr<SqliteHandle> handle_;
    int errors_ = 0;
};
