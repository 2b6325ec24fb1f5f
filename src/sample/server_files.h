#pragma once

#include "backends/site/site_settings.h"
#include "sample/log_plan.h"

#include <filesystem>
#include <vector>

namespace sample {

/// What the parts of the sample server have in common.
struct ServerIdentity {
    const char* computer = "VOICE01";
    LogFields logFields = LogFields::basic;
};

/// Where things lie below the site's folder.
std::filesystem::path logFolder(const std::filesystem::path& site);
std::filesystem::path installFolder(const std::filesystem::path& site);

/// Fills in what the server installed: the drive's folders, `site.ini`, the registry with the
/// current logs of `plan`, grid catalogues, localised message files, macro trace definitions; from
/// the templates and files of `data`, the folder of what ships with the tool.
/// Raises 53 for a file missing there, and as `OutputFile`.
void writeServerFiles(const std::filesystem::path& site, const std::filesystem::path& data,
                      const ServerIdentity& identity, const std::vector<LogPeriod>& plan);

/// Makes the directory database from its schema and rows. Raises 57 with the database's own words.
void writeDirectoryDatabase(const std::filesystem::path& site, const std::filesystem::path& data);

} // namespace sample
