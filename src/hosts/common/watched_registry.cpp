#include "hosts/common/watched_registry.h"

#include "runtime/run_time_error.h"

namespace {

std::string permissionDenied()
{
    return RunTimeError(runTimeErrors::permissionDenied).description();
}

} // namespace

std::optional<bool> WatchedRegistry::createKey(std::uint32_t hive, const std::string& path)
{
    const std::string what = "key \"" + path + "\"";
    try {
        const auto existed = behind().createKey(hive, path);
        if (!existed) note(what, permissionDenied());
        return existed;
    } catch (const RunTimeError& error) {
        note(what, error.description());
        throw;
    }
}

bool WatchedRegistry::setValue(std::uint32_t hive, const std::string& path, const std::string& name,
                               const RegistryValue& value)
{
    const auto noteValue = [&](const std::string& why) {
        ofValues_.emplace(name, note("value \"" + name + "\"", why));
    };
    try {
        const bool written = behind().setValue(hive, path, name, value);
        if (!written && behind().keyExists(hive, path)) noteValue(permissionDenied());
        return written;
    } catch (const RunTimeError& error) {
        noteValue(error.description());
        throw;
    }
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
