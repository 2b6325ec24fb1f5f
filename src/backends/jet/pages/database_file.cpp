#include "backends/jet/pages/database_file.h"

#include "backends/jet/errors.h"
#include "runtime/run_time_error.h"
#include "system/root_folder.h"

namespace jet {

FileDescriptor openDatabaseFile(const std::string& path, const FileOpening& opening)
try {
    return openMachineFile(path, opening, runTimeErrors::fileNotFound);
} catch (const RunTimeError& error) {
    if (error.number() == runTimeErrors::fileNotFound) raiseFileNotFound(path);
    raiseCannotOpen(path);
}

} // namespace jet
