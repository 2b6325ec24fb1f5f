#pragma once

#include "platform/database.h"
#include "runtime/run_time_error.h"

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>

class LockPatience;
class SqliteHandle;
enum class DatabaseUse;

/// The directory database of a site: an SQLite file.
///
/// A stored procedure is a view of its name: its columns are the parameters, and inserting a row
/// calls it. A file that has been removed, replaced or damaged is a broken connection.
class SiteDatabase final : public DatabaseConnection {
public:
    /// How long the statements of a run wait, all together, while another program holds the
    /// database.
    static constexpr std::chrono::seconds usualPatience{10};

    /// `file` is a path of this machine; it is opened by `open` alone.
    explicit SiteDatabase(std::string file, std::chrono::milliseconds patience = usualPatience);

    /// Another connection to the same file, closed yet, that shares the patience of this one.
    SiteDatabase another() const { return SiteDatabase(file_, patience_); }

    /// `notice` takes what a person who waits is to know, of all connections that share the
    /// patience.
    void tellOfWaits(const std::function<void(const std::string&)>& notice);

    /// From now on there is one patience for whatever happens, as for a program that runs a single
    /// command.
    void waitAsOneRun();

    ~SiteDatabase() override;
    SiteDatabase(const SiteDatabase&) = delete;
    SiteDatabase& operator=(const SiteDatabase&) = delete;

    /// What later calls of `open` open the file for; at first to change it.
    void openFor(DatabaseUse use) { use_ = use; }

    /// From here to `letCallsGo`, the calls of procedures need no writing to the disk one by one:
    /// they are made lasting together, by `settle`, by `letCallsGo` and at latest when there are
    /// 1,000. Until then no other connection sees them, and all of them are undone where the
    /// program ends. `settle` and `letCallsGo` raise as a statement, or 3709, where they could not
    /// be made lasting; `settle` then goes on to raise that until `letCallsGo`, so that nothing is
    /// written elsewhere that tells of what was undone.
    void holdCalls();
    void settle();
    void letCallsGo();

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
    SiteDatabase(std::string file, std::shared_ptr<LockPatience> patience);

    std::string file_;
    std::shared_ptr<LockPatience> patience_;
    DatabaseUse use_;
    std::shared_ptr<SqliteHandle> handle_;
    int errors_ = 0;
    bool held_ = false;
    std::optional<RunTimeError> lost_; ///< why calls that were held are undone
};
