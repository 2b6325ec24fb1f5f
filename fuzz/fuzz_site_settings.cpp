#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "backends/site/site_settings.h"
#include "backends/site/time/posix_time_zone.h"
#include "runtime/run_time_error.h"

/// Settings that were accepted must be usable.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    try {
        const auto settings = parseSiteSettings({reinterpret_cast<const char*>(data), size});
        if (settings.toolFolder.empty() || settings.codePage < 1) std::abort();
        if (!settings.timeZone) return 0;
        const auto zone = parsePosixTimeZone(*settings.timeZone);
        for (std::int64_t moment = 0; moment < 4'000'000'000; moment += 1'000'003 * 97)
            localDate(zone, moment);
    } catch (const RunTimeError&) {
    }
    return 0;
}
