#pragma once

#include "gather/gather_tool.h"
#include "gather/importers/data_import.h"
#include "gather/importers/diagnostic_import.h"

#include <initializer_list>
#include <memory>
#include <string>

/// A tool with an open "tblTraces", and a time frame of the whole of 8 October 2005.
struct ImportTool : GatherTool {
    ImportTool()
    {
        traceDatabase = traceDatabases.openDatabase("C:\\Out\\trace.mdb");
        traces = traceDatabase->openRecordset("tblTraces");
    }

    std::unique_ptr<TraceDatabase> traceDatabase;
    std::unique_ptr<TraceRecordset> traces;
    Date start = dateOf(2005, 10, 8);
    Date end = dateOf(2005, 10, 8, 23, 59, 59);

    /// A log of the server, made at a moment, with these lines.
    ImportTool& withLog(const std::string& name, Date created,
                        std::initializer_list<std::string> lines)
    {
        std::string text;
        for (const std::string& line : lines) text += line + "\r\n";
        files.with("C:\\Logs\\" + name, text).created("C:\\Logs\\" + name, created);
        return *this;
    }

    void importLog(const std::string& name)
    {
        mdlLogs::processOrvanLogFileToDB(context, name, *traces, current, label, start, end);
    }

    void importData(const std::string& name)
    {
        mdlLogs::processOrvanDataFileToDB(context, name, *traces, current, label, start, end);
    }

    const std::vector<FakeTraceRow>& rows() const { return traceDatabases.rows("tblTraces"); }

    /// A column of all rows, "Null" where there is no value.
    std::vector<std::string> column(const std::string& name) const
    {
        std::vector<std::string> values;
        for (const FakeTraceRow& row : rows())
            values.push_back(row.count(name) == 0 ? "Null" : row.at(name));
        return values;
    }
};

/// A raw line at a time of day.
inline std::string lineAt(const std::string& time, const std::string& trace = "text")
{
    return time + ",Conv,1234,CallFlow,7," + trace;
}
