#include "backends/site/site.h"

#include "platform/event_log_exporter_contract.h"
#include "platform/event_reporter_contract.h"
#include "platform/file_system_contract.h"
#include "platform/languages_contract.h"
#include "platform/processes_contract.h"
#include "platform/registry_contract.h"
#include "platform/time_zone_contract.h"
#include "support/fake_desktop.h"
#include "support/fake_trace_database.h"
#include "support/temporary_folder.h"

namespace {

namespace fs = std::filesystem;

/// A site as the contracts want a machine.
class SiteMachine {
public:
    explicit SiteMachine(bool extended = false)
    {
        folder_.write("site.ini", std::string("[site]\ntimeZone=PST8PDT,M3.2.0,M11.1.0\n") +
                                      (extended ? "logFields=extended\n" : ""));
        folder_.write("eventlogs/Application.jsonl", "{\"id\":1}\n");
        folder_.makeFolder("drive_c/Windows");
        site_ = std::make_unique<Site>(folder_.path(), installed_.path(),
                                       HostFacts{{1, 0, 0}, "", false, {}, {}});
        fs::remove(folder_ / "drive_c/OrvanDiagnostics");
    }

    FileSystem& files() { return platform().files; }
    Registry& registry() { return platform().registry; }
    Clock& clock() { return platform().clock; }
    TimeZoneService& timeZone() { return platform().timeZone; }
    EventReporter& reporter() { return platform().eventReporter; }
    EventLogExporter& exporter() { return platform().eventLogExporter; }
    Processes& processes() { return platform().processes; }
    Workstation& workstation() { return platform().workstation; }
    HostModule& module() { return platform().module; }
    Languages& languages() { return platform().languages; }

    void makeReadOnly(const std::string& path)
    {
        fs::permissions(site_->paths().machinePath(path), fs::perms::owner_write,
                        fs::perm_options::remove);
    }

    std::string program()
    {
        folder_.write("drive_c/Tools/cabmaker.exe");
        fs::copy_file("/bin/true", installed_ / "cabmaker.exe",
                      fs::copy_options::overwrite_existing);
        return "C:\\Tools\\cabmaker.exe";
    }

    std::string missingProgram() const { return "C:\\none.exe"; }

    std::string add(const std::string& code, int id, const std::string& text)
    {
        folder_.write("drive_c/OrvanDiagnostics/ZMKbrandingres_" + code + ".txt",
                      std::to_string(id) + " = " + text + "\n");
        return "C:\\OrvanDiagnostics\\ZMKbrandingres_" + code + ".dll";
    }

private:
    Platform platform() { return site_->platform(desktop_, traceDatabases_); }

    TemporaryFolder folder_;
    TemporaryFolder installed_;
    FakeDesktop desktop_;
    FakeTraceDatabaseEngine traceDatabases_;
    std::unique_ptr<Site> site_;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Site, FileSystemContract, SiteMachine);
INSTANTIATE_TYPED_TEST_SUITE_P(Site, RegistryContract, SiteMachine);
INSTANTIATE_TYPED_TEST_SUITE_P(Site, EventReporterContract, SiteMachine);
INSTANTIATE_TYPED_TEST_SUITE_P(Site, EventLogExporterContract, SiteMachine);
INSTANTIATE_TYPED_TEST_SUITE_P(Site, TimeZoneContract, SiteMachine);
INSTANTIATE_TYPED_TEST_SUITE_P(Site, LanguagesContract, SiteMachine);
INSTANTIATE_TYPED_TEST_SUITE_P(Site, ClockContract, SiteMachine);
INSTANTIATE_TYPED_TEST_SUITE_P(Site, ProcessesContract, SiteMachine);
INSTANTIATE_TYPED_TEST_SUITE_P(Site, IdentityContract, SiteMachine);

} // namespace
