#include "platform/clock_contract.h"
#include "platform/event_reporter_contract.h"
#include "platform/host_module_contract.h"
#include "platform/languages_contract.h"
#include "platform/missing_event_reporter_contract.h"
#include "platform/processes_contract.h"
#include "platform/registry_contract.h"
#include "platform/time_zone_contract.h"
#include "platform/workstation_contract.h"
#include "support/fakes/fake_clock.h"
#include "support/fakes/fake_event_reporter.h"
#include "support/fakes/fake_host_module.h"
#include "support/fakes/fake_languages.h"
#include "support/fakes/fake_processes.h"
#include "support/fakes/fake_registry.h"
#include "support/fakes/fake_time_zone.h"
#include "support/fakes/fake_workstation.h"

namespace {

/// The fakes as the contracts want a machine.
class FakeMachine {
public:
    explicit FakeMachine(bool extended = false)
    {
        reporter_.extended(extended);
        zoneWithoutRule_.fixed(7 * 60);
        workstation_.machine->computerName = "VOICE01";
        module_.command = "host.exe /now";
        developersModule_.developmentHost = true;
    }

    Registry& registry() { return registry_; }
    Clock& clock() { return clock_; }
    TimeZoneService& timeZone() { return timeZone_; }
    TimeZoneService& zoneWithoutRule() { return zoneWithoutRule_; }
    EventReporter& reporter() { return reporter_; }
    Processes& processes() { return processes_; }
    Workstation& workstation() { return workstation_; }
    HostModule& module() { return module_; }
    HostModule& developersModule() { return developersModule_; }
    Languages& languages() { return languages_; }

    std::string commandLine() const { return "host.exe /now"; }
    std::string computer() const { return "VOICE01"; }
    std::string user() const { return "support"; }

    static std::vector<std::string> inOrderOfStore(std::vector<std::string> names) { return names; }

    std::vector<std::string> heard() const { return developersModule_.debugTexts; }

    std::string program() const { return "C:\\My Tools\\cabmaker.exe"; }
    void letProgramFail() { processes_.reporting({"it ended with status 1", false}); }

    std::string missingProgram()
    {
        processes_.missing("C:\\none.exe");
        return "C:\\none.exe";
    }

    std::string forbiddenProgram()
    {
        processes_.forbidden("C:\\other.exe");
        return "C:\\other.exe";
    }

    std::string add(const std::string& code, int id, const std::string& text)
    {
        const std::string path = module_.folderPath + "\\ZMKbrandingres_" + code + ".dll";
        languages_.with(path, {{id, text}});
        return path;
    }

private:
    FakeClock clock_;
    FakeRegistry registry_;
    FakeTimeZone timeZone_;
    FakeTimeZone zoneWithoutRule_;
    FakeEventReporter reporter_;
    FakeProcesses processes_;
    FakeWorkstation workstation_;
    FakeHostModule module_;
    FakeHostModule developersModule_;
    FakeLanguages languages_;
};

/// A server that installs no event reporter.
class FakeMachineWithoutReporter {
public:
    FakeMachineWithoutReporter() { reporter_.missing(); }
    EventReporter& reporter() { return reporter_; }

private:
    FakeEventReporter reporter_;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Fake, RegistryContract, FakeMachine);
INSTANTIATE_TYPED_TEST_SUITE_P(Fake, EventReporterContract, FakeMachine);
INSTANTIATE_TYPED_TEST_SUITE_P(Fake, MissingEventReporterContract, FakeMachineWithoutReporter);
INSTANTIATE_TYPED_TEST_SUITE_P(Fake, TimeZoneContract, FakeMachine);
INSTANTIATE_TYPED_TEST_SUITE_P(Fake, LanguagesContract, FakeMachine);
INSTANTIATE_TYPED_TEST_SUITE_P(Fake, ClockContract, FakeMachine);
INSTANTIATE_TYPED_TEST_SUITE_P(Fake, ProcessesContract, FakeMachine);
INSTANTIATE_TYPED_TEST_SUITE_P(Fake, WorkstationContract, FakeMachine);
INSTANTIATE_TYPED_TEST_SUITE_P(Fake, HostModuleContract, FakeMachine);

} // namespace
