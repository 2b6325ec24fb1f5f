#include "backends/site/database/site_database.h"

#include "backends/site/database/sqlite_handle.h"
#include "backends/site/database/sqlite_recordset.h"
#include "runtime/run_time_error.h"
#include "runtime/text.h"

#include <algorithm>
#include <utility>
#include <vector>

#include <sqlite3.h>

namespace {

void bind(sqlite3_stmt* statement, int index, const Value& value)
{
    if (const auto* number = std::get_if<std::int32_t>(&value)) {
        sqlite3_bind_int(statement, index, *number);
    } else if (const auto* real = std::get_if<double>(&value)) {
        sqlite3_bind_double(statement, index, *real);
    } else if (const auto* flag = std::get_if<bool>(&value)) {
        sqlite3_bind_int(statement, index, *flag ? 1 : 0);
    } else if (const auto* date = std::get_if<Date>(&value)) {
        const std::string text = sortableDateTime(*date);
        sqlite3_bind_text(statement, index, text.c_str(), -1, SQLITE_TRANSIENT);
    } else if (!isNull(value) && !isEmpty(value)) {
        const std::string text = valueAsText(value);
        sqlite3_bind_text(statement, index, text.data(), static_cast<int>(text.size()),
                          SQLITE_TRANSIENT);
    }
}

class SiteCommand final : public DatabaseCommand {
public:
    explicit SiteCommand(SiteDatabase& database) : database_(database) {}

    void useActiveConnection() override { database_.handle(); }

    void setProcedure(const std::string& name) override
    {
        procedure_ = name;
        parameters_.clear();
    }

    void refreshParameters() override
    {
        const auto handle = database_.handle();
        parameters_.clear();
        if (handle->isWalked()) handle->beginCall();
        SqliteRecordset columns(handle,
                                "SELECT name FROM pragma_table_info('" +
                                    replaceAll(procedure_, "'", "''") + "')",
                                CursorKind::forwardOnly);
        for (; !columns.atEnd(); columns.moveNext())
            parameters_.push_back({valueAsText(columns.field("name")), Empty{}, false});
        if (parameters_.empty()) throw noSuchProcedure();
    }

    void assign(const std::string& parameter, const Value& value) override
    {
        for (auto& held : parameters_)
            if (equalIgnoringCase("@" + held.name, parameter)) {
                held.value = value;
                held.assigned = true;
                return;
            }
        throw RunTimeError(runTimeErrors::itemNotInCollection);
    }

    void execute() override
    {
        const auto handle = database_.handle();
        // A walk's call has begun when its row was read.
        if (!handle->isWalked()) handle->beginCall();
        std::string names;
        std::string placeholders;
        for (const auto& parameter : parameters_) {
            if (!parameter.assigned) continue;
            names += (names.empty() ? "" : ",") + parameter.name;
            placeholders += placeholders.empty() ? ":a" : ",:a";
            placeholders +=
                std::to_string(std::count(placeholders.begin(), placeholders.end(), ':'));
        }
        const SqliteStatement statement = prepared(
            *handle, "INSERT INTO " + procedure_ +
                         (names.empty() ? " DEFAULT VALUES"
                                        : " (" + names + ") VALUES (" + placeholders + ")"));
        int index = 0;
        for (const auto& parameter : parameters_)
            if (parameter.assigned) bind(statement.get(), ++index, parameter.value);
        int result = SQLITE_ROW;
        while (result == SQLITE_ROW) result = sqlite3_step(statement.get());
        if (result != SQLITE_DONE) handle->fail();
    }

private:
    RunTimeError noSuchProcedure() const
    {
        return RunTimeError(databaseErrors::statementRefused,
                            "Could not find stored procedure '" + procedure_ + "'.");
    }

    /// The call, ready to step. To the database a procedure is a view, and a missing one a table.
    SqliteStatement prepared(SqliteHandle& handle, const std::string& call) const
    {
        try {
            return handle.prepare(call);
        } catch (const RunTimeError& error) {
            if (error.description() == "no such table: " + procedure_) throw noSuchProcedure();
            throw;
        }
    }

    struct Parameter {
        std::string name;
        Value value;
        bool assigned;
    };

    SiteDatabase& database_;
    std::string procedure_;
    std::vector<Parameter> parameters_;
};

} // namespace

SiteDatabase::SiteDatabase(std::string file, std::chrono::milliseconds patience)
    : SiteDatabase(std::move(file), std::make_shared<LockPatience>(patience))
{}

SiteDatabase::SiteDatabase(std::string file, std::shared_ptr<LockPatience> patience)
    : file_(std::move(file)), patience_(std::move(patience)), use_(DatabaseUse::change)
{}

SiteDatabase::~SiteDatabase() = default;

void SiteDatabase::tellOfWaits(const std::function<void(const std::string&)>& notice)
{
    if (!notice) return;
    patience_->onLongWait(
        [notice, text = "waiting for another program that holds " + file_] { notice(text); });
}

void SiteDatabase::waitAsOneRun()
{
    patience_->holdForOneRun();
}

int SiteDatabase::state() const
{
    return handle_ && handle_->isUsable() ? 1 : 0;
}

void SiteDatabase::open(const std::string&, const std::string&, const std::string&)
{
    if (state() != 0) throw RunTimeError(databaseErrors::alreadyOpen);
    handle_.reset();
    errors_ = 1;
    handle_ = std::make_shared<SqliteHandle>(file_, patience_, use_);
    errors_ = 0;
    if (held_) handle_->holdCalls();
}

void SiteDatabase::holdCalls()
{
    held_ = true;
    lost_.reset();
    if (handle_) handle_->holdCalls();
}

void SiteDatabase::settle()
{
    if (lost_) throw RunTimeError(*lost_);
    if (!handle_ || !handle_->isUnsettled()) return;
    try {
        handle()->settle();
    } catch (const RunTimeError& error) {
        if (held_) lost_ = error;
        throw;
    }
}

void SiteDatabase::letCallsGo()
{
    held_ = false;
    lost_.reset();
    if (!handle_) return;
    const auto open = handle_->isUnsettled() ? handle() : handle_;
    open->letCallsGo();
}

std::unique_ptr<DatabaseRecordset> SiteDatabase::openRecordset(const std::string& query,
                                                               CursorKind cursor, LockKind)
{
    return std::make_unique<SqliteRecordset>(handle(), query, cursor);
}

std::unique_ptr<DatabaseCommand> SiteDatabase::createCommand()
{
    return std::make_unique<SiteCommand>(*this);
}

std::shared_ptr<SqliteHandle> SiteDatabase::handle()
{
    if (state() == 0) {
        handle_.reset();
        throw RunTimeError(runTimeErrors::connectionClosed);
    }
    return handle_;
}
