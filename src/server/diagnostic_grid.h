#pragma once

#include "server/memory_recordset.h"

#include <cstdint>
#include <string>

struct ToolContext;

/// Which flag word of a component; any number but 0 asks for the default ones.
namespace flagKind {
constexpr std::int32_t current = 0;
constexpr std::int32_t defaults = 1;
} // namespace flagKind

namespace mdlOrvanDatabase {

/// A component's flag word: bit n is trace level n. 0 for an unknown component, and for one that
/// can't be read.
std::int32_t getFlags(ToolContext& tool, const std::string& componentName, std::int32_t kind);

/// Writes a component's whole flag word; an unknown component is logged and nothing is written.
void SetFlags(ToolContext& tool, const std::string& componentName, std::int32_t flags);

/// The identity of a component's row, or the empty text.
std::string getComponentsObjectId(ToolContext& tool, const std::string& componentName);

/// All components, sorted by what a person reads: columns `name` and `fullName`, each padded to 255
/// characters. Call `moveFirst` before reading.
MemoryRecordset EnumComponents(ToolContext& tool);

} // namespace mdlOrvanDatabase
