#include "backends/site/site.h"

#include "backends/site/code_pages.h"

#include "backends/site/database/sqlite_handle.h"
#include "backends/site/files/tool_folder.h"
#include "runtime/run_time_error.h"
#include "system/file_facts.h"
#include "system/machine_path.h"
#include "system/process.h"
#include "system/whole_file.h"

#include <utility>

namespace {

/// The folder as given, once it is known to hold a site. Raises 76.
const std::string& requireSite(const std::string& folder)
{
    if (!isSite(folder))
        throw RunTimeError(runTimeErrors::pathNotFound,
                           folder + " is not a site (no site.ini, registry.reg or drive_c)");
    return folder;
}

PosixTimeZone zoneOf(const SiteSettings& settings)
{
    return settings.timeZone ? parsePosixTimeZone(*settings.timeZone) : machineTimeZone();
}

/// Makes a folder of C: that every server has. Nobody's leave to write is no error.
void makeServerFolder(const SitePlace& place)
{
    using namespace runTimeErrors;
    try {
        place.root.makeFolder(place.path);
    } catch (const RunTimeError& error) {
        if (error.number() != fileAlreadyExists && error.number() != permissionDenied) throw;
    }
}

std::string wholePath(const std::string& path)
{
    return path.empty() ? path : wholePathOf(path);
}

/// The site's settings, with the tool folder of the person's own choice, if any.
SiteSettings settingsOf(SitePaths& paths, const HostFacts& host)
{
    SiteSettings settings = readSiteSettings(paths.root());
    if (host.toolFolder.empty()) return settings;
    paths.permit(host.toolFolder);
    settings.toolFolder = host.toolFolder;
    return settings;
}

/// What may be started. The viewer is installed beside the program that runs, where there is one.
InstalledPrograms installedPrograms(const std::string& installedData)
{
    InstalledPrograms programs;
    if (!installedData.empty()) programs.cabinetMaker = installedData + "/cabmaker.exe";
    const std::string running = ownProgramFile();
    if (!running.empty()) programs.viewer = folderPathOf(running) + "/orvandiag-viewer";
    return programs;
}

} // namespace

bool isSite(const std::string& folder)
{
    // What can't be opened as it should counts: the opening tells why.
    for (const char* name : {"/site.ini", "/registry.reg"})
        if (const auto facts = unfollowedFactsOf(folder + name);
            facts && facts->kind != FileKind::folder)
            return true;
    const auto drive = unfollowedFactsOf(folder + "/drive_c");
    return drive && (drive->kind == FileKind::folder || drive->kind == FileKind::link);
}

Site::Site(const std::string& folder, const std::string& installedData, const HostFacts& host,
           SiteUse use)
    : installedData_(wholePath(installedData)), paths_(requireSite(folder)),
      settings_(settingsOf(paths_, host)), zone_(zoneOf(settings_)), files_(paths_, zone_),
      registry_(paths_.root(), host.notice), clock_(zone_), timeZone_(zone_),
      workstation_(settings_), eventReporter_(paths_.root(), workstation_.details()->computerName,
                                              settings_.logFields, clock_),
      eventLogExporter_(paths_), processes_(paths_, installedPrograms(installedData_)),
      module_(settings_.toolFolder, host),
      languages_(host.language ? host.language : settings_.language, paths_),
      database_(databaseFile()), xml_(files_, codePage())
{
    registry_.keyExists(registryRoot::localMachine,
                        ""); // a damaged registry shows here, before any change
    paths_.place("C:\\");    // so does a drive that leads out of the site
    paths_.standIn(settings_.toolFolder, lackingInToolFolder(toolFolder(), installedData_));
    registry_.beforeWrites([this] { database_.settle(); });
    database_.tellOfWaits(host.notice);
    database_.openFor(DatabaseUse::look);
    if (use == SiteUse::change) startChanges();
}

void Site::startChanges()
{
    paths_.standIn(settings_.toolFolder, {});
    sweepReplacementFiles(paths_.root(), "");
    makeServerFolder({paths_.root(), "drive_c"});
    makeServerFolder(paths_.place(files_.specialFolder(SpecialFolder::temporary)));
    supplyToolFolder(toolFolder(), installedData_);
    database_.openFor(DatabaseUse::change);
}

/// Found anew each time: it may be there by now.
SitePlace Site::toolFolder() const
{
    return paths_.place(settings_.toolFolder);
}

Platform Site::platform(Desktop& desktop, TraceDatabaseEngine& traceDatabases,
                        DatabaseConnection& directory)
{
    return {files_,     registry_,     clock_,  timeZone_,  eventReporter_, eventLogExporter_,
            processes_, workstation_,  module_, languages_, desktop,        directory,
            xml_,       traceDatabases};
}

CodePage Site::codePage() const
{
    return codePageOf(settings_.codePage).value();
}
