#include "require.h"

#include "hosts/cli/config/config_file.h"
#include "runtime/run_time_error.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

/// A person's file is refused in one line with its place, or has settings that are known, each
/// once, with a text and a line of the file.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const auto& names = cli::configNames();
    try {
        const cli::ConfigFile file = cli::parseConfig("/c.toml", text);
        const auto lines = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n')) + 1;
        for (const cli::ConfigEntry& entry : file.entries) {
            require(std::count(names.begin(), names.end(), entry.name) == 1);
            require(file.find(entry.name) == &entry);
            require(!entry.value.empty() && entry.line >= 1 && entry.line <= lines);
        }
    } catch (const RunTimeError& error) {
        require(error.number() == runTimeErrors::invalidFileFormat);
        require(error.description().starts_with("/c.toml:"));
        require(error.description().find('\n') == std::string::npos);
    }
    return 0;
}
