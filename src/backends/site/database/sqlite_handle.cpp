#include "backends/site/database/sqlite_handle.h"

#include "backends/site/database/database_copy.h"
#include "platform/database.h"
#include "runtime/out_of_memory.h"
#include "runtime/run_time_error.h"
#include "system/file_facts.h"
#include "system/machine_path.h"
#include "system/root_folder.h"

#include <filesystem>
#include <fstream>
#include <optional>
#include <system_error>
#include <utility>
#include <vector>

#include <sqlite3.h>

namespace {

/// A query with its text literals taken out.
struct Template {
    std::string sql;
    std::vector<std::string> literals;
};

/// Nothing for a query whose quotes do not match, or that has more in it than plain literals.
std::optional<Template> templateOf(const std::string& sql)
{
    Template result;
    for (std::size_t i = 0; i < sql.size(); ++i) {
        if (sql[i] == '"' || sql[i] == '?' || sql[i] == '`' || sql[i] == '[') return std::nullopt;
        if (sql.compare(i, 2, "--") == 0 || sql.compare(i, 2, "/*") == 0) return std::nullopt;
        if (sql[i] != '\'') {
            result.sql += sql[i];
            continue;
        }
        std::string literal;
        for (++i;; ++i) {
            if (i >= sql.size()) return std::nullopt;
            if (sql[i] == '\'') {
                if (i + 1 >= sql.size() || sql[i + 1] != '\'') break;
                ++i;
            }
            literal += sql[i];
        }
        result.sql += '?';
        result.literals.push_back(std::move(literal));
    }
    return result;
}

/// Refuses a database that is not an ordinary one, and gives its path without links: the library
/// takes nothing but a path. It is told to follow none (`SQLITE_OPEN_NOFOLLOW`), so that nobody can
/// exchange what was looked at for one; what it opens beside the database it does not follow
/// either. Raises 53, 76, 70.
std::string guardedPath(const std::string& file)
{
    const std::string name = lastNameOf(file);
    const RootFolder folder(folderPathOf(file).empty() ? "." : folderPathOf(file));
    for (const char* ending : {"", "-journal", "-wal", "-shm"})
        if (const auto facts = folder.unfollowedFacts(name + ending);
            facts && facts->kind != FileKind::file)
            throw RunTimeError(runTimeErrors::permissionDenied,
                               folder.shown(name + ending) + " is no plain file");
    std::error_code none;
    return machineTextOf(std::filesystem::canonical(filePathOf(folder.shown("")), none) /
                         filePathOf(name));
}

/// Nothing where no file is.
std::optional<FileIdentity> identityOf(const std::string& file)
{
    const auto facts = unfollowedFactsOf(file);
    return facts ? std::optional(facts->identity) : std::nullopt;
}

/// Steps of the database's machine that one statement may take: about a second. A view may be
/// written so that it never ends.
constexpr int mostSteps = 50'000'000;

sqlite3_mem_methods ownMemory;

void* noted(void* memory)
{
    if (memory == nullptr) noteOutOfMemory();
    return memory;
}

/// Where the library has no memory for a value it gives none, as for an empty one: its requests are
/// to be looked at one by one.
void useNotedMemory()
{
    // A program that has used the library before goes on with what the library does.
    [[maybe_unused]] static const int result = [] {
        sqlite3_config(SQLITE_CONFIG_GETMALLOC, &ownMemory);
        sqlite3_mem_methods methods = ownMemory;
        methods.xMalloc = [](int size) { return noted(ownMemory.xMalloc(size)); };
        methods.xRealloc = [](void* old, int size) { return noted(ownMemory.xRealloc(old, size)); };
        return sqlite3_config(SQLITE_CONFIG_MALLOC, &methods);
    }();
}

int endTooLong(void*)
{
    return 1;
}

int waitForLock(void* patience, int tries)
{
    return static_cast<LockPatience*>(patience)->wait(tries) ? 1 : 0;
}

int failureCode(sqlite3* database)
{
    return sqlite3_errcode(database) & 0xff;
}

std::string failureText(sqlite3* database)
{
    if (failureCode(database) == SQLITE_BUSY)
        return "another program holds it and did not let go in time";
    if (failureCode(database) == SQLITE_INTERRUPT) return "the statement does not come to an end";
    return sqlite3_errmsg(database);
}

/// Whether changes go to a log beside the database first: then even a reader writes there.
bool hasWriteAheadLog(const std::string& file)
{
    constexpr std::size_t versionForReading = 19;
    constexpr char writeAhead = 2;
    char header[versionForReading + 1] = {};
    std::ifstream(filePathOf(file), std::ios::binary).read(header, sizeof header);
    return header[versionForReading] == writeAhead;
}

} // namespace

