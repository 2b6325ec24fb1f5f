#include "system/process.h"

#include <cerrno>
#include <csignal>
#include <filesystem>
#include <string>
#include <unistd.h>

int ownProcess()
{
    return ::getpid();
}

std::string ownProgramFile()
{
    std::error_code none;
    return std::filesystem::read_symlink("/proc/self/exe", none).string();
}

bool isEndedProcess(std::string_view number)
{
    constexpr std::size_t mostDigits = 9;
    if (number.empty() || number.size() > mostDigits ||
        number.find_first_not_of("0123456789") != std::string_view::npos)
        return false;
    const auto process = static_cast<pid_t>(std::stol(std::string(number)));
    return process > 0 && ::kill(process, 0) != 0 && errno == ESRCH;
}
