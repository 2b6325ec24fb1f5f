#include "runtime/run_time_error.h"
#include "sample/output_file.h"
#include "sample/server_files.h"
#include "system/machine_path.h"

#include <memory>
#include <sqlite3.h>
#include <string>

namespace sample {

namespace {

struct CloseDatabase {
    void operator()(sqlite3* database) const { sqlite3_close(database); }
};

void execute(sqlite3* database, const std::string& statements)
{
    if (sqlite3_exec(database, statements.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
        throw RunTimeError(runTimeErrors::deviceIo,
                           std::string("directory database: ") + sqlite3_errmsg(database));
}

} // namespace

void writeDirectoryDatabase(const std::filesystem::path& site, const std::filesystem::path& data)
{
    const std::filesystem::path path = site / "OrvanDirDb.sqlite";
    sqlite3* opened = nullptr;
    const int result = sqlite3_open(machineTextOf(path).c_str(), &opened);
    std::unique_ptr<sqlite3, CloseDatabase> database(opened);
    if (result != SQLITE_OK)
        throw RunTimeError(runTimeErrors::deviceIo,
                           "cannot make the file " + shownPathOf(machineTextOf(path)));
    // Whether the library leaves what was there before in unused room depends on how it was built,
    // and the sample is the same everywhere, byte for byte.
    execute(opened, "PRAGMA secure_delete=ON");
    execute(opened, readFile(data / "server" / "schema.sql"));
    execute(opened, readFile(data / "sample" / "sample.sql"));
    database.reset();
    setModified(path, installed);
}

} // namespace sample
