#pragma once

#include "runtime/dates.h"

#include <cstdint>
#include <optional>
#include <string>

struct ToolContext;

/// The registry's memory of which macro traces a person turned on.
namespace mdlTraces {

/// Records a macro trace as on or off with the present date and time, and reports the server event
/// of that change, whether or not it is one. Raises nothing.
void recordMacroTrace(ToolContext& tool, const std::string& groupName, const std::string& traceName,
                      bool enabled);

/// The recorded state: 1 on, 0 off or never recorded; any other number that lies there counts as
/// off. Raises nothing: one past 16 bits is logged and gives 0.
std::int16_t isenabledMacroTrace(ToolContext& tool, const std::string& groupName,
                                 const std::string& traceName);

/// When the record was written last; nothing where that does not stand there. Raises nothing.
std::optional<Date> macroTraceRecorded(ToolContext& tool, const std::string& groupName,
                                       const std::string& traceName);

} // namespace mdlTraces
