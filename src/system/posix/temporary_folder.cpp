#include "system/temporary_folder.h"

#include "system/system_error.h"

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <system_error>

std::string makeTemporaryFolder(const std::string& start)
{
    std::error_code none;
    std::string name = (std::filesystem::temp_directory_path(none) / (start + "XXXXXX")).string();
    if (::mkdtemp(name.data()) == nullptr) throw systemError(errno, runTimeErrors::pathNotFound);
    return name;
}
