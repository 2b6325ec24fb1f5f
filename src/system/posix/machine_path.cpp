#include "system/machine_path.h"

bool machineHasDrives()
{
    return false;
}

std::filesystem::path filePathOf(std::string_view path)
{
    return path;
}

std::string machineTextOf(const std::filesystem::path& path)
{
    return path.string();
}

std::string shownPathOf(std::string_view path)
{
    return std::string(path);
}

std::string wholePathOf(std::string_view path)
{
    return std::filesystem::absolute(path).string();
}
