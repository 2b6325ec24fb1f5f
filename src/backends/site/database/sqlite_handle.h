#pragma once

#include "backends/site/database/lock_patience.h"
#include "system/file_facts.h"

#include <memory>
#include <optional>
#include <string>
#include <unordered_map>

struct sqlite3;
struct sqlite3_stmt;

/// A compiled statement that is in use; it is reset when it is let go.
class SqliteStatement {
public:
    SqliteStatement() = default;
    explicit SqliteStatement(sqlite3_stmt* statement, std::shared_ptr<void> owner = nullptr);
    ~SqliteStatement();
    SqliteStatement(SqliteStatement&& other) noexcept;
    SqliteStatement& operator=(SqliteStatement&& other) noexcept;

    sqlite3_stmt* get() const { return statement_; }

private:
    void release();

    sqlite3_stmt* statement_ = nullptr;
    std::shared_ptr<void> owner_; ///< keeps a statement that is not kept for reuse
};

/// What a database is opened for. A look leaves no trace beside it, whatever its writers left
/// there.
enum class DatabaseUse { change, look };

/// An open SQLite database and the statements compiled for it so far.
///
/// A query's text literals are bound as parameters, so that queries that differ in a name alone
/// share one compiled statement.
class SqliteHandle {
public:
    /// Statements wait for another program's lock as long as `patience` allows, the opening too.
    /// Raises -2147467259 for a file that is missing, is no database, may not be read or stays
    /// locked.
    SqliteHandle(const std::string& file, std::shared_ptr<LockPatience> patience,
                 DatabaseUse use = DatabaseUse::change);
    ~SqliteHandle();
    SqliteHandle(const SqliteHandle&) = delete;
    SqliteHandle& operator=(const SqliteHandle&) = delete;

    /// A statement ready to step. Raises as DatabaseConnection::openRecordset.
    SqliteStatement prepare(const std::string& sql);

    /// While a walk is under way, from `beginWalk` to `endWalk`, the calls of procedures are one
    /// change, which begins with the first `beginCall`: nobody else changes a row between its
    /// reading and its writing, and each row needs no writing to the disk by itself. The end of the
    /// last walk makes the change lasting. `beginCall` and `endWalk` raise as a statement; a change
    /// that can't be made lasting is undone.
    void beginWalk() { ++walks_; }
    bool isWalked() const { return walks_ > 0; }
    void beginCall();
    void endWalk();

    /// Whether a call waits for others to be made lasting with it. Not in a database that undoes
    /// all of a change where it refuses one call: each is a change by itself there.
    bool holdsTogether() const { return together_ && (walks_ > 0 || held_); }

    /// From `holdCalls` to `letCallsGo`, calls outside a walk are one change too: until `settle`,
    /// and no more than `mostHeldCalls` of them, so that nobody else waits long for the database.
    /// `settle` makes them lasting, but not within a walk, whose end does. Both raise as `endWalk`.
    static constexpr int mostHeldCalls = 1000;
    void holdCalls() { held_ = true; }
    void settle();
    void letCallsGo();

    /// Whether something was changed that is not lasting yet, or was undone before it was.
    bool isUnsettled() const { return begun_; }

    /// The number of the change under way, or of the next one.
    unsigned change() const { return change_; }

    /// The present failure as an error. A file that can't be read any more breaks the connection.
    [[noreturn]] void fail() const;

    /// Whether the file at the path is still the one that was opened, and could be read so far.
    bool isUsable() const;

    sqlite3* get() const { return database_; }

private:
    void begin();
    bool undoesWholeChanges() const;
    bool isInChange() const;
    bool connectToCopy(const std::string& file, std::string& failure);
    int connect(const std::string& file, int flags, std::string& failure);
    sqlite3_stmt* compile(const std::string& sql) const;

    /// A statement of its own, for a query that can't share one or whose shared one is in use.
    SqliteStatement unshared(const std::string& sql) const;

    std::string file_;
    std::shared_ptr<LockPatience> patience_;
    std::optional<FileIdentity> identity_;
    sqlite3* database_ = nullptr;
    mutable bool broken_ = false;
    std::unordered_map<std::string, sqlite3_stmt*> statements_;
    int walks_ = 0;
    unsigned change_ = 0;
    bool begun_ = false;   ///< a change is under way, as far as this knows
    bool lost_ = false;    ///< one before it was undone by a failure
    bool together_ = true; ///< calls may be one change
    bool held_ = false;
    int heldCalls_ = 0; ///< in the change under way
};
