#include "hosts/cli/watched_registry.h"

#include "runtime/run_time_error.h"

namespace {

std::string permissionDenied()
{
    return RunTimeError(runTimeErrors::permissionDenied).description();
}

} // namespace

bool WatchedRegistry::keyExists(std::uint32_t hive, const std::string& path) const
{
    return registry_.keyExists(hive, path);
}

std::optional<bool> WatchedRegistry::createKey(std::uint32_t hive, const std::string& path)
{
    const std::string what = "key \"" + path + "\"";
    try {
        const auto existed = registry_.createKey(hive, path);
        if (!existed) note(what, permissionDenied());
        return existed;
    } catch (const RunTimeError& error) {
        note(what, error.description());
        throw;
    }
}

std::optional<RegistryValue> WatchedRegistry::value(std::uint32_t hive, const std::string& path,
                                                    const std::string& name) const
{
    return registry_.value(hive, path, name);
}

bool WatchedRegistry::setValue(std::uint32_t hive, const std::string& path, const std::string& name,
                               const RegistryValue& value)
{
    const std::string what = "value \"" + name + "\"";
    try {
        const bool written = registry_.setValue(hive, path, name, value);
        if (!written && registry_.keyExists(hive, path)) note(what, permissionDenied());
        return written;
    } catch (const RunTimeError& error) {
        note(what, error.description());
        throw;
    }
}

std::optional<std::vector<std::string>> WatchedRegistry::subkeys(std::uint32_t hive,
                                                                 const std::string& path) const
{
    return registry_.subkeys(hive, path);
}

void WatchedRegistry::note(const std::string& what, const std::string& why)
{
    if (refusal_.empty()) refusal_ = "the registry did not take the " + what + ": " + why;
}
