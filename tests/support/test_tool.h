#pragma once

#include "backends/xml/libxml_documents.h"
#include "core/tool_context.h"
#include "support/error_of.h"
#include "support/fakes/database/fake_database.h"
#include "support/fakes/fake_clock.h"
#include "support/fakes/fake_desktop.h"
#include "support/fakes/fake_event_log_exporter.h"
#include "support/fakes/fake_event_reporter.h"
#include "support/fakes/fake_host_module.h"
#include "support/fakes/fake_languages.h"
#include "support/fakes/fake_processes.h"
#include "support/fakes/fake_registry.h"
#include "support/fakes/fake_time_zone.h"
#include "support/fakes/fake_workstation.h"
#include "support/fakes/files/fake_file_system.h"
#include "support/fakes/trace_database/fake_trace_database.h"

#include <string>
#include <vector>

/// A line of the tool's own log, taken apart.
struct LogLine {
    std::string time;     ///< "15:23:07"
    std::string level;    ///< "Info", "Warning", "ERROR", "VerInfo"
    std::string procName; ///< without the blanks that align it
    int indent = 0;       ///< blanks before the message
    std::string message;  ///< with the lines that a message of several goes on in
};

/// A fresh tool on a fresh machine: all services are fakes that a test may fill and look into.
///
///     TestTool tool;
///     tool.files.with("C:\\a.txt", "text").failing("C:\\a.txt", 70);
///     someRoutine(tool.context);
///     EXPECT_EQ(1u, tool.failures().size());
struct TestTool {
    TestTool();
    TestTool(const TestTool&) = delete;
    TestTool& operator=(const TestTool&) = delete;

    FakeClock clock;
    FakeFileSystem files{clock};
    FakeRegistry registry;
    FakeTimeZone timeZone;
    FakeEventReporter eventReporter;
    FakeEventLogExporter eventLogExporter{files};
    FakeProcesses processes;
    FakeWorkstation workstation;
    FakeHostModule module;
    FakeLanguages languages;
    FakeDesktop desktop;
    FakeDatabase database;
    LibxmlDocuments xml{files};
    FakeTraceDatabaseEngine traceDatabases;
    Platform platform;
    ToolContext context;

    /// All lines of the tool's log but its banner, oldest first; none before the first line.
    std::vector<LogLine> logLines();

    /// The messages logged as errors, or those of one routine alone.
    std::vector<std::string> failures();
    std::vector<std::string> failures(const std::string& procName);

    /// Whether some line of the log holds `text`.
    bool logged(const std::string& text);
};
