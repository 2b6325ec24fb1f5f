#include "backends/site/files/site_file.h"

#include "runtime/run_time_error.h"

FileDescriptor openSiteFile(const RootFolder& site, const std::string& path,
                            const FileOpening& opening, int missing)
try {
    return site.openFile(path, opening, missing);
} catch (const RunTimeError& error) {
    if (error.description().find(path) != std::string::npos) throw;
    throw RunTimeError(error.number(), path + ": " + error.description());
}
