#pragma once

#include "platform/registry.h"

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

struct ToolContext;

/// The server's key under HKEY_LOCAL_MACHINE, and the tool's own below it.
constexpr const char* baseKey = "Software\\Kelma Systems\\Kelma Orvan";
constexpr const char* toolKey = "Software\\Kelma Systems\\Kelma Orvan\\OrvanDiagnostics";
constexpr const char* logManagerKey = "Software\\Kelma Systems\\Kelma Orvan\\RoLogMgr";

/// The log manager's folder of logs. Below the other key stands one for each process that logs,
/// whose value names the log that it writes now.
constexpr const char* logFolderValue = "Output Path";
constexpr const char* logProcessesKey = "Software\\Kelma Systems\\Kelma Orvan\\RoLogMgr\\Process";
constexpr const char* currentLogValue = "CurrentLogFile";

/// The companion viewer's program, in the form that `expandPath` takes.
constexpr const char* viewerKey = "Software\\Kelma Systems\\Kelma Orvan\\ToolsCrate\\"
                                  "Diagnostic Tools\\Orvan Diagnostic Viewer";
constexpr const char* viewerValue = "Path";

/// A registry value as routines pass it: nothing, a text, bytes or a 32-bit number.
using RegistryData =
    std::variant<std::monostate, std::string, std::vector<std::uint8_t>, std::int32_t>;

/// The names of the keys below one.
///
/// A key that does not open leaves an array that never had bounds: asking for one raises 9. A key
/// without subkeys gives one element of 260 blanks.
class KeyNames {
public:
    KeyNames() = default;
    explicit KeyNames(std::vector<std::string> names) : names_(std::move(names)), bounded_(true) {}

    /// Raise 9 (subscript out of range) when the array has no bounds.
    int lowerBound() const;
    int upperBound() const;

    /// Raises 9 outside the bounds.
    const std::string& at(int index) const;

private:
    std::vector<std::string> names_;
    bool bounded_ = false;
};

bool registryKeyExists(ToolContext& tool, std::uint32_t hive, const std::string& path);

/// True if the key existed, false if it was made. Raises 1001 "Unable to create the registry key".
bool createRegistryKey(ToolContext& tool, std::uint32_t hive, const std::string& path);

/// The value as `type` (1 text, 3 bytes, 4 number) reads its bytes, whatever type is stored;
/// `defaultValue` for a missing key or value, a text of more than 1,024 bytes, more than 4,096
/// bytes or a number of more than 4. Raises 1001 "Unsupported value type" when the key opens.
RegistryData getRegistryValue(ToolContext& tool, std::uint32_t hive, const std::string& path,
                              const std::string& name, int type, RegistryData defaultValue);

/// `getRegistryValue` as a text, or as a number; with an empty default, or 0.
std::string getRegistryText(ToolContext& tool, const std::string& path, const std::string& name);
std::int32_t getRegistryNumber(ToolContext& tool, const std::string& path, const std::string& name,
                               std::int32_t defaultValue = 0);

/// Writes a value under a key that exists; a missing key, or an unsupported type, writes nothing.
/// A text or number is converted to `type`; raises 13 where it can't be.
void setRegistryValue(ToolContext& tool, std::uint32_t hive, const std::string& path,
                      const std::string& name, int type, const RegistryData& value);

KeyNames enumRegistryKeys(ToolContext& tool, std::uint32_t hive, const std::string& path);
