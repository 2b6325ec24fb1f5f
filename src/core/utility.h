#pragma once

#include "runtime/dates.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

class HostModule;
struct ToolContext;

/// The folder, or the file or folder, that a person picked; the empty text for a cancel.
std::string selectDirectory(ToolContext& tool);
std::string selectLogFile(ToolContext& tool);

/// The path in lower case with "%commserver%" replaced by the server's install folder, and double
/// backslashes mended.
std::string expandPath(ToolContext& tool, const std::string& path);

/// The server's install folder as stored, or the empty text.
std::string getInstalledFolderPath(ToolContext& tool);

/// What stands between the first "_" of a name and the next. Raises 5 when there is no second one.
std::string processNameFromFileName(std::string_view name);

/// The number with zeros in front, `width` characters. Raises 5 when it is longer already.
std::string padNumber(std::int32_t value, int width);

/// The time of day that a log's time stamp names, on the zero date: what follows its first blank
/// behind the second character, else what stands before its last colon. Raises 13 when that is no
/// date, and 5 for a stamp with neither.
Date parseTimeText(std::string_view text);

/// Universal time to local time by `g_timeZone`, to the second.
Date toLocalTime(ToolContext& tool, Date moment);

/// True unless the process could not be waited for. Raises nothing.
bool waitForProcess(ToolContext& tool, std::int32_t processId, std::int32_t milliseconds);

/// Reports an event of this tool with the flat texts `inserts`. Raises what the reporter raises.
void reportServerEvent(ToolContext& tool, int type, std::int32_t eventId,
                       const std::vector<std::string>& inserts);

/// The tool's version as it is shown, with a blank for the sign in front: " 4.3 Build 10".
std::string moduleVersionText(const HostModule& module);

/// Fills `g_bitMasks`.
void initBitMasks(ToolContext& tool);
