#include "system/posix/temporary_place.h"

#include "runtime/run_time_error.h"
#include "system/environment.h"

#include <string>
#include <system_error>

std::filesystem::path temporaryPlace()
{
    std::error_code error;
    auto place = std::filesystem::temp_directory_path(error);
    if (!error) return place;
    throw RunTimeError(runTimeErrors::pathNotFound,
                       "the folder for temporary files, " +
                           environmentVariable("TMPDIR").value_or("/tmp") +
                           ", can't be used: " + error.message());
}
