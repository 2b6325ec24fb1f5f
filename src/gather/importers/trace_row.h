#pragma once

#include "platform/trace_database.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

class ErrorTrap;
struct DiagnosticLine;
struct ToolContext;

/// A column of the row that is being added, looked up when it is first used.
class RowField {
public:
    RowField(TraceRecordset& recordset, std::string_view name) : recordset_(recordset), name_(name)
    {}

    /// Raises what TraceRecordset::field raises, and then a later use looks again.
    TraceField& operator*()
    {
        if (field_ == nullptr) field_ = &recordset_.field(name_);
        return *field_;
    }
    TraceField* operator->() { return &**this; }

private:
    TraceRecordset& recordset_;
    std::string_view name_;
    TraceField* field_ = nullptr;
};

/// The rows that an importer adds to "tblTraces", one for each line of a log.
///
/// Each statement runs through the importer's own trap.
class TraceRow {
public:
    TraceRow(ToolContext& tool, ErrorTrap& step, TraceRecordset& recordset);

    /// Adds a row of a diagnostic log.
    void addDiagnostic(const std::string& date, const std::string& process,
                       const DiagnosticLine& record);

    /// Adds a row of a data file: port, call id and highlight keep their defaults.
    void addData(const std::string& date, const std::string& process, const DiagnosticLine& record);

private:
    void begin(const std::string& date, const std::string& process, const DiagnosticLine& record);
    void setIndex(const std::string& process, const DiagnosticLine& record);
    void registerFilter();
    std::string filterValue();

    ToolContext& tool_;
    ErrorTrap& step_;
    TraceRecordset& recordset_;
    RowField date_{recordset_, "Date"};
    RowField process_{recordset_, "Process"};
    RowField source_{recordset_, "Source"};
    RowField traceNumber_{recordset_, "TraceNumber"};
    RowField component_{recordset_, "Component"};
    RowField traceLevel_{recordset_, "TraceLevel"};
    RowField port_{recordset_, "Port"};
    RowField trace_{recordset_, "Trace"};
    RowField callId_{recordset_, "CallId"};
    RowField highlight_{recordset_, "Highlight"};
    RowField qrvIndex_{recordset_, "qrvIndex"};
    std::string index_;
    std::string filterKey_;
};
