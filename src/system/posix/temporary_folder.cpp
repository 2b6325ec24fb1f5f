#include "system/temporary_folder.h"

#include "system/posix/temporary_place.h"
#include "system/system_error.h"

#include <cerrno>
#include <cstdlib>

std::string makeTemporaryFolder(const std::string& start)
{
    std::string name = (temporaryPlace() / (start + "XXXXXX")).string();
    if (::mkdtemp(name.data()) == nullptr) throw systemError(errno, runTimeErrors::pathNotFound);
    return name;
}
