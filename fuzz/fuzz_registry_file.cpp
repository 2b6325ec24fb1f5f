#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "backends/site/registry/registry_file.h"
#include "runtime/run_time_error.h"

/// What is read must be written so that it reads back as the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    try {
        const auto tree = parseRegistryFile({reinterpret_cast<const char*>(data), size});
        const auto text = registryFileText(tree);
        try {
            if (registryFileText(parseRegistryFile(text)) != text) std::abort();
        } catch (const RunTimeError&) {
            std::abort();
        }
    } catch (const RunTimeError&) {
    }
    return 0;
}
