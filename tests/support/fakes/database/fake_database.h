#pragma once

#include "platform/database.h"
#include "support/fakes/database/fake_database_query.h"

#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

/// A database in memory that keeps every promise of database.h.
///
/// It understands the queries that `queryResult` does and refuses others as a server does.
class FakeDatabase final : public DatabaseConnection {
public:
    using Row = FakeDatabaseRow;

    /// One call of a stored procedure: values by parameter name, as the procedure spells it.
    struct Call {
        std::string procedure;
        std::map<std::string, Value> parameters;
    };

    /// Adds a row to a view, and the view with it; its columns become the view's.
    FakeDatabase& withRow(const std::string& view, Row row);
    FakeDatabase& withView(const std::string& view, std::vector<std::string> columns);

    /// A stored procedure with its parameters, such as "@Name"; `work` runs at each call, is given
    /// Null for what was not assigned, and may throw.
    FakeDatabase& withProcedure(const std::string& name, std::vector<std::string> parameters,
                                std::function<void(const Call&)> work = {});

    /// The view of the diagnostic grid, as yet without components.
    FakeDatabase& withEmptyGrid();

    /// A component of the diagnostic grid; and the grid's procedure, which writes its flags.
    FakeDatabase& withComponent(const std::string& name, std::int32_t flags,
                                std::int32_t defaultFlags);

    /// A configuration value; and the procedure that writes it.
    FakeDatabase& withConfiguration(const std::string& name, Value value, std::int32_t type);

    /// Opening fails from now on, or works again.
    FakeDatabase& unreachable(bool is = true);

    /// Every query whose text holds `part` raises `number` from now on.
    FakeDatabase& failing(const std::string& part, int number);

    /// The connection is lost, as when the server starts anew.
    void breakConnection() { state_ = 0; }

    /// The connection as it stands after a successful open.
    FakeDatabase& opened();

    /// Calls so far, oldest first, with what was assigned alone.
    const std::vector<Call>& calls() const { return calls_; }
    const std::vector<std::string>& queries() const { return queries_; }
    /// How each of `queries` was opened.
    const std::vector<std::pair<CursorKind, LockKind>>& cursors() const { return cursors_; }
    const std::vector<std::string>& connectionStrings() const { return connectionStrings_; }

    /// Recordsets that nobody closed, also those that were let go without it.
    int openRecordsets() const { return *openRecordsets_; }

    std::int32_t flagsOf(const std::string& component) const;

    /// Changes a component's word, as another program does.
    void setFlags(const std::string& component, std::int32_t flags);

    /// Changes the word of an object id, as the grid's procedure does.
    void writeFlags(const Value& objectId, const Value& flags);

    /// Takes a component away, as another program does.
    void removeComponent(const std::string& component);

    int state() const override { return state_; }
    void open(const std::string& connectionString, const std::string& user,
              const std::string& password) override;
    int errorCount() const override { return errors_; }
    std::unique_ptr<DatabaseRecordset> openRecordset(const std::string& query, CursorKind cursor,
                                                     LockKind lock) override;
    std::unique_ptr<DatabaseCommand> createCommand() override;

private:
    friend class FakeCommand;

    struct Procedure {
        std::vector<std::string> parameters;
        std::function<void(const Call&)> work;
    };

    FakeDatabaseViews views_;
    std::map<std::string, Procedure, NameOrder> procedures_;
    std::vector<std::pair<std::string, int>> failures_;
    std::vector<Call> calls_;
    std::vector<std::string> queries_;
    std::vector<std::pair<CursorKind, LockKind>> cursors_;
    std::vector<std::string> connectionStrings_;
    std::shared_ptr<int> openRecordsets_ = std::make_shared<int>(0);
    int state_ = 0;
    int errors_ = 0;
    bool unreachable_ = false;
};
