#include "support/fakes/database/fake_database.h"

#include "runtime/run_time_error.h"
#include "runtime/text.h"
#include "support/fakes/database/fake_recordset.h"

#include <algorithm>

/// A call of a procedure of a FakeDatabase.
class FakeCommand final : public DatabaseCommand {
public:
    explicit FakeCommand(FakeDatabase& database) : database_(database) {}

    void useActiveConnection() override { requireConnection(); }

    void setProcedure(const std::string& name) override
    {
        call_ = {name, {}};
        parameters_.clear();
    }

    void refreshParameters() override
    {
        requireConnection();
        call_.parameters.clear();
        parameters_.clear();
        parameters_ = procedure().parameters;
    }

    void assign(const std::string& parameter, const Value& value) override
    {
        const auto found =
            std::find_if(parameters_.begin(), parameters_.end(),
                         [&](const auto& known) { return equalIgnoringCase(known, parameter); });
        if (found == parameters_.end()) throw RunTimeError(runTimeErrors::itemNotInCollection);
        call_.parameters[*found] = value;
    }

    void execute() override
    {
        requireConnection();
        const auto& called = procedure();
        database_.calls_.push_back(call_);
        FakeDatabase::Call whole = call_;
        for (const std::string& parameter : called.parameters)
            whole.parameters.try_emplace(parameter, Null{});
        if (called.work) called.work(whole);
    }

private:
    const FakeDatabase::Procedure& procedure() const
    {
        const auto found = database_.procedures_.find(call_.procedure);
        if (found == database_.procedures_.end())
            throw RunTimeError(databaseErrors::statementRefused,
                               "Could not find stored procedure '" + call_.procedure + "'.");
        return found->second;
    }

    void requireConnection() const
    {
        if (database_.state() == 0) throw RunTimeError(runTimeErrors::connectionClosed);
    }

    FakeDatabase& database_;
    FakeDatabase::Call call_;
    std::vector<std::string> parameters_;
};

FakeDatabase& FakeDatabase::withView(const std::string& view, std::vector<std::string> columns)
{
    views_[view].columns = std::move(columns);
    return *this;
}

FakeDatabase& FakeDatabase::withRow(const std::string& view, Row row)
{
    auto& columns = views_[view].columns;
    for (const auto& [name, value] : row)
        if (std::none_of(columns.begin(), columns.end(), [&name = name](const auto& column) {
                return equalIgnoringCase(column, name);
            }))
            columns.push_back(name);
    views_[view].rows.push_back(std::move(row));
    return *this;
}

FakeDatabase& FakeDatabase::withProcedure(const std::string& name,
                                          std::vector<std::string> parameters,
                                          std::function<void(const Call&)> work)
{
    procedures_[name] = {std::move(parameters), std::move(work)};
    return *this;
}

FakeDatabase& FakeDatabase::withEmptyGrid()
{
    return withView("vw_LoggerDiagnosticGrid", {"Name", "ObjectId", "Flags", "DefaultFlags"});
}

FakeDatabase& FakeDatabase::withComponent(const std::string& name, std::int32_t flags,
                                          std::int32_t defaultFlags)
{
    withRow("vw_LoggerDiagnosticGrid", {{"Name", name},
                                        {"ObjectId", "id-" + name},
                                        {"Flags", flags},
                                        {"DefaultFlags", defaultFlags}});
    return withProcedure("csp_LoggerDiagnosticGridModify",
                         {"@AuditAlias", "@AuditComponent", "@Name", "@ObjectId", "@Flags"},
                         [this](const Call& call) {
                             writeFlags(call.parameters.at("@ObjectId"),
                                        call.parameters.at("@Flags"));
                         });
}

FakeDatabase& FakeDatabase::withConfiguration(const std::string& name, Value value,
                                              std::int32_t type)
{
    withRow("vw_ConfigurationValue",
            {{"FullName", name}, {"Value", std::move(value)}, {"Type", type}});
    return withProcedure("csp_ConfigurationModify",
                         {"@AuditAlias", "@AuditComponent", "@FullName", "@ValueLong",
                          "@ValueFloat", "@ValueDate", "@ValueString", "@ValueBool", "@ValueGuid"},
                         [this](const Call& call) {
                             for (auto& row : views_["vw_ConfigurationValue"].rows)
                                 if (row["FullName"] == call.parameters.at("@FullName"))
                                     for (const auto& [parameter, given] : call.parameters)
                                         if (beginsWith(parameter, "@Value") && !isNull(given))
                                             row["Value"] = given;
                         });
}

FakeDatabase& FakeDatabase::unreachable(bool is)
{
    unreachable_ = is;
    return *this;
}

FakeDatabase& FakeDatabase::failing(const std::string& part, int number)
{
    failures_.emplace_back(part, number);
    return *this;
}

FakeDatabase& FakeDatabase::opened()
{
    state_ = 1;
    return *this;
}

std::int32_t FakeDatabase::flagsOf(const std::string& component) const
{
    for (const auto& row : views_.at("vw_LoggerDiagnosticGrid").rows)
        if (row.at("Name") == Value(component)) return valueAsInteger32(row.at("Flags"));
    return 0;
}

void FakeDatabase::writeFlags(const Value& objectId, const Value& flags)
{
    for (auto& row : views_["vw_LoggerDiagnosticGrid"].rows)
        if (row["ObjectId"] == objectId) row["Flags"] = flags;
}

void FakeDatabase::setFlags(const std::string& component, std::int32_t flags)
{
    for (auto& row : views_.at("vw_LoggerDiagnosticGrid").rows)
        if (row.at("Name") == Value(component)) row["Flags"] = flags;
}

void FakeDatabase::removeComponent(const std::string& component)
{
    std::erase_if(views_.at("vw_LoggerDiagnosticGrid").rows,
                  [&](const auto& row) { return row.at("Name") == Value(component); });
}

void FakeDatabase::open(const std::string& connectionString, const std::string&, const std::string&)
{
    connectionStrings_.push_back(connectionString);
    if (state_ != 0) throw RunTimeError(databaseErrors::alreadyOpen);
    errors_ = unreachable_ ? 1 : 0;
    if (unreachable_)
        throw RunTimeError(databaseErrors::unspecified,
                           "SQL Server does not exist or access denied.");
    state_ = 1;
}

std::unique_ptr<DatabaseRecordset> FakeDatabase::openRecordset(const std::string& query,
                                                               CursorKind cursor, LockKind lock)
{
    queries_.push_back(query);
    cursors_.emplace_back(cursor, lock);
    if (state_ == 0) throw RunTimeError(runTimeErrors::connectionClosed);
    for (const auto& [part, number] : failures_)
        if (query.find(part) != std::string::npos) throw RunTimeError(number);
    return std::make_unique<FakeRecordset>(views_, query, cursor, openRecordsets_);
}

std::unique_ptr<DatabaseCommand> FakeDatabase::createCommand()
{
    return std::make_unique<FakeCommand>(*this);
}
