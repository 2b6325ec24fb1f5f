#include <cstddef>
#include <cstdint>
#include <string_view>

#include "backends/site/language/language_catalogue.h"
#include "runtime/run_time_error.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    try {
        parseLanguageCatalogue({reinterpret_cast<const char*>(data), size});
    } catch (const RunTimeError&) {
    }
    return 0;
}
