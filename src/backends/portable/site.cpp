#include "backends/portable/site.h"

#include "backends/portable/code_pages.h"

#include "backends/portable/posix_errors.h"
#include "backends/portable/sqlite_handle.h"
#include "backends/portable/tool_folder.h"

#include <cerrno>
#include <filesystem>
#include <sys/stat.h>
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
void makeServerFolder(const std::string& path)
{
    if (::mkdir(path.c_str(), 0777) == 0 || errno == EEXIST || errno == EACCES || errno == EROFS)
        return;
    throw posixError(errno, runTimeErrors::pathNotFound);
}

/// What may be started. The viewer is installed beside the program that runs, where there is one.
InstalledPrograms installedPrograms(const std::string& installedData)
{
    InstalledPrograms programs;
    if (!installedData.empty()) programs.cabinetMaker = installedData + "/cabmaker.exe";
    std::error_code none;
    const auto running = std::filesystem::read_symlink("/proc/self/exe", none);
    if (!none) programs.viewer = running.parent_path() / "orvandiag-viewer";
    return programs;
}

} // namespace

bool isSite(const std::string& folder)
{
    struct stat facts {};
    for (const char* name : {"/site.ini", "/registry.reg"})
        if (::stat((folder + name).c_str(), &facts) == 0 && S_ISREG(facts.st_mode)) return true;
    return ::stat((folder + "/drive_c").c_str(), &facts) == 0 && S_ISDIR(facts.st_mode);
}

Site::Site(const std::string& folder, std::string installedData, HostFacts host, SiteUse use)
    : installedData_(std::move(installedData)), paths_(requireSite(folder)),
      settings_(readSiteSettings(paths_.siteFolder() + "/site.ini")), zone_(zoneOf(settings_)),
      files_(paths_, zone_), registry_(paths_.siteFolder() + "/registry.reg"), clock_(zone_),
      timeZone_(zone_), workstation_(settings_),
      eventReporter_(paths_.siteFolder() + "/eventlogs", workstation_.details()->computerName,
                     settings_.logFields, clock_),
      eventLogExporter_(paths_.siteFolder() + "/eventlogs", paths_),
      processes_(paths_, installedPrograms(installedData_)),
      module_(settings_.toolFolder, std::move(host)), languages_(settings_.language, paths_),
      database_(databaseFile()), xml_(files_, codePage())
{
    registry_.keyExists(HKEY_LOCAL_MACHINE, ""); // a damaged registry shows here, before any change
    const std::string& toolFolder = settings_.toolFolder;
    paths_.standIn(toolFolder, lackingInToolFolder(paths_.machinePath(toolFolder), installedData_));
    database_.openFor(DatabaseUse::look);
    if (use == SiteUse::change) startChanges();
}

void Site::startChanges()
{
    paths_.standIn(settings_.toolFolder, {});
    makeServerFolder(paths_.siteFolder() + "/drive_c");
    makeServerFolder(paths_.machinePath(files_.specialFolder(SpecialFolder::temporary)));
    supplyToolFolder(paths_.machinePath(settings_.toolFolder), installedData_);
    database_.openFor(DatabaseUse::change);
}

Platform Site::platform(Desktop& desktop, TraceDatabaseEngine& traceDatabases)
{
    return {files_,     registry_,     clock_,  timeZone_,  eventReporter_, eventLogExporter_,
            processes_, workstation_,  module_, languages_, desktop,        database_,
            xml_,       traceDatabases};
}

CodePage Site::codePage() const
{
    return codePageOf(settings_.codePage).value();
}
