#include "core/signals.h"

#include "core/error_trap.h"
#include "core/registry_store.h"
#include "core/tool_context.h"
#include "platform/clock.h"
#include "runtime/dates.h"
#include "runtime/integer16.h"
#include "runtime/numbers.h"

#include <array>
#include <bit>
#include <vector>

namespace {

constexpr int secondsOfHour = 3600;

void writeStamp(ToolContext& tool, const char* valueName)
{
    std::array<std::uint8_t, 8> stamp{};
    getCurrentDateTimeInBinaryFormat(tool, stamp);
    setRegistryValue(tool, registryRoot::localMachine, std::string(logManagerKey) + "\\BroadCast",
                     valueName, registryType::bytes,
                     std::vector<std::uint8_t>(stamp.begin(), stamp.end()));
}

} // namespace

void signalDiagnosticGridChange(ToolContext& tool)
{
    writeStamp(tool, "Diagnostic Grid Time Set");
}

void signalCycleDiagFiles(ToolContext& tool)
{
    writeStamp(tool, "Cycle Diag File Time Set");
}

int getTZBias(ToolContext& tool)
{
    const TimeZoneState state = tool.platform.timeZone.read(tool.g_timeZone);
    int minutes = 0;
    if (state == TimeZoneState::standardTime)
        minutes = tool.g_timeZone.bias + tool.g_timeZone.standardBias;
    else if (state == TimeZoneState::daylightTime)
        minutes = tool.g_timeZone.bias + tool.g_timeZone.daylightBias;
    return toInteger16(minutes / 60.0);
}

void getCurrentDateTimeInBinaryFormat(ToolContext& tool, std::span<std::uint8_t, 8> buffer)
{
    ErrorTrap step{tool, "mdlUtility", "getCurrentDateTimeInBinaryFormat"};

    step.enterProc();
    const Date now = step.value(Date{}, [&] { return tool.platform.clock.now(); });
    const double days = dayOf(now).days;
    const double seconds = step.value(0.0, [&] {
        return static_cast<double>(wholeSeconds(timeOf(now))) +
               multiply16(getTZBias(tool), secondsOfHour);
    });
    const double fraction = seconds / secondsOfHour / 24;
    auto bits = std::bit_cast<std::uint64_t>(days + fraction);
    for (std::uint8_t& byte : buffer) {
        byte = static_cast<std::uint8_t>(bits);
        bits >>= 8;
    }
    step.exitProc();
}
