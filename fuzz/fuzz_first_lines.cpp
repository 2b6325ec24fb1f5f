#include "require.h"

#include "timeline/sources/log_guess.h"
#include "timeline/sources/trace_database_source.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

/// What a stranger's file is called, begins with, or has for a date: anything is taken or left.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace timeline;
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const std::size_t end = bytes.find('\n');
    const LogName name = readLogName(bytes.substr(0, end));
    require(name.process.size() <= size);
    require(!name.opened || (*name.opened >= dayOf(0, 1, 1) && *name.opened < dayOf(10'000, 1, 1)));
    const std::string_view head = end == std::string_view::npos ? bytes : bytes.substr(end + 1);
    const FirstLines lines = lookAtLines(head, name);
    require(!head.empty() || !lines.form);
    const auto moment = momentOfRowDate(bytes.substr(0, end));
    require(!moment || (*moment >= dayOf(100, 1, 1) && *moment < dayOf(10'000, 1, 1)));
    return 0;
}
