#pragma once

#include "backends/site/site.h"
#include "support/error_of.h"
#include "support/fakes/fake_desktop.h"
#include "support/fakes/trace_database/fake_trace_database.h"
#include "support/temporary_folder.h"

#include <csignal>
#include <functional>
#include <memory>
#include <string>
#include <sys/resource.h>
#include <vector>

/// A site as the contracts of the platform's interfaces want a machine.
class SiteMachine {
public:
    explicit SiteMachine(bool extended = false)
    {
        folder_.write("site.ini", std::string("[site]\ncomputer=VOICE01\nuser=support\n"
                                              "timeZone=PST8PDT,M3.2.0,M11.1.0\n") +
                                      (extended ? "logFields=extended\n" : ""));
        folder_.write("eventlogs/Application.jsonl", "{\"id\":1}\n{\"id\":2}\n");
        folder_.makeFolder("drive_c/Windows");
        folder_.makeFolder("drive_d");
        site_ = std::make_unique<Site>(folder_.path(), installed_.path(), hostFacts(false));
        std::filesystem::remove(folder_ / "drive_c/OrvanDiagnostics");
    }

    FileSystem& files() { return platform().files; }
    Registry& registry() { return platform().registry; }
    Clock& clock() { return platform().clock; }
    TimeZoneService& timeZone() { return platform().timeZone; }
    TimeZoneService& zoneWithoutRule() { return zoneWithoutRule_; }
    EventReporter& reporter() { return platform().eventReporter; }
    EventLogExporter& exporter() { return platform().eventLogExporter; }
    Processes& processes() { return platform().processes; }
    Workstation& workstation() { return platform().workstation; }
    HostModule& module() { return platform().module; }
    HostModule& developersModule() { return developersModule_; }
    Languages& languages() { return platform().languages; }
    XmlService& xml() { return platform().xml; }

    std::string commandLine() const { return "host.exe /now"; }
    std::string computer() const { return "VOICE01"; }
    std::string user() const { return "support"; }

    static std::vector<std::string> inOrderOfStore(std::vector<std::string> names) { return names; }

    std::vector<std::string> heard() const { return heard_; }

    void makeReadOnly(const std::string& path)
    {
        namespace fs = std::filesystem;
        fs::permissions(site_->paths().machinePath(path), fs::perms::owner_write,
                        fs::perm_options::remove);
    }

    /// Calls `work` while no file of this program may grow beyond so many bytes.
    void withRoomFor(std::int64_t bytes, const std::function<void()>& work)
    {
        rlimit usual{};
        ::getrlimit(RLIMIT_FSIZE, &usual);
        const rlimit tight{static_cast<rlim_t>(bytes), usual.rlim_max};
        const auto handler = std::signal(SIGXFSZ, SIG_IGN);
        ::setrlimit(RLIMIT_FSIZE, &tight);
        work();
        ::setrlimit(RLIMIT_FSIZE, &usual);
        std::signal(SIGXFSZ, handler);
    }

    std::string program()
    {
        folder_.write("drive_c/My Tools/cabmaker.exe");
        install("/bin/true");
        return "C:\\My Tools\\cabmaker.exe";
    }

    void letProgramFail()
    {
        failing_ = true;
        install("/bin/false");
    }

    std::string missingProgram() const { return "C:\\none.exe"; }

    std::string forbiddenProgram()
    {
        folder_.write("drive_c/other.exe");
        return "C:\\other.exe";
    }

    std::string add(const std::string& code, int id, const std::string& text)
    {
        folder_.write("drive_c/OrvanDiagnostics/ZMKbrandingres_" + code + ".txt",
                      std::to_string(id) + " = " + text + "\n");
        return "C:\\OrvanDiagnostics\\ZMKbrandingres_" + code + ".dll";
    }

private:
    Platform platform() { return site_->platform(desktop_, traceDatabases_); }

    HostFacts hostFacts(bool development)
    {
        HostFacts facts{{4, 2, 17}, "host.exe /now", development, {}, {}};
        if (development)
            facts.debugListener = [this](std::string_view text) { heard_.emplace_back(text); };
        return facts;
    }

    void install(const char* program)
    {
        if (failing_) program = "/bin/false";
        std::filesystem::remove(installed_ / "cabmaker.exe");
        std::filesystem::copy_file(program, installed_ / "cabmaker.exe");
    }

    TemporaryFolder folder_;
    TemporaryFolder installed_;
    FakeDesktop desktop_;
    FakeTraceDatabaseEngine traceDatabases_;
    SiteTimeZone zoneWithoutRule_{parsePosixTimeZone("MST7")};
    std::vector<std::string> heard_;
    SiteHostModule developersModule_{"C:\\OrvanDiagnostics", hostFacts(true)};
    bool failing_ = false;
    std::unique_ptr<Site> site_;
};