SqliteStatement::SqliteStatement(sqlite3_stmt* statement, std::shared_ptr<void> owner)
    : statement_(statement), owner_(std::move(owner))
{}

SqliteStatement::~SqliteStatement()
{
    release();
}

SqliteStatement::SqliteStatement(SqliteStatement&& other) noexcept
    : statement_(std::exchange(other.statement_, nullptr)), owner_(std::move(other.owner_))
{}

SqliteStatement& SqliteStatement::operator=(SqliteStatement&& other) noexcept
{
    if (this != &other) {
        release();
        statement_ = std::exchange(other.statement_, nullptr);
        owner_ = std::move(other.owner_);
    }
    return *this;
}

void SqliteStatement::release()
{
    if (!statement_) return;
    sqlite3_reset(statement_);
    sqlite3_stmt_status(statement_, SQLITE_STMTSTATUS_VM_STEP, 1); // its next use counts anew
    sqlite3_clear_bindings(statement_);
    statement_ = nullptr;
    owner_.reset();
}

SqliteHandle::SqliteHandle(const std::string& file, std::shared_ptr<LockPatience> patience,
                           DatabaseUse use)
    : file_(file), patience_(std::move(patience)), identity_(identityOf(file))
{
    patience_->begin();
    if (!identity_) throw RunTimeError(databaseErrors::unspecified, "Cannot open " + file);
    std::string failure;
    std::string path;
    try {
        path = guardedPath(file);
    } catch (const RunTimeError& error) {
        throw RunTimeError(databaseErrors::unspecified,
                           "Cannot open " + file + ": " + error.description());
    }
    if (use == DatabaseUse::change) {
        if (connect(path, SQLITE_OPEN_READWRITE, failure) == SQLITE_OK) return;
    } else if (hasWriteAheadLog(path)) {
        if (connectToCopy(path, failure)) return;
    } else {
        const int result = connect(path, SQLITE_OPEN_READONLY, failure);
        if (result == SQLITE_OK) return;
        if (result == SQLITE_READONLY_ROLLBACK && connectToCopy(path, failure)) return;
    }
    throw RunTimeError(databaseErrors::unspecified, "Cannot open " + file + ": " + failure);
}

/// Opens a database that can't be read without writing beside it: what was left undone by a writer
/// is undone in a copy, which is read in its place.
bool SqliteHandle::connectToCopy(const std::string& file, std::string& failure)
{
    try {
        const DatabaseCopy copy(file);
        return connect(copy.path(), SQLITE_OPEN_READWRITE, failure) == SQLITE_OK;
    } catch (const RunTimeError& error) {
        failure = error.description();
        return false;
    }
}

/// Opens a file and reads it once. Gives the result of the database library; what failed is closed
/// again and told.
int SqliteHandle::connect(const std::string& file, int flags, std::string& failure)
{
    useNotedMemory();
    int result = sqlite3_open_v2(file.c_str(), &database_,
                                 flags | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_NOFOLLOW, nullptr);
    if (result == SQLITE_OK) {
        sqlite3_extended_result_codes(database_, 1);
        sqlite3_progress_handler(database_, mostSteps, endTooLong, nullptr);
        sqlite3_busy_handler(database_, waitForLock, patience_.get());
        result = sqlite3_exec(database_, "PRAGMA schema_version", nullptr, nullptr, nullptr);
        if (result == SQLITE_OK) {
            together_ = !undoesWholeChanges();
            return result;
        }
    }
    failure = database_ ? failureText(database_) : "out of memory";
    sqlite3_close(database_);
    database_ = nullptr;
    return result;
}

SqliteHandle::~SqliteHandle()
{
    for (const auto& [sql, statement] : statements_) sqlite3_finalize(statement);
    sqlite3_close_v2(database_);
}

