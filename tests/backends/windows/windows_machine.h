#pragma once

#include "backends/windows/events/event_log_records.h"
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

#include <functional>
#include <set>
#include <string>
#include <vector>

/// This machine as the contracts of the platform's interfaces want one. The drives C: and D: are as
/// before when it goes; from the first call of `registry` on, the tool's hive is a key of the
/// test's own.
class WindowsMachine {
public:
    explicit WindowsMachine(bool extended = false);
    ~WindowsMachine();
    WindowsMachine(const WindowsMachine&) = delete;
    WindowsMachine& operator=(const WindowsMachine&) = delete;

    FileSystem& files() { return files_; }
    Registry& registry();
    Clock& clock() { return clock_; }
    TimeZoneService& timeZone() { return timeZone_; }
    TimeZoneService& zoneWithoutRule() { return zoneWithoutRule_; }
    EventReporter& reporter() { return reporter_; }
    EventLogExporter& exporter() { return exporter_; }
    Processes& processes() { return processes_; }
    Workstation& workstation() { return workstation_; }
    HostModule& module() { return module_; }
    HostModule& developersModule();
    Languages& languages() { return languages_; }

    std::string commandLine() const;
    std::string computer() const;
    std::string user() const;
    std::vector<std::string> heard() const;

    /// The order in which the store keeps keys that were made in another.
    static std::vector<std::string> inOrderOfStore(std::vector<std::string> names);

    void makeReadOnly(const std::string& path);
    void withRoomFor(std::int64_t bytes, const std::function<void()>& work);

    std::string program();
    void letProgramFail();
    std::string missingProgram() const { return "C:\\none.exe"; }
    std::string forbiddenProgram();

    std::string add(const std::string& code, int id, const std::string& text);

private:
    class OwnHive;
    class OwnDrives;

    HMODULE loadModule();

    std::unique_ptr<OwnDrives> drives_;
    std::unique_ptr<OwnHive> hive_;
    WindowsFileSystem files_;
    WindowsRegistry registry_;
    WindowsClock clock_;
    WindowsTimeZone timeZone_;
    WindowsTimeZone zoneWithoutRule_;
    WindowsEventReporter reporter_;
    WindowsEventLogExporter exporter_;
    WindowsProcesses processes_;
    WindowsWorkstation workstation_;
    HMODULE library_;
    WindowsHostModule module_;
    WindowsHostModule developersModule_;
    WindowsLanguages languages_;
    HANDLE held_ = INVALID_HANDLE_VALUE;
    void* listener_ = nullptr;
};
