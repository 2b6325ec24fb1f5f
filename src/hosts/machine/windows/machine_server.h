#pragma once

#include "backends/jet/jet_engine.h"
#include "backends/windows/events/windows_event_log_exporter.h"
#include "backends/windows/events/windows_event_reporter.h"
#include "backends/windows/files/windows_file_system.h"
#include "backends/windows/language/windows_languages.h"
#include "backends/windows/windows_clock.h"
#include "backends/windows/windows_host_module.h"
#include "backends/windows/windows_processes.h"
#include "backends/windows/windows_registry.h"
#include "backends/windows/windows_time_zone.h"
#include "backends/windows/windows_workstation.h"
#include "backends/xml/libxml_documents.h"
#include "hosts/common/recorded_events.h"
#include "hosts/common/server_access.h"
#include "hosts/machine/machine_database.h"
#include "hosts/machine/open_machine.h"

/// The machine that this runs on as a server. Every path is one of its own, so that a look writes
/// nowhere.
class MachineServer final : public ServerAccess {
public:
    explicit MachineServer(const MachineFacts& facts);

    Platform platform(Desktop& desktop) override;
    ServerDatabase& database() override { return database_; }
    CodePage codePage() const override;
    void startChanges() override {}

    /// What it does not take it refuses one by one.
    bool writable() const override { return true; }

    bool isServers(const std::string&) const override { return true; }
    std::string machinePath(const std::string& path) override;
    std::string toolPath(const std::string& typed) override { return machinePath(typed); }
    std::string name() const override { return "this server"; }
    HeldTurn takeTurn(const std::function<void(const std::string&)>& notice) override;
    void exportEventsFor(CsvReader reader) override { eventLogExporter_.writeFor(reader); }
    std::int64_t endOfEvents() const override;
    std::vector<ReportedEvent> eventsSince(std::int64_t place) const override;
    std::optional<Sentence> lackOfServer() const override;

private:
    WindowsFileSystem files_;
    WindowsRegistry registry_;
    WindowsClock clock_;
    WindowsTimeZone timeZone_;
    WindowsEventReporter reporter_;
    RecordedEvents eventReporter_;
    WindowsEventLogExporter eventLogExporter_;
    WindowsProcesses processes_;
    WindowsWorkstation workstation_;
    WindowsHostModule module_;
    WindowsLanguages languages_;
    MachineDatabase database_;
    LibxmlDocuments xml_;
    jet::JetEngine traceDatabases_;
};
