#include "support/fake_database.h"

#include "runtime/run_time_error.h"
#include "runtime/text.h"

#include <algorithm>
#include <regex>

namespace {

class FakeRecordset final : public DatabaseRecordset {
public:
    /// Gives a row as it is now, by its place.
    using Reading = std::function<FakeDatabase::Row(std::size_t)>;

    FakeRecordset(std::vector<FakeDatabase::Row> rows, Reading present, CursorKind cursor,
                  std::shared_ptr<int> open)
        : rows_(std::move(rows)), present_(std::move(present)), cursor_(cursor),
          open_(std::move(open))
    {
        ++*open_;
    }

    bool atEnd() const override
    {
        requireOpen();
        return position_ >= rows_.size();
    }

    Value field(const std::string& name) const override
    {
        if (atEnd()) throw RunTimeError(databaseErrors::noCurrentRow);
        for (const auto& [column, value] : rows_[position_])
            if (equalIgnoringCase(column, name)) return value;
        throw RunTimeError(runTimeErrors::itemNotInCollection);
    }

    void moveNext() override
    {
        if (atEnd()) throw RunTimeError(databaseErrors::noCurrentRow);
        ++position_;
        if (cursor_ == CursorKind::keyset && !atEnd()) rows_[position_] = present_(position_);
    }

    int rowCount() const override
    {
        requireOpen();
        return cursor_ == CursorKind::keyset ? static_cast<int>(rows_.size()) : -1;
    }

    void close() override
    {
        requireOpen();
        closed_ = true;
        --*open_;
    }

private:
    void requireOpen() const
    {
        if (closed_) throw RunTimeError(databaseErrors::closedObject);
    }

    std::vector<FakeDatabase::Row> rows_;
    Reading present_;
    CursorKind cursor_;
    std::shared_ptr<int> open_;
    std::size_t position_ = 0;
    bool closed_ = false;
};

/// A row with the columns that a query asks for, under the names that it gives them.
FakeDatabase::Row selected(const FakeDatabase::Row& row, const std::string& list)
{
    static const std::regex column(R"((\w+)(?:\s+[Aa][Ss]\s+(\w+))?)");
    FakeDatabase::Row result;
    for (std::sregex_iterator each(list.begin(), list.end(), column), end; each != end; ++each) {
        const auto found = row.find((*each)[1]);
        if (found == row.end())
            throw RunTimeError(databaseErrors::statementRefused, "Invalid column name");
        result[(*each)[2].matched ? (*each)[2] : (*each)[1]] = found->second;
    }
    return result;
}

/// What a value sorts by; Null comes first.
std::string sortKey(const Value& value)
{
    return isNull(value) ? std::string() : valueAsText(value);
}

} // namespace

class FakeCommand final : public DatabaseCommand {
public:
    explicit FakeCommand(FakeDatabase& database) : database_(database) {}

    void useActiveConnection() override { requireConnection(); }

    void setProcedure(const std::string& name) override { call_ = {name, {}}; }

    void refreshParameters() override
    {
        requireConnection();
        call_.parameters.clear();
        const auto found = database_.procedures_.find(call_.procedure);
        if (found == database_.procedures_.end())
            throw RunTimeError(databaseErrors::statementRefused,
                               "Could not find stored procedure '" + call_.procedure + "'.");
        parameters_ = found->second.parameters;
    }

    void assign(const std::string& parameter, const Value& value) override
    {
        if (std::find(parameters_.begin(), parameters_.end(), parameter) == parameters_.end())
            throw RunTimeError(runTimeErrors::itemNotInCollection);
        call_.parameters[parameter] = value;
    }

    void execute() override
    {
        requireConnection();
        const auto found = database_.procedures_.find(call_.procedure);
        if (found == database_.procedures_.end())
            throw RunTimeError(databaseErrors::statementRefused);
        database_.calls_.push_back(call_);
        if (found->second.work) found->second.work(call_);
    }

private:
    void requireConnection() const
    {
        if (database_.state() == 0) throw RunTimeError(runTimeErrors::connectionClosed);
    }

    FakeDatabase& database_;
    FakeDatabase::Call call_;
    std::vector<std::string> parameters_;
};

FakeDatabase& FakeDatabase::withView(const std::string& view)
{
    views_[view];
    return *this;
}

FakeDatabase& FakeDatabase::withRow(const std::string& view, Row row)
{
    views_[view].push_back(std::move(row));
    return *this;
}

FakeDatabase& FakeDatabase::withProcedure(const std::string& name,
                                          std::vector<std::string> parameters,
                                          std::function<void(const Call&)> work)
{
    procedures_[name] = {std::move(parameters), std::move(work)};
    return *this;
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
                             for (auto& row : views_["vw_LoggerDiagnosticGrid"])
                                 if (row["ObjectId"] == call.parameters.at("@ObjectId"))
                                     row["Flags"] = call.parameters.at("@Flags");
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
                             for (auto& row : views_["vw_ConfigurationValue"])
                                 if (row["FullName"] == call.parameters.at("@FullName"))
                                     for (const auto& [parameter, given] : call.parameters)
                                         if (beginsWith(parameter, "@Value")) row["Value"] = given;
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
    for (const auto& row : views_.at("vw_LoggerDiagnosticGrid"))
        if (row.at("Name") == Value(component)) return valueAsInteger32(row.at("Flags"));
    return 0;
}

void FakeDatabase::setFlags(const std::string& component, std::int32_t flags)
{
    for (auto& row : views_.at("vw_LoggerDiagnosticGrid"))
        if (row.at("Name") == Value(component)) row["Flags"] = flags;
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
    static const std::regex form(
        R"(SELECT (.+) F[Rr][Oo][Mm] (\w+)(?: WHERE (\w+) = '([^']*)')?(?: ORDER BY (\w+))?)");
    std::smatch parts;
    if (!std::regex_match(query, parts, form))
        throw RunTimeError(databaseErrors::statementRefused, "Incorrect syntax");
    const auto view = views_.find(parts[2]);
    if (view == views_.end())
        throw RunTimeError(databaseErrors::noSuchTable,
                           "Invalid object name '" + parts[2].str() + "'.");
    std::vector<std::size_t> places;
    for (std::size_t place = 0; place < view->second.size(); ++place)
        if (!parts[3].matched || view->second[place].at(parts[3]) == Value(parts[4].str()))
            places.push_back(place);
    if (parts[5].matched)
        std::stable_sort(places.begin(), places.end(), [&](std::size_t left, std::size_t right) {
            return sortKey(view->second[left].at(parts[5])) <
                   sortKey(view->second[right].at(parts[5]));
        });
    const auto present = [this, places, name = parts[2].str(),
                          list = parts[1].str()](std::size_t position) {
        return selected(views_.at(name)[places[position]], list);
    };
    std::vector<Row> rows;
    for (std::size_t position = 0; position < places.size(); ++position)
        rows.push_back(present(position));
    return std::make_unique<FakeRecordset>(std::move(rows), present, cursor, openRecordsets_);
}

std::unique_ptr<DatabaseCommand> FakeDatabase::createCommand()
{
    return std::make_unique<FakeCommand>(*this);
}
