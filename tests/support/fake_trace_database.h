#pragma once

#include "platform/trace_database.h"

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// A column as a fake table has it.
struct FakeTraceColumn {
    enum class Type { text, integer, longInteger };

    std::string name;
    Type type = Type::text;
    std::size_t characters = 255; ///< of a text
    bool allowZeroLength = true;
    std::optional<std::string> defaultValue = std::nullopt;
};

/// A stored row: the text of each value by column name; a column that is missing is Null.
using FakeTraceRow = std::map<std::string, std::string>;

struct FakeTraceTable {
    std::vector<FakeTraceColumn> columns;
    std::vector<FakeTraceRow> rows;
};

/// What all objects of one fake database share.
struct FakeTraceState {
    std::map<std::string, FakeTraceTable> tables;
    std::vector<std::string> calls; ///< such as "addNew tblTraces", oldest first
    std::string failing;            ///< the call that is to fail
    int countdown = 0;              ///< how many such calls until it does; 0 for never
    int number = 0;                 ///< the error that it raises
    bool databaseOpen = false;

    /// Remembers a call, or raises what was asked for it.
    void note(const std::string& call);
};

/// A trace database in memory with the three tables of a gather.
class FakeTraceDatabaseEngine final : public TraceDatabaseEngine {
public:
    FakeTraceDatabaseEngine();

    /// A path that can be opened. Without any, every path can.
    FakeTraceDatabaseEngine& with(const std::string& path);

    /// The `nth` call from now on whose name is `call` raises `number`. Calls are "openDatabase",
    /// "openRecordset tblTraces", "addNew tblTraces", "set tblTraces.Source", "update tblTraces",
    /// "close tblTraces" and "close".
    FakeTraceDatabaseEngine& failing(const std::string& call, int nth, int number);

    /// Rows of a table, oldest first. They stay when the database is closed.
    const std::vector<FakeTraceRow>& rows(const std::string& table) const;

    const std::vector<std::string>& calls() const { return state_->calls; }

    /// Paths that were opened, oldest first.
    const std::vector<std::string>& opened() const { return opened_; }

    std::unique_ptr<TraceDatabase> openDatabase(const std::string& path) override;

private:
    std::shared_ptr<FakeTraceState> state_;
    std::vector<std::string> paths_;
    std::vector<std::string> opened_;
};
