#include "require.h"

#include "backends/odbc/connection_parts.h"
#include "backends/odbc/connection_string.h"
#include "runtime/run_time_error.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

/// What was taken apart and put together again has the same parts: nothing that was looked at means
/// something else to whoever reads it next.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    try {
        const auto parts = connectionParts(text);
        const auto again = connectionParts(connectionStringOf(parts));
        require(parts.size() == again.size());
        for (std::size_t i = 0; i < parts.size(); ++i)
            require(parts[i].key == again[i].key && parts[i].value == again[i].value);
        const std::string drivers[] = {"SQLite3", "PostgreSQL Unicode"};
        const auto source = connectionStringOfSource(std::string(text), {drivers[0], drivers[1]});
        const auto driver = valueOf(connectionParts(source), "Driver");
        require(driver.empty() || driver.size() == drivers[0].size() ||
                driver.size() == drivers[1].size());
    } catch (const RunTimeError&) {
        // Refused.
    }
    return 0;
}
