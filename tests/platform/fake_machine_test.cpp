#include "platform/event_log_exporter_contract.h"
#include "platform/event_reporter_contract.h"
#include "platform/file_system_contract.h"
#include "platform/languages_contract.h"
#include "platform/processes_contract.h"
#include "platform/registry_contract.h"
#include "platform/time_zone_contract.h"
#include "support/test_tool.h"

namespace {

/// The fakes as the contracts want a machine.
class FakeMachine {
public:
    FakeMachine() { logs_.with("Application", "2005-10-08 15:23:07,Information,S,1,C,text\r\n"); }
    explicit FakeMachine(bool extended) { reporter_.extended(extended); }

    FakeFileSystem& files() { return files_; }
    FakeRegistry& registry() { return registry_; }
    FakeClock& clock() { return clock_; }
    FakeTimeZone& timeZone() { return timeZone_; }
    FakeEventReporter& reporter() { return reporter_; }
    FakeEventLogExporter& exporter() { return logs_; }
    FakeProcesses& processes() { return processes_; }
    FakeWorkstation& workstation() { return workstation_; }
    FakeHostModule& module() { return module_; }
    FakeLanguages& languages() { return languages_; }

    void makeReadOnly(const std::string& path) { files_.readOnly(path); }
    std::string program() const { return "C:\\Tools\\cabmaker.exe"; }

    std::string missingProgram()
    {
        processes_.missing("C:\\none.exe");
        return "C:\\none.exe";
    }

    std::string add(const std::string& code, int id, const std::string& text)
    {
        const std::string path = module_.folderPath + "\\ZMKbrandingres_" + code + ".dll";
        languages_.with(path, {{id, text}});
        return path;
    }

private:
    FakeClock clock_;
    FakeFileSystem files_{clock_};
    FakeRegistry registry_;
    FakeTimeZone timeZone_;
    FakeEventReporter reporter_;
    FakeEventLogExporter logs_{files_};
    FakeProcesses processes_;
    FakeWorkstation workstation_;
    FakeHostModule module_;
    FakeLanguages languages_;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Fake, FileSystemContract, FakeMachine);
INSTANTIATE_TYPED_TEST_SUITE_P(Fake, RegistryContract, FakeMachine);
INSTANTIATE_TYPED_TEST_SUITE_P(Fake, EventReporterContract, FakeMachine);
INSTANTIATE_TYPED_TEST_SUITE_P(Fake, EventLogExporterContract, FakeMachine);
INSTANTIATE_TYPED_TEST_SUITE_P(Fake, TimeZoneContract, FakeMachine);
INSTANTIATE_TYPED_TEST_SUITE_P(Fake, LanguagesContract, FakeMachine);
INSTANTIATE_TYPED_TEST_SUITE_P(Fake, ClockContract, FakeMachine);
INSTANTIATE_TYPED_TEST_SUITE_P(Fake, ProcessesContract, FakeMachine);
INSTANTIATE_TYPED_TEST_SUITE_P(Fake, IdentityContract, FakeMachine);

} // namespace
