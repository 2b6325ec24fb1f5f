#include "hosts/cli/naming/long_paths.h"

#include "hosts/cli/command.h"
#include "hosts/cli/terminal/output.h"
#include "system/machine_path.h"
#include "text/utf8.h"

#include <filesystem>
#include <system_error>

namespace cli {

bool isTooLong(const std::string& path)
{
    std::error_code error;
    static_cast<void>(std::filesystem::status(filePathOf(path), error));
    return error == std::errc::filename_too_long;
}

std::string shortened(const std::string& path)
{
    constexpr std::size_t longest = 120; ///< characters that are shown as they are
    constexpr std::size_t beginning = 60;
    constexpr std::size_t end = 20;
    const std::size_t characters = characterCount(path);
    if (characters <= longest) return path;
    const std::size_t atEnd = firstCharacters(path, characters - end).size();
    return std::string(firstCharacters(path, beginning)) + "..." + path.substr(atEnd);
}

void requireShortEnough(const std::string& what, const std::string& path)
{
    if (!isTooLong(path)) return;
    throw CommandFailure(what + " has too long a path, " +
                         groupedNumber(static_cast<long long>(path.size())) +
                         " bytes: " + shortened(path));
}

} // namespace cli
