#pragma once

#include "platform/trace_database.h"

#include <memory>
#include <string>

class ErrorTrap;
struct ToolContext;

/// The trace database of one gather, from before its walk until after it.
///
/// Each statement runs through the pipeline's own trap. A table that could not be opened is one
/// whose every use raises 91.
class GatherDatabase {
public:
    GatherDatabase(ToolContext& tool, ErrorTrap& step);
    ~GatherDatabase();

    /// Makes the database in a folder, opens it and its three tables, and stores the macro trace
    /// definitions.
    void open(const std::string& destination);

    TraceRecordset& traces() { return *traces_; }

    /// Stores the filter values, and closes the tables and the database.
    void finish();

private:
    void openTable(std::unique_ptr<TraceRecordset>& table, std::string_view name);

    ToolContext& tool_;
    ErrorTrap& step_;
    std::unique_ptr<TraceDatabase> database_;
    std::unique_ptr<TraceRecordset> traces_;
    std::unique_ptr<TraceRecordset> macroTraces_;
    std::unique_ptr<TraceRecordset> uniqueFilters_;
};
