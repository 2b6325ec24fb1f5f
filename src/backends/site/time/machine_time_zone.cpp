#include "backends/site/time/posix_time_zone.h"

#include "runtime/run_time_error.h"
#include "system/environment.h"
#include "system/regional_settings.h"
#include "system/whole_file.h"

#include <optional>

namespace {

constexpr std::size_t largestZoneFile = 1U << 20;

/// The TZ text at the end of a compiled zone file; nothing when the file is none or has none.
std::optional<PosixTimeZone> zoneOfFile(const std::string& path)
{
    try {
        const auto bytes = readMachineFile(path, runTimeErrors::fileNotFound, largestZoneFile);
        if (bytes.compare(0, 4, "TZif") != 0 || bytes.size() < 2 || bytes.back() != '\n') return {};
        const auto before = bytes.rfind('\n', bytes.size() - 2);
        if (before == std::string::npos) return {};
        return parsePosixTimeZone(
            std::string_view(bytes).substr(before + 1, bytes.size() - before - 2));
    } catch (const RunTimeError&) {
        return {};
    }
}

std::optional<PosixTimeZone> zoneOfText(const std::string& text)
{
    try {
        return parsePosixTimeZone(text);
    } catch (const RunTimeError&) {
        return {};
    }
}

} // namespace

PosixTimeZone machineTimeZone()
{
    if (const auto setting = timeZoneSetting())
        return zoneOfText(*setting).value_or(PosixTimeZone{});
    const auto variable = environmentVariable("TZ");
    if (!variable) return zoneOfFile("/etc/localtime").value_or(PosixTimeZone{});
    std::string name = *variable;
    if (!name.empty() && name.front() == ':') name.erase(0, 1);
    if (name.empty()) return {};
    const bool isPath = name.front() == '/';
    if (auto zone = zoneOfFile(isPath ? name : "/usr/share/zoneinfo/" + name)) return *zone;
    return zoneOfText(name).value_or(PosixTimeZone{});
}