SqliteStatement SqliteHandle::prepare(const std::string& sql)
{
    patience_->begin();
    const auto shared = templateOf(sql);
    if (!shared) return unshared(sql);
    auto found = statements_.find(shared->sql);
    if (found == statements_.end())
        found = statements_.emplace(shared->sql, compile(shared->sql)).first;
    else if (sqlite3_stmt_busy(found->second))
        return unshared(sql);
    int index = 0;
    for (const auto& literal : shared->literals)
        sqlite3_bind_text(found->second, ++index, literal.data(), static_cast<int>(literal.size()),
                          SQLITE_TRANSIENT);
    return SqliteStatement(found->second);
}

SqliteStatement SqliteHandle::unshared(const std::string& sql) const
{
    sqlite3_stmt* statement = compile(sql);
    return SqliteStatement(statement, {statement, [](void* held) {
                                           sqlite3_finalize(static_cast<sqlite3_stmt*>(held));
                                       }});
}

sqlite3_stmt* SqliteHandle::compile(const std::string& sql) const
{
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(database_, sql.c_str(), static_cast<int>(sql.size()), &statement,
                           nullptr) != SQLITE_OK)
        fail();
    return statement;
}

void SqliteHandle::beginCall()
{
    if (!holdsTogether()) return;
    if (walks_ == 0 && heldCalls_ >= mostHeldCalls) settle();
    if (!isInChange()) {
        lost_ = lost_ || begun_;
        begin();
    }
    ++heldCalls_;
}

void SqliteHandle::begin()
{
    patience_->begin();
    if (sqlite3_exec(database_, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr) != SQLITE_OK) fail();
    ++change_;
    heldCalls_ = 0;
    begun_ = true;
}

/// The library ends a change by itself, and undoes it, where a statement fails badly.
bool SqliteHandle::isInChange() const
{
    return sqlite3_get_autocommit(database_) == 0;
}

/// Whether anything in the database is written to undo more than the call that it refuses.
bool SqliteHandle::undoesWholeChanges() const
{
    sqlite3_stmt* statement = nullptr;
    constexpr const char* query = "SELECT 1 FROM sqlite_master WHERE sql LIKE '%ROLLBACK%'";
    const bool tells = sqlite3_prepare_v2(database_, query, -1, &statement, nullptr) == SQLITE_OK;
    const bool none = tells && sqlite3_step(statement) == SQLITE_DONE;
    sqlite3_finalize(statement);
    return !none;
}

void SqliteHandle::endWalk()
{
    --walks_;
    settle();
}

void SqliteHandle::letCallsGo()
{
    held_ = false;
    settle();
}

void SqliteHandle::settle()
{
    if (walks_ > 0 || !begun_) return;
    begun_ = false;
    const bool lost = std::exchange(lost_, false) || !isInChange();
    patience_->begin();
    if (isInChange() && sqlite3_exec(database_, "COMMIT", nullptr, nullptr, nullptr) != SQLITE_OK) {
        try {
            fail();
        } catch (const RunTimeError&) {
            sqlite3_exec(database_, "ROLLBACK", nullptr, nullptr, nullptr);
            throw;
        }
    }
    if (lost)
        throw RunTimeError(databaseErrors::statementRefused,
                           file_ + ": a failure has undone what was changed before it");
}

void SqliteHandle::fail() const
{
    const std::string text = failureText(database_);
    switch (failureCode(database_)) {
    case SQLITE_BUSY:
        throw RunTimeError(databaseErrors::statementRefused, file_ + ": " + text);
    case SQLITE_IOERR:
    case SQLITE_CANTOPEN:
    case SQLITE_NOTADB:
    case SQLITE_CORRUPT:
        broken_ = true;
        throw RunTimeError(runTimeErrors::connectionClosed, text);
    case SQLITE_NOMEM:
        throw RunTimeError(runTimeErrors::outOfMemory);
    default:
        break;
    }
    if (text.rfind("no such table", 0) == 0) throw RunTimeError(databaseErrors::noSuchTable, text);
    throw RunTimeError(databaseErrors::statementRefused, text);
}

bool SqliteHandle::isUsable() const
{
    return !broken_ && identityOf(file_) == identity_;
}
