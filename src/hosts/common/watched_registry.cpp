#include "hosts/common/watched_registry.h"

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
    const auto noteValue = [&](const std::string& why) {
        ofValues_.emplace(name, note("value \"" + name + "\"", why));
    };
    try {
        const bool written = registry_.setValue(hive, path, name, value);
        if (!written && registry_.keyExists(hive, path)) noteValue(permissionDenied());
        return written;
    } catch (const RunTimeError& error) {
        noteValue(error.description());
        throw;
    }
}

std::optional<std::vector<std::string>> WatchedRegistry::subkeys(std::uint32_t hive,
                                                                 const std::string& path) const
{
    return registry_.subkeys(hive, path);
}

std::string WatchedRegistry::refusalOf(const std::string& value) const
{
    const auto noted = ofValues_.find(value);
    return noted == ofValues_.end() ? "" : noted->second;
}

void WatchedRegistry::forget()
{
    first_.clear();
    ofValues_.clear();
}

std::string WatchedRegistry::note(const std::string& what, const std::string& why)
{
    std::string refusal = "the registry did not take the " + what + ": " + why;
    if (first_.empty()) first_ = refusal;
    return refusal;
}
