#pragma once

#include "backends/site/database/site_database.h"
#include "backends/site/events/site_event_log_exporter.h"
#include "backends/site/events/site_event_reporter.h"
#include "backends/site/files/site_file_system.h"
#include "backends/site/language/site_languages.h"
#include "backends/site/registry/site_registry.h"
#include "backends/site/site_host_module.h"
#include "backends/site/site_processes.h"
#include "backends/site/site_settings.h"
#include "backends/site/site_workstation.h"
#include "backends/site/time/site_clock.h"
#include "backends/site/time/site_time_zone.h"
#include "backends/xml/libxml_documents.h"
#include "drives/site_paths.h"
#include "platform/platform.h"
#include "text/code_page.h"

#include <string>

/// Whether a folder of the machine is a site: it holds `site.ini`, `registry.reg` or `drive_c`.
bool isSite(const std::string& folder);

/// What a site is opened for.
enum class SiteUse {
    change,
    look, ///< nothing is made, supplied or changed by the opening, nor by what is asked afterwards
};

/// A server in a folder: every platform service but the desktop, which is the host's, and the trace
/// databases, which are another backend's.
class Site {
public:
    /// Opens the site in a folder of the machine. What its tool folder lacks is supplied from
    /// `installedData`, a folder of the machine; a place there that is empty or missing supplies
    /// nothing. For a look, what is missing is read there instead, and the directory database is
    /// one that may be read alone; what the other services are told to write is still written.
    /// Raises 76 for a folder that is no site, 321 for a damaged `site.ini` or `registry.reg`, and
    /// 70, 61, 57.
    Site(const std::string& folder, const std::string& installedData, const HostFacts& host,
         SiteUse use = SiteUse::change);

    Site(const Site&) = delete;
    Site& operator=(const Site&) = delete;

    /// Makes a site that was opened for a look one to change, as if it had been opened so. Its
    /// database must be closed still. Raises 70, 61, 57.
    void startChanges();

    /// The services, with the desktop, the trace databases and the directory database that the host
    /// composes. They live as long as the site.
    Platform platform(Desktop& desktop, TraceDatabaseEngine& traceDatabases,
                      DatabaseConnection& directory);

    /// The same with the site's own directory database.
    Platform platform(Desktop& desktop, TraceDatabaseEngine& traceDatabases)
    {
        return platform(desktop, traceDatabases, database_);
    }

    const std::string& folder() const { return paths_.siteFolder(); }

    /// The directory database, as a path of this machine; it need not be there.
    std::string databaseFile() const { return folder() + "/OrvanDirDb.sqlite"; }
    const SiteSettings& settings() const { return settings_; }

    /// How the server's log texts are encoded.
    CodePage codePage() const;

    SitePaths& paths() { return paths_; }
    const SitePaths& paths() const { return paths_; }
    SiteDatabase& database() { return database_; }
    SiteFileSystem& files() { return files_; }
    SiteRegistry& registry() { return registry_; }
    const SiteProcesses& processes() const { return processes_; }
    SiteEventLogExporter& eventLogExporter() { return eventLogExporter_; }

private:
    SitePlace toolFolder() const;

    std::string installedData_;
    SitePaths paths_;
    SiteSettings settings_;
    PosixTimeZone zone_;
    SiteFileSystem files_;
    SiteRegistry registry_;
    SiteClock clock_;
    SiteTimeZone timeZone_;
    SiteWorkstation workstation_;
    SiteEventReporter eventReporter_;
    SiteEventLogExporter eventLogExporter_;
    SiteProcesses processes_;
    SiteHostModule module_;
    SiteLanguages languages_;
    SiteDatabase database_;
    LibxmlDocuments xml_;
};
